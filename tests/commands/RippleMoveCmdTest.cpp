#include "commands/RippleMoveCmd.h"

#include "exceptions/CollisionException.h"
#include "exceptions/LinkException.h"
#include "support/ModelTest.h"
#include "support/WatchingHandler.h"
#include "support/Xml.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <gmock/gmock.h>

#include <memory>

namespace tarn {
namespace test {
namespace {

class RippleMoveCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<RippleMoveCmd> ripple(std::string const& name, long long offset) const
    {
        return RippleMoveCmd::create(track(name.substr(0, 2)), media(name), offset);
    }
};

TEST_F(RippleMoveCmdTest, ShiftsTheMediaAndAllThatFollow)
{
    given("V1: aaabb..cc");
    EXPECT_TRUE(edits(ripple("V1.b", 30), "V1: aaa...bb..cc"));
}

TEST_F(RippleMoveCmdTest, ShiftsToTheLeft)
{
    given("V1: aaa...bb..cc");
    EXPECT_TRUE(edits(ripple("V1.b", -30), "V1: aaabb..cc"));
}

TEST_F(RippleMoveCmdTest, ShiftsTheWholeTrackFromItsFirstMedia)
{
    given("V1: aabbc / V2: d");
    EXPECT_TRUE(edits(ripple("V1.a", 10), "V1: .aabbc / V2: d"));
}

TEST_F(RippleMoveCmdTest, ShiftsALongRowEitherWay)
{
    given("V1: .abcdefghijklmnopqrstuvwx");
    EXPECT_TRUE(edits(ripple("V1.a", 20), "V1: ...abcdefghijklmnopqrstuvwx"));
    EXPECT_TRUE(edits(ripple("V1.a", -30), "V1: abcdefghijklmnopqrstuvwx"));
}

TEST_F(RippleMoveCmdTest, MovesTheLastFirstToTheRight)
{
    given("V1: a.bbbcc.d");
    EXPECT_EQ("move@80 move@50 move@20 ", primitivesOf(*project, ripple("V1.b", 10)));
    EXPECT_EQ("V1: a..bbbcc.d", strip());
}

TEST_F(RippleMoveCmdTest, MovesTheFirstFirstToTheLeft)
{
    given("V1: a.bbbcc.d");
    EXPECT_EQ("move@20 move@50 move@80 ", primitivesOf(*project, ripple("V1.b", -10)));
    EXPECT_EQ("V1: abbbcc.d", strip());
}

TEST_F(RippleMoveCmdTest, AnOffsetOfNothingMovesTheFirstFirstAndNowhere)
{
    given("V1: a.bbcc");
    EXPECT_EQ("move@20 move@40 ", primitivesOf(*project, ripple("V1.b", 0)));
    EXPECT_EQ("V1: a.bbcc", strip());
}

TEST_F(RippleMoveCmdTest, AnOffsetOfNothingIsAnEditToUndo)
{
    given("V1: a.bbcc");
    EXPECT_TRUE(edits(ripple("V1.b", 0), "V1: a.bbcc"));
}

TEST_F(RippleMoveCmdTest, TakesLinkedMediasAlong)
{
    given("A1: ...bb / V1: aaabbc");
    EXPECT_TRUE(edits(ripple("V1.b", 20), "A1: .....bb / V1: aaa..bbc"));
}

TEST_F(RippleMoveCmdTest, LeavesOtherTracksWhereTheyAre)
{
    given("A1: ccccccc / V1: aabb");
    EXPECT_TRUE(edits(ripple("V1.b", 20), "A1: ccccccc / V1: aa..bb"));
}

TEST_F(RippleMoveCmdTest, AMediaOfAnotherTrackMovesNothing)
{
    given("V1: aabb / V2: cc");
    boost::shared_ptr<RippleMoveCmd> const command =
        RippleMoveCmd::create(track("V1"), media("V2.c"), 10);
    EXPECT_TRUE(edits(command, "V1: aabb / V2: cc"));
    EXPECT_EQ(0u, command->numUndoCommands());
}

TEST_F(RippleMoveCmdTest, RunsOneCommandAMedia)
{
    given("V1: abcd");
    boost::shared_ptr<RippleMoveCmd> const command = ripple("V1.b", 10);
    EXPECT_TRUE(project->execute(command));
    EXPECT_EQ(3u, command->numUndoCommands());
}

TEST_F(RippleMoveCmdTest, IsRefusedByWhatDoesNotMove)
{
    given("V1: aaa.bb.cc");
    EXPECT_TRUE(refuses<CollisionException>(ripple("V1.b", -20)));
}

TEST_F(RippleMoveCmdTest, IsTakenBackWhenALaterMoveIsRefused)
{
    // c goes to 80 first; then the sound of b would lie at 50 to 70, over d.
    given("A1: ...bb.d / V1: aaabb.c");
    EXPECT_TRUE(refuses<CollisionException>(ripple("V1.b", 20)));
}

TEST_F(RippleMoveCmdTest, IsTakenBackWhenAGroupHasDriftedApart)
{
    given("A1: bbb / V1: ...aa.c");
    media("A1.b")->link(media("V1.a"));
    EXPECT_TRUE(refuses<LinkException>(ripple("V1.a", 20)));
}

TEST_F(RippleMoveCmdTest, RedoMovesWhatWasMovedAndNothingElse)
{
    given("V1: aaabb");
    project->execute(ripple("V1.b", 30));
    project->undo();
    track("V1")->addMedia(freshVideo('a', 1), 90);
    project->redo();
    EXPECT_EQ("V1: aaa...bb.c", strip());
}

TEST_F(RippleMoveCmdTest, IsWrittenWithTrackMediaAndOffset)
{
    given("V1: aabb");
    boost::shared_ptr<RippleMoveCmd> const command = ripple("V1.b", 30);
    std::string const xml = xmlOf(*command);
    EXPECT_THAT(xml, testing::StartsWith("<RippleMoveCmd "));
    EXPECT_THAT(xml,
                testing::HasSubstr("=\"" + std::to_string(track("V1")->xmlIdent()) + "\" media=\"" +
                                   std::to_string(media("V1.b")->xmlIdent()) + "\" offset=\"30\""));
}

TEST_F(RippleMoveCmdTest, ACloneHasRunNothing)
{
    given("V1: aabb");
    boost::shared_ptr<RippleMoveCmd> const command = ripple("V1.b", 10);
    project->execute(command);
    boost::shared_ptr<RippleMoveCmd> const copy(command->clone());
    EXPECT_EQ(0u, copy->numUndoCommands());
    EXPECT_TRUE(edits(copy, "V1: aa..bb"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
