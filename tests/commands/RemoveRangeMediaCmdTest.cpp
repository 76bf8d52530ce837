#include "commands/RemoveRangeMediaCmd.h"

#include "support/CommandXml.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"

#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/ValueException.h"
#include "timeline/Media.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"

#include <vector>

namespace tarn {
namespace test {

namespace {

class RemoveRangeMediaCmdTest : public ModelTest
{
protected:
    /// Cells `from` to `to` on those tracks.
    boost::shared_ptr<RemoveRangeMediaCmd> removeRange(long long from, long long to,
                                                       std::vector<std::string> const& tracks) const
    {
        boost::shared_ptr<RemoveRangeMediaCmd> const command =
            RemoveRangeMediaCmd::create(timeline(), Range<long long>(from * 10, (to - from) * 10));
        for (std::string const& name : tracks) {
            command->addTrack(track(name));
        }
        return command;
    }
};

}  // namespace

TEST_F(RemoveRangeMediaCmdTest, InsideOneMediaItTakesTheMiddleAndLeavesAGap)
{
    given("V1: aaaaaacc");
    EXPECT_TRUE(edits(removeRange(2, 4, {"V1"}), "V1: aa..bbcc"));
}

TEST_F(RemoveRangeMediaCmdTest, WhatIsLeftShowsTheSamePartOfTheSourceAsBefore)
{
    given("V1: aaaaaa");
    project->execute(removeRange(2, 4, {"V1"}));
    EXPECT_EQ(Range<double>(500, 20), media("V1.a")->mediaRange());
    EXPECT_EQ(Range<double>(540, 20), track("V1")->mediaAtTime(50).first->mediaRange());
}

TEST_F(RemoveRangeMediaCmdTest, ItEndsWhereAMediaEndsWithoutACutThere)
{
    given("V1: aaaacc");
    boost::shared_ptr<RemoveRangeMediaCmd> const command = removeRange(2, 4, {"V1"});
    EXPECT_TRUE(edits(command, "V1: aa..cc"));
    EXPECT_EQ(2u, command->numUndoCommands());  // one cut, one removal
}

TEST_F(RemoveRangeMediaCmdTest, ItStartsWhereAMediaStartsWithoutACutThere)
{
    given("V1: ccaaaa");
    boost::shared_ptr<RemoveRangeMediaCmd> const command = removeRange(2, 4, {"V1"});
    // What is left is a new media: the one cut is the range.
    EXPECT_TRUE(edits(command, "V1: cc..bb"));
    EXPECT_EQ(2u, command->numUndoCommands());
}

TEST_F(RemoveRangeMediaCmdTest, AMediaInsideTheRangeGoesWhole)
{
    given("V1: bb.aaa.cc");
    boost::shared_ptr<RemoveRangeMediaCmd> const command = removeRange(2, 7, {"V1"});
    EXPECT_TRUE(edits(command, "V1: bb.....cc"));
    EXPECT_EQ(1u, command->numUndoCommands());
}

TEST_F(RemoveRangeMediaCmdTest, EveryMediaTheRangeTouchesIsCutOrGoes)
{
    given("V1: aaaabbddcccc");
    EXPECT_TRUE(edits(removeRange(2, 10, {"V1"}), "V1: aa........ee"));
}

TEST_F(RemoveRangeMediaCmdTest, OnlyTheTracksAddedAreTouched)
{
    given("V1: aaaa / V2: bbbb / V3: cccc");
    EXPECT_TRUE(edits(removeRange(0, 9, {"V1", "V3"}), "V2: bbbb"));
}

TEST_F(RemoveRangeMediaCmdTest, WithoutTracksItTakesNothingSuccessfully)
{
    given("V1: aaaa");
    EXPECT_TRUE(edits(removeRange(0, 4, {}), "V1: aaaa"));
}

TEST_F(RemoveRangeMediaCmdTest, LinkedMediasOnOtherTracksAreCutAndGoAlong)
{
    given("A1: aaaaaac / V1: aaaaaad");
    EXPECT_TRUE(edits(removeRange(2, 4, {"V1"}), "A1: aa..bbc / V1: aa..bbd"));
}

TEST_F(RemoveRangeMediaCmdTest, APartnersTrackFindsItsPartGoneAlready)
{
    given("A1: aaaaaa / V1: aaaaaa");
    EXPECT_TRUE(edits(removeRange(2, 4, {"V1", "A1"}), "A1: aa..bb / V1: aa..bb"));
}

TEST_F(RemoveRangeMediaCmdTest, ATrackAddedTwiceFindsNothingTheSecondTime)
{
    given("V1: aaaaaa");
    EXPECT_TRUE(edits(removeRange(2, 4, {"V1", "V1"}), "V1: aa..bb"));
}

TEST_F(RemoveRangeMediaCmdTest, ARangeOverNothingTakesNothing)
{
    given("V1: aa....bb");
    EXPECT_TRUE(edits(removeRange(2, 6, {"V1"}), "V1: aa....bb"));
}

TEST_F(RemoveRangeMediaCmdTest, ARangeWithoutLengthTakesNothing)
{
    given("V1: aaaa");
    EXPECT_TRUE(edits(removeRange(2, 2, {"V1"}), "V1: aaaa"));
}

// b lies under a, which was stretched over it: at 50 the track finds b, which has ended.
TEST_F(RemoveRangeMediaCmdTest, AFailedCutIsToldAndTakesEverythingBack)
{
    given("V1: aaab / V2: cccccc");
    project->execute(stretch("V1.a", 0.5));
    project->execute(stretch("V1.a", 2.0));
    boost::shared_ptr<Command> const command = removeRange(1, 5, {"V2", "V1"});
    auto const thrown = thrownBy<ValueException<long long>>([&] { project->execute(command); });
    EXPECT_STREQ("unable to split", thrown.what());
    EXPECT_EQ(50, thrown.value());
    EXPECT_EQ(1u, track("V2")->numMedias());
    EXPECT_EQ(Range<long long>(0, 60), media("V2.c")->trackRange());
    EXPECT_EQ(2u, track("V1")->numMedias());
}

TEST_F(RemoveRangeMediaCmdTest, ARefusedRemovalTakesTheCutsBack)
{
    given("V1: aaaa / V2: bbbb");
    media("V2.b")->link(freshSound('b', 4));
    EXPECT_THROW(project->execute(removeRange(0, 4, {"V1", "V2"})),
                 DanglingWeakPtrException<Media const>);
    EXPECT_EQ("V1: aaaa / V2: bbbb", strip());
    EXPECT_FALSE(project->commandState().undoTop());
}

// 30 at 1.1 are 33. Cut and lengthened again, the doubles may differ in the last bit.
TEST_F(RemoveRangeMediaCmdTest, UndoOnAStretchedMediaGivesItsTrackRangeBackExactly)
{
    given("V1: aaa");
    project->execute(stretch("V1.a", 1.1));
    project->execute(removeRange(1, 2, {"V1"}));
    EXPECT_EQ("V1: a[0,10) b[20,33)", strip());
    project->undo();
    EXPECT_EQ("V1: a[0,33)", strip());
    EXPECT_NEAR(500, media("V1.a")->mediaRange().start, 1e-9);
    EXPECT_NEAR(30, media("V1.a")->mediaRange().duration, 1e-9);
}

TEST_F(RemoveRangeMediaCmdTest, ACloneHasTheSameRangeAndTracksAndRanNothing)
{
    given("V1: aaaaaa");
    boost::shared_ptr<RemoveRangeMediaCmd> const original = removeRange(0, 6, {"V1"});
    project->execute(original);
    project->undo();
    boost::shared_ptr<RemoveRangeMediaCmd> const clone(original->clone());
    EXPECT_EQ(0u, clone->numUndoCommands());
    EXPECT_TRUE(edits(clone, "V1: ..."));
}

TEST_F(RemoveRangeMediaCmdTest, PrintsTheTimelineAndTheRange)
{
    given("V1: aaaa");
    EXPECT_EQ(emptyElement("RemoveRangeMediaCmd",
                           identAttribute("target", timeline()) + " range=\"(20,30)\""),
              xmlOf(*removeRange(2, 5, {"V1"})));
}

TEST_F(RemoveRangeMediaCmdTest, ALinkedMediaOfTheSameTrackMayHaveGoneAlready)
{
    given("V1: aaa.bbb");
    media("V1.a")->link(media("V1.b"));
    EXPECT_TRUE(edits(removeRange(0, 7, {"V1"}), "V1: "));
}

}  // namespace test
}  // namespace tarn
