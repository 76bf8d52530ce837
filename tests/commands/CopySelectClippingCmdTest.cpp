#include "commands/CopySelectClippingCmd.h"

#include "exceptions/ValueException.h"
#include "support/ClippingText.h"
#include "support/ModelTest.h"
#include "support/Xml.h"

namespace tarn {
namespace test {
namespace {

class CopySelectClippingCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<CopySelectClippingCmd> copy(
        std::vector<boost::shared_ptr<Media const>> const& medias) const
    {
        return CopySelectClippingCmd::create(timeline(), medias, "choice");
    }
};

TEST_F(CopySelectClippingCmdTest, TheSelectedMediasAreCopiedWhole)
{
    given("V1: .aaa.bb / V2: ...cc");
    auto const command = copy({media("V1.b"), media("V2.c")});
    EXPECT_TRUE(project->execute(command));
    EXPECT_EQ(".aaa.bb", strip().substr(4, 7));
    // c was at 30 and b at 50.
    EXPECT_EQ("V1: (20,20)\nV2: (0,20)\n", placesIn(*command->clipping()));
    EXPECT_EQ("choice", command->clipping()->name());
}

TEST_F(CopySelectClippingCmdTest, WhatIsLinkedIsNotCopied)
{
    given("A1: aaa / V1: aaa");
    auto const command = copy({media("V1.a")});
    project->execute(command);
    EXPECT_EQ("V1: (0,30)\n", placesIn(*command->clipping()));
}

TEST_F(CopySelectClippingCmdTest, TheClippingGoesToTheBoard)
{
    given("V1: aaa");
    auto const command = copy({media("V1.a")});
    EXPECT_FALSE(command->clipping());
    project->execute(command);
    ASSERT_EQ(1u, numClippings(*project));
    EXPECT_EQ(command->clipping(), project->clipBoard()->clippings().front());
}

TEST_F(CopySelectClippingCmdTest, UndoLeavesTheClippingOnTheBoard)
{
    given("V1: aaa");
    auto const command = copy({media("V1.a")});
    project->execute(command);
    boost::shared_ptr<Clipping> const clipping = command->clipping();
    project->undo();
    ASSERT_EQ(1u, numClippings(*project));
    EXPECT_EQ(clipping, project->clipBoard()->clippings().front());
}

TEST_F(CopySelectClippingCmdTest, RedoPutsASecondOneBesideIt)
{
    given("V1: aaa");
    auto const command = copy({media("V1.a")});
    project->execute(command);
    boost::shared_ptr<Clipping> const first = command->clipping();
    project->undo();
    project->redo();
    ASSERT_EQ(2u, numClippings(*project));
    EXPECT_EQ(first, project->clipBoard()->clippings().front());
    EXPECT_EQ(command->clipping(), project->clipBoard()->clippings().back());
    EXPECT_NE(first, command->clipping());
}

TEST_F(CopySelectClippingCmdTest, AnEmptySelectionIsRefused)
{
    given("V1: aaa");
    EXPECT_TRUE(
        refuses<TarnMediaLibException>(copy({}), "trying to make a clipping with no medias"));
    EXPECT_EQ(0u, numClippings(*project));
}

TEST_F(CopySelectClippingCmdTest, AMediaThatIsNotOnTheTimelineIsNoSelection)
{
    given("V1: aaa");
    EXPECT_TRUE(refuses<ValueException<std::string>>(copy({freshVideo('b', 3)}),
                                                     "trying to make a clipping with no medias"));
}

TEST_F(CopySelectClippingCmdTest, ACloneOfTheCommandCopiesTheSameMedias)
{
    given("V1: aaa");
    auto const command = copy({media("V1.a")});
    boost::shared_ptr<CopySelectClippingCmd> const clone(command->clone());
    EXPECT_TRUE(project->execute(clone));
    EXPECT_EQ("V1: (0,30)\n", placesIn(*clone->clipping()));
    EXPECT_FALSE(command->clipping());
}

TEST_F(CopySelectClippingCmdTest, XmlIsTheNameAlone)
{
    given("V1: aaa");
    EXPECT_EQ("<CopySelectClippingCmd id=\"#\"  >\n</CopySelectClippingCmd>\n", xmlOf(*copy({})));
}

}  // namespace
}  // namespace test
}  // namespace tarn
