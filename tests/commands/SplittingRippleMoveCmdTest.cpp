#include "commands/SplittingRippleMoveCmd.h"

#include "exceptions/CollisionException.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/LinkException.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "support/WatchingHandler.h"
#include "support/Xml.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <gmock/gmock.h>

#include <memory>

namespace tarn {
namespace test {
namespace {

class SplittingRippleMoveCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<SplittingRippleMoveCmd> ripple(long long time, long long offset,
                                                     std::vector<std::string> const& names) const
    {
        boost::shared_ptr<SplittingRippleMoveCmd> const command =
            SplittingRippleMoveCmd::create(time, offset);
        for (std::string const& name : names)
            command->addTrack(track(name));
        return command;
    }
};

TEST_F(SplittingRippleMoveCmdTest, CutsAndShiftsALinkedPairOnce)
{
    given("A1: aaaaaa / V1: aaaaaa.b");
    EXPECT_TRUE(edits(ripple(40, 20, {"A1", "V1"}), "A1: aaaa..cc / V1: aaaa..cc.b"));
}

TEST_F(SplittingRippleMoveCmdTest, NeedsATrack)
{
    given("V1: aaaa");
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        ripple(20, 10, {}), "can't perform a splitting ripple move without tracks"));
}

// ---- One track ----

TEST_F(SplittingRippleMoveCmdTest, CutsTheMediaThatLiesAcross)
{
    given("V1: aaaaaac");
    EXPECT_TRUE(edits(ripple(40, 20, {"V1"}), "V1: aaaa..bbc"));
}

TEST_F(SplittingRippleMoveCmdTest, ShiftsFromAMediaThatStartsThere)
{
    given("V1: aabb");
    boost::shared_ptr<SplittingRippleMoveCmd> const command = ripple(20, 10, {"V1"});
    EXPECT_TRUE(edits(command, "V1: aa.bb"));
    EXPECT_EQ(1u, command->numUndoCommands());
}

TEST_F(SplittingRippleMoveCmdTest, ShiftsFromTheNextMediaInAGap)
{
    given("V1: aa...bbc");
    EXPECT_TRUE(edits(ripple(30, 10, {"V1"}), "V1: aa....bbc"));
}

TEST_F(SplittingRippleMoveCmdTest, ShiftsFromTheNextMediaAtTheEndOfOne)
{
    given("V1: aa..bb");
    EXPECT_TRUE(edits(ripple(20, 10, {"V1"}), "V1: aa...bb"));
}

TEST_F(SplittingRippleMoveCmdTest, ShiftsFromTheFirstMediaBeforeIt)
{
    given("V1: ..aabb");
    EXPECT_TRUE(edits(ripple(10, 10, {"V1"}), "V1: ...aabb"));
}

TEST_F(SplittingRippleMoveCmdTest, MovesNothingBehindTheLastMedia)
{
    given("V1: aa");
    boost::shared_ptr<SplittingRippleMoveCmd> const command = ripple(50, 10, {"V1"});
    EXPECT_TRUE(edits(command, "V1: aa"));
    EXPECT_EQ(0u, command->numUndoCommands());
}

TEST_F(SplittingRippleMoveCmdTest, MovesNothingOnAnEmptyTrack)
{
    given("V2: aa");
    EXPECT_TRUE(edits(ripple(0, 10, {"V1"}), "V2: aa"));
}

TEST_F(SplittingRippleMoveCmdTest, ShiftsToTheLeft)
{
    given("V1: aa..bbc");
    EXPECT_TRUE(edits(ripple(30, -20, {"V1"}), "V1: aabbc"));
}

TEST_F(SplittingRippleMoveCmdTest, AnOffsetOfNothingOnlyCuts)
{
    given("V1: aaaa");
    EXPECT_TRUE(edits(ripple(20, 0, {"V1"}), "V1: aabb"));
}

TEST_F(SplittingRippleMoveCmdTest, ATrackAddedTwiceMovesOnce)
{
    given("V1: aabb");
    EXPECT_TRUE(edits(ripple(20, 10, {"V1", "V1"}), "V1: aa.bb"));
}

TEST_F(SplittingRippleMoveCmdTest, LinkedMediasElsewhereMoveAlong)
{
    given("A1: aabb / V1: aabb");
    boost::shared_ptr<SplittingRippleMoveCmd> const command = ripple(20, 10, {"V1"});
    EXPECT_TRUE(edits(command, "A1: aa.bb / V1: aa.bb"));
    EXPECT_EQ(1u, command->numUndoCommands());
}

