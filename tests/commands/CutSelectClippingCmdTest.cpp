#include "commands/CutSelectClippingCmd.h"

#include "exceptions/TarnMediaLibException.h"
#include "support/ClippingText.h"
#include "support/ModelTest.h"
#include "support/Xml.h"

#include <gmock/gmock.h>

namespace tarn {
namespace test {
namespace {

class CutSelectClippingCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<CutSelectClippingCmd> cut(
        std::vector<boost::shared_ptr<Media const>> const& medias) const
    {
        return CutSelectClippingCmd::create(timeline(), medias, "choice");
    }
};

TEST_F(CutSelectClippingCmdTest, TheSelectedMediasGoToTheBoard)
{
    given("V1: aaa.bb");
    auto const command = cut({media("V1.a")});
    EXPECT_TRUE(project->execute(command));
    EXPECT_EQ("V1: ....bb", strip());
    EXPECT_EQ("V1: (0,30)\n", placesIn(*command->clipping()));
    EXPECT_EQ("choice", command->clipping()->name());
    EXPECT_EQ(1u, numClippings(*project));
}

TEST_F(CutSelectClippingCmdTest, UndoAndRedoMoveTheVeryMedias)
{
    given("V1: aaa.bb / V2: cc");
    project->execute(cut({media("V1.b"), media("V2.c")}));
    EXPECT_EQ("V1: aaa", strip());
    project->undo();
    EXPECT_EQ("V1: aaa.bb / V2: cc", strip());
    project->redo();
    EXPECT_EQ("V1: aaa", strip());
}

TEST_F(CutSelectClippingCmdTest, TheBoardKeepsTheClippingOnUndoAndGrowsOnRedo)
{
    given("V1: aaa");
    auto const command = cut({media("V1.a")});
    project->execute(command);
    boost::shared_ptr<Clipping> const first = command->clipping();
    project->undo();
    EXPECT_EQ(1u, numClippings(*project));
    project->redo();
    ASSERT_EQ(2u, numClippings(*project));
    EXPECT_EQ(first, project->clipBoard()->clippings().front());
    EXPECT_EQ(command->clipping(), project->clipBoard()->clippings().back());
}

TEST_F(CutSelectClippingCmdTest, WhatIsLinkedIsRemovedButNotCopied)
{
    given("A1: aaa / V1: aaabb");
    auto const command = cut({media("V1.a")});
    project->execute(command);
    EXPECT_EQ("V1: ...bb", strip());
    EXPECT_EQ("V1: (0,30)\n", placesIn(*command->clipping()));
    project->undo();
    EXPECT_EQ("A1: aaa / V1: aaabb", strip());
}

TEST_F(CutSelectClippingCmdTest, BothHalvesOfALinkedPairAreRemovedOnce)
{
    given("A1: .aaa / V1: .aaa");
    auto const command = cut({media("V1.a"), media("A1.a")});
    EXPECT_TRUE(project->execute(command));
    EXPECT_EQ("", strip());
    EXPECT_EQ("V1: (0,30)\nA1: (0,30)\n", placesIn(*command->clipping()));
}

TEST_F(CutSelectClippingCmdTest, AnEmptySelectionIsRefused)
{
    given("V1: aaa");
    EXPECT_TRUE(
        refuses<TarnMediaLibException>(cut({}), "trying to make a clipping with no medias"));
    EXPECT_EQ(0u, numClippings(*project));
}

TEST_F(CutSelectClippingCmdTest, ACloneOfTheCommandHasACopyOfItsOwn)
{
    given("V1: aaa");
    auto const command = cut({media("V1.a")});
    boost::shared_ptr<CutSelectClippingCmd> const clone(command->clone());
    EXPECT_FALSE(clone->clipping());
    EXPECT_TRUE(project->execute(clone));
    EXPECT_TRUE(clone->clipping());
    EXPECT_FALSE(command->clipping());
}

TEST_F(CutSelectClippingCmdTest, XmlTellsATargetByAddress)
{
    given("V1: aaa");
    EXPECT_THAT(xmlOf(*cut({media("V1.a")})),
                ::testing::MatchesRegex("<CutSelectClippingCmd id=\"#\" target=\"0x[0-9a-f]+\" >\n"
                                        "</CutSelectClippingCmd>\n"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
