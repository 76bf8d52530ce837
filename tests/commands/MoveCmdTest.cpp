#include "commands/MoveCmd.h"

#include "support/CommandXml.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"

#include "commands/CommandHistory.h"
#include "commands/CommandPair.h"
#include "commands/TrimEndCmd.h"
#include "exceptions/CollisionException.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/LinkException.h"
#include "exceptions/ValueException.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

namespace tarn {
namespace test {

using MoveCmdTest = ModelTest;

TEST_F(MoveCmdTest, TouchingIsNoCollision)
{
    given("A1: ....cc / V1: aaa...bb");
    EXPECT_TRUE(edits(move("V1.a", +3), "A1: ....cc / V1: ...aaabb"));
}

TEST_F(MoveCmdTest, OverlapIsRefusedAndChangesNothing)
{
    given("V1: aaa...bb");
    EXPECT_TRUE(refuses<CollisionException>(move("V1.a", +4)));
}

TEST_F(MoveCmdTest, OverlapByOneEditUnitIsRefused)
{
    given("V1: aaa...bb");
    EXPECT_TRUE(edits(MoveCmd::create(track("V1"), media("V1.b"), -30), "V1: aaabb"));
    EXPECT_TRUE(refuses<CollisionException>(MoveCmd::create(track("V1"), media("V1.b"), -1)));
}

TEST_F(MoveCmdTest, MayLandOnItsOwnOldSpan)
{
    given("V1: aaa...bb");
    EXPECT_TRUE(edits(move("V1.a", +1), "V1: .aaa..bb"));
}

TEST_F(MoveCmdTest, MayJumpOverANeighbour)
{
    given("V1: aaa.bb");
    EXPECT_TRUE(edits(move("V1.a", +6), "V1: ....bbaaa"));
}

TEST_F(MoveCmdTest, AGroupMovesTogether)
{
    given("A1: aaa..b / A2: aaa / V1: aaac");
    EXPECT_TRUE(edits(move("A2.a", +6), "A1: .....baaa / A2: ......aaa / V1: ...c..aaa"));
}

TEST_F(MoveCmdTest, ACollisionOfALinkedMediaAloneStopsTheWholeGroup)
{
    given("A1: aaa.b / V1: aaa");
    boost::shared_ptr<Command> const command = move("V1.a", +2);
    EXPECT_TRUE(refuses<CollisionException>(command));
    auto const thrown = thrownBy<CollisionException>([&] { project->execute(command); });
    EXPECT_EQ(CollisionException::MediaList{media("A1.b")}, *thrown.medias());
}

TEST_F(MoveCmdTest, LinkedMediasWithDifferentTrackRangesAreRefused)
{
    given("V1: aaa / V2: .bbb");
    media("V1.a")->link(media("V2.b"));
    boost::shared_ptr<Command> const command = move("V1.a", +5);
    EXPECT_TRUE(refuses<LinkException>(command));
    auto const thrown = thrownBy<LinkException>([&] { project->execute(command); });
    EXPECT_EQ(Range<long long>(0, 30), thrown.first());
    EXPECT_EQ(Range<long long>(10, 30), thrown.second());
}

TEST_F(MoveCmdTest, ADeadLinkIsRefused)
{
    given("V1: aaa");
    media("V1.a")->link(freshSound('a', 3));
    EXPECT_THROW(project->execute(move("V1.a", 1)), DanglingWeakPtrException<Media const>);
    EXPECT_EQ("V1: aaa", strip());
}

TEST_F(MoveCmdTest, ALinkedMediaOffItsTrackIsRefused)
{
    given("V1: aaa");
    boost::shared_ptr<Media> const loose = freshSound('a', 3);
    media("V1.a")->link(loose);
    EXPECT_TRUE(refuses<DanglingWeakPtrException<Track const>>(move("V1.a", 1), ""));
}

TEST_F(MoveCmdTest, AMediaOfAnotherTrackIsRefused)
{
    given("V1: aaa / V2: bbb");
    boost::shared_ptr<Command> const command = MoveCmd::create(track("V2"), media("V1.a"), 10);
    EXPECT_TRUE(refuses<ValueException<boost::shared_ptr<Media const>>>(
        command, "media not found in track"));
}

TEST_F(MoveCmdTest, AStartBelowZeroIsNotRefused)
{
    given("V1: aaa");
    EXPECT_TRUE(project->execute(move("V1.a", -2)));
    EXPECT_EQ(Range<long long>(-20, 30), media("V1.a")->trackRange());
    project->undo();
    EXPECT_EQ("V1: aaa", strip());
}

TEST_F(MoveCmdTest, ByNothingIsAnEditAllTheSame)
{
    given("V1: aaa");
    EXPECT_TRUE(edits(move("V1.a", 0), "V1: aaa"));
}

// Without length it collides with nothing, yet it would take the neighbour's place in the track.
TEST_F(MoveCmdTest, AStillWithoutLengthMayNotTakeAnOccupiedStart)
{
    given("V1: sss.aa");
    project->execute(trimEnd("V1.s", 3));
    boost::shared_ptr<Command> const command = move("V1.s", +4);
    EXPECT_TRUE(refuses<CollisionException>(command));
    auto const thrown = thrownBy<CollisionException>([&] { project->execute(command); });
    EXPECT_EQ(CollisionException::MediaList{media("V1.a")}, *thrown.medias());
}

TEST_F(MoveCmdTest, ALinkedStillWithoutLengthMayNotTakeAnOccupiedStartEither)
{
    given("V1: sss / V2: sss.aa");
    project->execute(trimEnd("V1.s", 3));
    EXPECT_TRUE(refuses<CollisionException>(move("V1.s", +4)));
}

TEST_F(MoveCmdTest, AMoveThereAndBackCombinesIntoOneStep)
{
    given("V1: ..aaa");
    project->execute(move("V1.a", +1));
    project->execute(move("V1.a", -1));
    project->combineLastCommands();
    EXPECT_EQ("V1: ..aaa", strip());
    project->undo();
    EXPECT_EQ("V1: ..aaa", strip());
    EXPECT_FALSE(project->commandState().undoTop());
}

TEST_F(MoveCmdTest, CombinedMovesAreUndoneAndRedoneByTheSum)
{
    given("V1: aaa");
    project->execute(move("V1.a", +2));
    project->execute(move("V1.a", +3));
    project->combineLastCommands();
    project->undo();
    EXPECT_EQ("V1: aaa", strip());
    project->redo();
    EXPECT_EQ("V1: .....aaa", strip());
}

TEST_F(MoveCmdTest, CombiningFivesOfOppositeSignsLeavesAMoveByNothing)
{
    given("V1: aaa");
    boost::shared_ptr<MoveCmd> const first = MoveCmd::create(track("V1"), media("V1.a"), 5);
    boost::shared_ptr<Command> const sum =
        first->combine(MoveCmd::create(track("V1"), media("V1.a"), -5));
    ASSERT_TRUE(boost::dynamic_pointer_cast<MoveCmd>(sum));
    EXPECT_NE(std::string::npos, xmlOf(*sum).find("offset=\"0\""));
}

TEST_F(MoveCmdTest, MovesOfTwoMediasCombineIntoAPair)
{
    given("V1: aaa...bb");
    boost::shared_ptr<Command> const both = move("V1.a", 1)->combine(move("V1.b", 2));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

TEST_F(MoveCmdTest, MovesOfOneMediaNamedOnTwoTracksCombineIntoAPair)
{
    given("V1: aaa / V2: bbb");
    boost::shared_ptr<Command> const both =
        move("V1.a", 1)->combine(MoveCmd::create(track("V2"), media("V1.a"), 10));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

TEST_F(MoveCmdTest, AMoveAndATrimCombineIntoAPair)
{
    given("V1: aaa");
    boost::shared_ptr<Command> const both = move("V1.a", 1)->combine(trimEnd("V1.a", 1));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

TEST_F(MoveCmdTest, ACloneMovesTheSame)
{
    given("V1: aaa");
    boost::shared_ptr<MoveCmd> const command = MoveCmd::create(track("V1"), media("V1.a"), 20);
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(command->clone()), "V1: ..aaa"));
}

TEST_F(MoveCmdTest, PrintsWhereTrackAndMediaLieAndTheOffset)
{
    given("V1: aaa");
    EXPECT_EQ(emptyElement("MoveCmd", addressAttribute("track", track("V1")) + " " +
                                          addressAttribute("media", media("V1.a")) +
                                          " offset=\"-20\""),
              xmlOf(*move("V1.a", -2)));
}

}  // namespace test
}  // namespace tarn
