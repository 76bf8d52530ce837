#include "commands/InsertSpaceCmd.h"

#include "exceptions/CollisionException.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "support/ModelTest.h"
#include "support/WatchingHandler.h"
#include "support/Xml.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <memory>

namespace tarn {
namespace test {
namespace {

class InsertSpaceCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<InsertSpaceCmd> space(long long location, long long size,
                                            std::vector<std::string> const& names) const
    {
        boost::shared_ptr<InsertSpaceCmd> const command = InsertSpaceCmd::create(location, size);
        for (std::string const& name : names)
            command->addTrack(track(name));
        return command;
    }
};

TEST_F(InsertSpaceCmdTest, TakesAMediaThatLiesAcrossBehindTheSpaceWhole)
{
    // b goes from 20 to 40 + 20, and c the same 40 along.
    given("V1: aabbbb.c");
    EXPECT_TRUE(edits(space(40, 20, {"V1"}), "V1: aa....bbbb.c"));
}

TEST_F(InsertSpaceCmdTest, KnowsItsLocationAndSize)
{
    boost::shared_ptr<InsertSpaceCmd> const command = InsertSpaceCmd::create(40, 20);
    EXPECT_EQ(40, command->location());
    EXPECT_EQ(20, command->size());
}

TEST_F(InsertSpaceCmdTest, WithoutTracksItSucceedsAtNothing)
{
    given("V1: aabb");
    boost::shared_ptr<InsertSpaceCmd> const command = space(20, 10, {});
    EXPECT_TRUE(edits(command, "V1: aabb"));
    EXPECT_EQ(0u, command->numUndoCommands());
}

TEST_F(InsertSpaceCmdTest, ASizeOfNothingSucceedsAtNothing)
{
    given("V1: aabb");
    boost::shared_ptr<InsertSpaceCmd> const command = space(30, 0, {"V1"});
    EXPECT_TRUE(edits(command, "V1: aabb"));
    EXPECT_EQ(0u, command->numUndoCommands());
}

TEST_F(InsertSpaceCmdTest, ANegativeSizeSucceedsAtNothing)
{
    given("V1: aa..bb");
    boost::shared_ptr<InsertSpaceCmd> const command = space(30, -10, {"V1"});
    EXPECT_TRUE(edits(command, "V1: aa..bb"));
    EXPECT_EQ(0u, command->numUndoCommands());
}

TEST_F(InsertSpaceCmdTest, BetweenTwoMediasTheRightOneMakesRoom)
{
    given("V1: aabb");
    EXPECT_TRUE(edits(space(20, 10, {"V1"}), "V1: aa.bb"));
}

TEST_F(InsertSpaceCmdTest, TheFirstMediaMakesRoomAtItsStart)
{
    given("V1: ..aabb");
    EXPECT_TRUE(edits(space(20, 10, {"V1"}), "V1: ...aabb"));
}

TEST_F(InsertSpaceCmdTest, InAGapTheNextMediaMakesRoom)
{
    given("V1: aa..bb");
    EXPECT_TRUE(edits(space(30, 10, {"V1"}), "V1: aa...bb"));
}

TEST_F(InsertSpaceCmdTest, AtAMediasEndTheNextMediaMakesRoom)
{
    given("V1: aa..bb");
    EXPECT_TRUE(edits(space(20, 10, {"V1"}), "V1: aa...bb"));
}

TEST_F(InsertSpaceCmdTest, BehindTheLastMediaNothingMoves)
{
    given("V1: aa");
    EXPECT_TRUE(edits(space(50, 10, {"V1"}), "V1: aa"));
}

TEST_F(InsertSpaceCmdTest, UnlinkedTracksEachShiftByWhatTheyNeed)
{
    // b: from 20 to 40 + 10; c: by 10.
    given("V1: aabbbb / V2: ....cc");
    EXPECT_TRUE(edits(space(40, 10, {"V1", "V2"}), "V1: aa...bbbb / V2: .....cc"));
}

TEST_F(InsertSpaceCmdTest, LinksBeforeTheLocationDoNotTieTracks)
{
    given("A1: aa..cc / V1: aabbbb");
    EXPECT_TRUE(edits(space(40, 10, {"A1", "V1"}), "A1: aa...cc / V1: aa...bbbb"));
}

TEST_F(InsertSpaceCmdTest, OnOneTrackLinkedMediasMoveAlong)
{
    given("A1: aaaa / V1: aaaa");
    EXPECT_TRUE(edits(space(20, 10, {"V1"}), "A1: ...aaaa / V1: ...aaaa"));
}

// ---- Several tracks with links: one shift for all, and everything moves once ----

TEST_F(InsertSpaceCmdTest, ALinkedPairThatLiesAcrossMovesOnceAndWhole)
{
    // All by 20 + 10 - 0.
    given("A1: aaaa / V1: aaaa.b");
    boost::shared_ptr<InsertSpaceCmd> const command = space(20, 10, {"A1", "V1"});
    EXPECT_TRUE(edits(command, "A1: ...aaaa / V1: ...aaaa.b"));
    EXPECT_EQ(Range<long long>(30, 40), media("A1.a")->trackRange());
    EXPECT_EQ(Range<long long>(80, 10), media("V1.b")->trackRange());
    EXPECT_EQ(2u, command->numUndoCommands());
}

TEST_F(InsertSpaceCmdTest, WithLinksAllTracksShiftByTheMostThatOneNeeds)
{
    // b needs 40 + 10 - 20 = 30, the others would need 10.
    given("A1: ....cc / V1: aabbbb / V2: ....cc.d");
    EXPECT_TRUE(edits(space(40, 10, {"A1", "V1", "V2"}),
                      "A1: .......cc / V1: aa...bbbb / V2: .......cc.d"));
}

TEST_F(InsertSpaceCmdTest, WithLinksAPairAtTheLocationMovesBySizeOnce)
{
    given("A1: aabb / V1: aabb");
    EXPECT_TRUE(edits(space(20, 10, {"A1", "V1"}), "A1: aa.bb / V1: aa.bb"));
}

TEST_F(InsertSpaceCmdTest, WithLinksWhatIsInTheWayMovesFirst)
{
    given("A1: ..bbcc / V1: aabb / V2: ....cc");
    EXPECT_TRUE(
        edits(space(20, 20, {"A1", "V1", "V2"}), "A1: ....bbcc / V1: aa..bb / V2: ......cc"));
}

TEST_F(InsertSpaceCmdTest, WithLinksTheLatestMovesFirstAndNothingIsCut)
{
    given("A1: aaaa.d / V1: aaaac");
    EXPECT_EQ("move@50 move@40 move@0 ", primitivesOf(*project, space(20, 10, {"A1", "V1"})));
    EXPECT_EQ("A1: ...aaaa.d / V1: ...aaaac", strip());
}

TEST_F(InsertSpaceCmdTest, LinksLeadToTracksThatWereNotAdded)
{
    given("A1: ..bb / V1: aabb / V2: aacc");
    EXPECT_TRUE(edits(space(20, 10, {"V1", "V2"}), "A1: ...bb / V1: aa.bb / V2: aa.cc"));
}

TEST_F(InsertSpaceCmdTest, AnUnlinkedMediaOnATrackThatWasNotAddedIsInTheWay)
{
    given("A1: ..bbd / V1: aabb / V2: ..cc");
    EXPECT_TRUE(refuses<CollisionException>(space(20, 10, {"V1", "V2"})));
}

TEST_F(InsertSpaceCmdTest, ADeadLinkIsRefused)
{
    given("A1: bb / V1: aa");
    media("V1.a")->link(freshVideo('a', 2));
    EXPECT_THROW(project->execute(space(0, 10, {"A1", "V1"})),
                 DanglingWeakPtrException<Media const>);
    EXPECT_EQ("A1: bb / V1: aa", strip());
}

TEST_F(InsertSpaceCmdTest, IsWrittenByItsNameAlone)
{
    given("V1: aabb");
    boost::shared_ptr<InsertSpaceCmd> const command = space(20, 10, {"V1"});
    project->execute(command);
    EXPECT_EQ("<InsertSpaceCmd id=\"#\"  >\n</InsertSpaceCmd>\n", xmlOf(*command));
}

TEST_F(InsertSpaceCmdTest, ACloneHasTheTracksAndHasRunNothing)
{
    given("V1: aabb");
    boost::shared_ptr<InsertSpaceCmd> const command = space(20, 10, {"V1"});
    project->execute(command);
    boost::shared_ptr<InsertSpaceCmd> const copy(command->clone());
    EXPECT_EQ(0u, copy->numUndoCommands());
    // b stands at 30 now, so at 20 there is a gap before it.
    EXPECT_TRUE(edits(copy, "V1: aa..bb"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