TEST_F(SplittingRippleMoveCmdTest, ACutThatCannotBeMadeIsRefused)
{
    given("V1: aaaaaa");
    project->execute(stretch("V1.a", 2.0));
    // One edit unit would be left of the media, half a unit of its source.
    EXPECT_TRUE(refuses<ValueException<long long>>(ripple(1, 10, {"V1"}), "unable to split"));
}

TEST_F(SplittingRippleMoveCmdTest, IsTakenBackWhenAMoveIsRefused)
{
    // The right piece, 40 to 60, cannot go left over the piece that stays.
    given("V1: aaaaaa");
    EXPECT_TRUE(refuses<CollisionException>(ripple(40, -10, {"V1"})));
}

TEST_F(SplittingRippleMoveCmdTest, AGroupThatHasDriftedApartIsRefused)
{
    given("A1: bbb / V1: aaaa");
    media("A1.b")->link(media("V1.a"));
    EXPECT_TRUE(refuses<LinkException>(ripple(20, 10, {"V1"})));
}

// ---- Several tracks without links among what moves ----

TEST_F(SplittingRippleMoveCmdTest, CutsAndShiftsEachUnlinkedTrack)
{
    given("A1: bbbb / V1: aaaa");
    boost::shared_ptr<SplittingRippleMoveCmd> const command = ripple(20, 20, {"A1", "V1"});
    EXPECT_TRUE(edits(command, "A1: bb..cc / V1: aa..dd"));
    EXPECT_EQ(4u, command->numUndoCommands());  // a split and a ripple each
}

TEST_F(SplittingRippleMoveCmdTest, LinksOfWhatEndsThereTieNoTracks)
{
    given("A1: aacc / V1: aabbbd");
    boost::shared_ptr<SplittingRippleMoveCmd> const command = ripple(20, 10, {"A1", "V1"});
    EXPECT_TRUE(edits(command, "A1: aa.cc / V1: aa.bbbd"));
    EXPECT_EQ(2u, command->numUndoCommands());
}

// ---- Several tracks with links: everything moves exactly once ----

TEST_F(SplittingRippleMoveCmdTest, ALinkedPairAtABoundaryMovesOnce)
{
    given("A1: aabb / V1: aabb");
    boost::shared_ptr<SplittingRippleMoveCmd> const command = ripple(20, 10, {"A1", "V1"});
    EXPECT_TRUE(edits(command, "A1: aa.bb / V1: aa.bb"));
    EXPECT_EQ(Range<long long>(30, 20), media("A1.b")->trackRange());
    EXPECT_EQ(Range<long long>(30, 20), media("V1.b")->trackRange());
    EXPECT_EQ(1u, command->numUndoCommands());
}

TEST_F(SplittingRippleMoveCmdTest, APairFurtherOnMovesOnce)
{
    given("A1: aa....cc / V1: aabb..cc");
    EXPECT_TRUE(edits(ripple(20, 10, {"A1", "V1"}), "A1: aa.....cc / V1: aa.bb..cc"));
}

TEST_F(SplittingRippleMoveCmdTest, PairsAndSinglesOfAllTracksMoveOnce)
{
    given("A1: aaaabbc..ee / V1: aaaabb.ddee / V2: ..ff..gg...h");
    EXPECT_TRUE(edits(ripple(40, 20, {"V1", "A1", "V2"}),
                      "A1: aaaa..bbc..ee / V1: aaaa..bb.ddee / V2: ..ff....gg...h"));
}

TEST_F(SplittingRippleMoveCmdTest, AGroupOfThreeIsCutAndMovedOnce)
{
    given("A1: aaaa / V1: aaaa / V2: aaaa");
    boost::shared_ptr<SplittingRippleMoveCmd> const command = ripple(20, 10, {"A1", "V1", "V2"});
    EXPECT_TRUE(edits(command, "A1: aa.bb / V1: aa.bb / V2: aa.bb"));
    EXPECT_EQ(2u, command->numUndoCommands());  // one split, one move
}

TEST_F(SplittingRippleMoveCmdTest, CutsUnlinkedTracksBesideALinkedPair)
{
    given("A1: aaaa / V1: aaaa / V2: bbbb");
    EXPECT_TRUE(edits(ripple(20, 10, {"A1", "V1", "V2"}), "A1: aa.cc / V1: aa.cc / V2: bb.dd"));
}

TEST_F(SplittingRippleMoveCmdTest, SoundInTheWayOfALinkedPartnerMovesFirst)
{
    given("A1: ..bbcc / V1: aabb");
    EXPECT_TRUE(edits(ripple(20, 20, {"A1", "V1"}), "A1: ....bbcc / V1: aa..bb"));
}

