#include "commands/CopyRangeClippingCmd.h"

#include "exceptions/ValueException.h"
#include "support/ClippingText.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "support/Xml.h"

namespace tarn {
namespace test {
namespace {

class CopyRangeClippingCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<CopyRangeClippingCmd> copy(std::vector<std::string> const& trackNames,
                                                 long long start, long long duration) const
    {
        auto const command =
            CopyRangeClippingCmd::create(timeline(), Range<long long>(start, duration), "piece");
        for (std::string const& name : trackNames)
            command->addTrack(track(name));
        return command;
    }
};

TEST_F(CopyRangeClippingCmdTest, WhatLiesInTheRangeIsCopiedToTheBoard)
{
    given("V1: aaabbb");
    auto const command = copy({"V1"}, 20, 20);
    EXPECT_TRUE(edits(command, "V1: aaabbb"));
    // The last 10 of a and the first 10 of b, the earlier at zero.
    EXPECT_EQ("V1: (0,10) (10,10)\n", placesIn(*command->clipping()));
    EXPECT_EQ("piece", command->clipping()->name());
}

TEST_F(CopyRangeClippingCmdTest, ThereIsNoClippingBeforeTheRun)
{
    given("V1: aaa");
    EXPECT_FALSE(copy({}, 0, 10)->clipping());
}

TEST_F(CopyRangeClippingCmdTest, UndoTakesTheClippingOffTheBoard)
{
    given("V1: aaa");
    auto const command = copy({"V1"}, 0, 10);
    project->execute(command);
    ASSERT_EQ(1u, numClippings(*project));
    EXPECT_EQ(command->clipping(), project->clipBoard()->clippings().front());
    project->undo();
    EXPECT_EQ(0u, numClippings(*project));
}

TEST_F(CopyRangeClippingCmdTest, RedoMakesANewClipping)
{
    given("V1: aaa");
    auto const command = copy({"V1"}, 0, 10);
    project->execute(command);
    boost::shared_ptr<Clipping> const first = command->clipping();
    project->undo();
    project->redo();
    EXPECT_NE(first, command->clipping());
    ASSERT_EQ(1u, numClippings(*project));
    EXPECT_EQ(command->clipping(), project->clipBoard()->clippings().front());
}

TEST_F(CopyRangeClippingCmdTest, RedoCopiesTheTimelineAsItThenStands)
{
    given("V1: aaa");
    auto const command = copy({"V1"}, 0, 30);
    project->execute(command);
    project->undo();
    track("V1")->trimEnd(media("V1.a"), 5, true);
    project->redo();
    EXPECT_EQ("V1: (0,25)\n", placesIn(*command->clipping()));
}

TEST_F(CopyRangeClippingCmdTest, OnlyTheTracksNamedAreCopied)
{
    given("A1: ccc / V1: aaa / V2: bbb");
    auto const command = copy({"V2", "A1"}, 0, 20);
    project->execute(command);
    EXPECT_EQ("V1: (0,20)\nA1: (0,20)\n", placesIn(*command->clipping()));
}

TEST_F(CopyRangeClippingCmdTest, ATrackNamedTwiceIsCopiedOnce)
{
    given("V1: aaa");
    auto const command = copy({"V1", "V1"}, 0, 20);
    project->execute(command);
    EXPECT_EQ("V1: (0,20)\n", placesIn(*command->clipping()));
}

TEST_F(CopyRangeClippingCmdTest, TracksThatLinksReachAreCopiedWhole)
{
    given("A1: aaa.cc / V1: aaa");
    auto const command = copy({"V1"}, 0, 60);
    project->execute(command);
    EXPECT_EQ("V1: (0,30)\nA1: (0,30) (40,20)\n", placesIn(*command->clipping()));
}

TEST_F(CopyRangeClippingCmdTest, WithoutTracksItIsRefused)
{
    given("V1: aaa");
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        copy({}, 0, 10), "can't perform a copy range clipping without tracks"));
    EXPECT_EQ(0u, numClippings(*project));
}

TEST_F(CopyRangeClippingCmdTest, AnEmptyRangeIsRefused)
{
    given("V1: aaa...b");
    auto const command = copy({"V1"}, 30, 30);
    EXPECT_TRUE(
        refuses<TarnMediaLibException>(command, "trying to make a clipping with no medias"));
    auto const thrown = thrownBy<ValueException<std::string>>([&] { project->execute(command); });
    EXPECT_EQ("piece", thrown.value());
    EXPECT_EQ(0u, numClippings(*project));
}

TEST_F(CopyRangeClippingCmdTest, ACloneOfTheCommandCopiesTheSameTracks)
{
    given("V1: aaa");
    auto const command = copy({"V1"}, 0, 20);
    boost::shared_ptr<CopyRangeClippingCmd> const clone(command->clone());
    EXPECT_TRUE(project->execute(clone));
    EXPECT_EQ("V1: (0,20)\n", placesIn(*clone->clipping()));
    EXPECT_FALSE(command->clipping());
}

TEST_F(CopyRangeClippingCmdTest, XmlIsTheNameAlone)
{
    given("V1: aaa");
    EXPECT_EQ("<CopyRangeClippingCmd id=\"#\"  >\n</CopyRangeClippingCmd>\n",
              xmlOf(*copy({}, 0, 9)));
}

}  // namespace
}  // namespace test
}  // namespace tarn