TEST_F(SplittingRippleMoveCmdTest, PictureInTheWayOfALinkedPartnerMovesFirst)
{
    given("A1: aabb / V1: ..bbcc");
    EXPECT_TRUE(edits(ripple(20, 20, {"A1", "V1"}), "A1: aa..bb / V1: ....bbcc"));
}

TEST_F(SplittingRippleMoveCmdTest, WhatIsInTheWayMovesFirstToTheLeft)
{
    given("A1: ....bbcc / V1: aa..bb / V2: ......ccd");
    EXPECT_TRUE(edits(ripple(40, -20, {"A1", "V1", "V2"}), "A1: ..bbcc / V1: aabb / V2: ....ccd"));
}

TEST_F(SplittingRippleMoveCmdTest, MovesTheLatestOfAllTracksFirstToTheRight)
{
    given("A1: aabb..d / V1: aabbcc");
    EXPECT_EQ("move@60 move@40 move@20 ", primitivesOf(*project, ripple(20, 10, {"A1", "V1"})));
    EXPECT_EQ("A1: aa.bb..d / V1: aa.bbcc", strip());
}

TEST_F(SplittingRippleMoveCmdTest, MovesTheEarliestOfAllTracksFirstToTheLeft)
{
    given("A1: aa.bb..d / V1: aa.bbcc");
    EXPECT_EQ("move@30 move@50 move@70 ", primitivesOf(*project, ripple(30, -10, {"A1", "V1"})));
    EXPECT_EQ("A1: aabb..d / V1: aabbcc", strip());
}

TEST_F(SplittingRippleMoveCmdTest, CutsAllTracksBeforeItMovesAny)
{
    given("A1: aaaa / V1: aaaa / V2: bbbb");
    std::string const log = primitivesOf(*project, ripple(20, 10, {"A1", "V1", "V2"}));
    EXPECT_LT(log.rfind("addMedia"), log.find("move@"));
    EXPECT_LT(log.rfind("addLink"), log.find("move@"));
}

TEST_F(SplittingRippleMoveCmdTest, LinksLeadToTracksThatWereNotAdded)
{
    given("A1: ..bb / V1: aabb / V2: cccc");
    EXPECT_TRUE(edits(ripple(20, 10, {"V1", "V2"}), "A1: ...bb / V1: aa.bb / V2: cc.dd"));
}

TEST_F(SplittingRippleMoveCmdTest, AnUnlinkedMediaOnATrackThatWasNotAddedIsInTheWay)
{
    given("A1: ..bbdd / V1: aabb / V2: ccccc");
    EXPECT_TRUE(refuses<CollisionException>(ripple(20, 10, {"V1", "V2"})));
}

TEST_F(SplittingRippleMoveCmdTest, ADeadLinkIsRefused)
{
    given("A1: bb / V1: aa.c");
    media("V1.a")->link(freshVideo('a', 2));
    EXPECT_THROW(project->execute(ripple(0, 10, {"A1", "V1"})),
                 DanglingWeakPtrException<Media const>);
    EXPECT_EQ("A1: bb / V1: aa.c", strip());
}

TEST_F(SplittingRippleMoveCmdTest, RedoBringsBackTheVeryPieces)
{
    given("A1: aaaa / V1: aaaa");
    project->execute(ripple(20, 10, {"A1", "V1"}));
    boost::shared_ptr<Media> const piece = track("V1")->mediaAtTime(30).second;
    project->undo();
    project->redo();
    EXPECT_EQ(piece, track("V1")->mediaAtTime(30).second);
}

// ---- XML and copies ----

TEST_F(SplittingRippleMoveCmdTest, IsWrittenWithWhatItRan)
{
    given("V1: aaaa");
    boost::shared_ptr<SplittingRippleMoveCmd> const command = ripple(20, 10, {"V1"});
    EXPECT_THAT(xmlOf(*command), testing::AllOf(testing::StartsWith("<SplittingRippleMoveCmd "),
                                                testing::HasSubstr("time=\"20\" offset=\"10\""),
                                                testing::Not(testing::HasSubstr("SplitCmd"))));
    project->execute(command);
    EXPECT_THAT(xmlOf(*command), testing::ContainsRegex("<SplitCmd (.|\n)*<RippleMoveCmd "));
}

TEST_F(SplittingRippleMoveCmdTest, ACloneHasTheTracksAndHasRunNothing)
{
    given("V1: aabb");
    boost::shared_ptr<SplittingRippleMoveCmd> const command = ripple(20, 10, {"V1"});
    project->execute(command);
    boost::shared_ptr<SplittingRippleMoveCmd> const copy(command->clone());
    EXPECT_EQ(0u, copy->numUndoCommands());
    EXPECT_TRUE(edits(copy, "V1: aa..bb"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
