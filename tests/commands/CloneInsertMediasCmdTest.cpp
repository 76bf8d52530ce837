#include "commands/CloneInsertMediasCmd.h"

#include "exceptions/CollisionException.h"
#include "exceptions/TarnMediaLibException.h"
#include "support/CommandXml.h"
#include "support/ModelTest.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

namespace tarn {
namespace test {
namespace {

class CloneInsertMediasCmdTest : public ModelTest
{
protected:
    /// Medias by name, each to the track it is on.
    boost::shared_ptr<CloneInsertMediasCmd> insertionAt(long long time,
                                                        std::vector<std::string> const& names) const
    {
        boost::shared_ptr<CloneInsertMediasCmd> const command = CloneInsertMediasCmd::create(time);
        for (std::string const& name : names)
            command->addMapping(track(name.substr(0, 2)), media(name));
        return command;
    }
};

TEST_F(CloneInsertMediasCmdTest, MakesRoomAndPutsTheCloneThere)
{
    // b ends 40 past the time.
    given("V1: aabbbb");
    EXPECT_TRUE(edits(insertionAt(20, {"V1.b"}), "V1: aaccccbbbb"));
}

TEST_F(CloneInsertMediasCmdTest, RoomIsMadeOnTheTracksMappedToOnly)
{
    given("V1: aabb / V2: ..cc");
    EXPECT_TRUE(edits(insertionAt(20, {"V1.b"}), "V1: aaddbb / V2: ..cc"));
}

TEST_F(CloneInsertMediasCmdTest, MediasThatEndBeforeTheTimeGetNoRoom)
{
    given("V1: aa...b");
    EXPECT_TRUE(edits(insertionAt(30, {"V1.a"}), "V1: aa.ccb"));
}

TEST_F(CloneInsertMediasCmdTest, WithoutRoomATakenPlaceIsRefused)
{
    given("V1: aa..bb");
    EXPECT_TRUE(refuses<CollisionException>(insertionAt(40, {"V1.a"})));
}

TEST_F(CloneInsertMediasCmdTest, AnOriginalThatTheRippleCutIsClonedAsItIsThen)
{
    // a reaches 20 past the time. Its cut leaves 20 of it, which is what is cloned.
    given("V1: aaaa");
    EXPECT_TRUE(edits(insertionAt(20, {"V1.a"}), "V1: aabbcc"));
    EXPECT_EQ(Range<double>(500, 20), track("V1")->mediaAtTime(30).second->mediaRange());
    EXPECT_EQ(Range<double>(520, 20), track("V1")->mediaAtTime(50).second->mediaRange());
}

TEST_F(CloneInsertMediasCmdTest, DistancesAreThoseAfterTheRipple)
{
    // Room for 60 - 20 = 40. Then a lies at 0 and b at 80, so their clones at 20 and 100.
    given("V1: aa..bb");
    EXPECT_TRUE(edits(insertionAt(20, {"V1.a", "V1.b"}), "V1: aacc....bbdd"));
}

TEST_F(CloneInsertMediasCmdTest, ALinkedPairOnTwoTracksMovesAsideOnce)
{
    given("A1: aabb / V1: aabb");
    EXPECT_TRUE(edits(insertionAt(20, {"A1.b", "V1.b"}), "A1: aaccbb / V1: aaddbb"));
    EXPECT_EQ(Range<long long>(40, 20), media("A1.b")->trackRange());
    EXPECT_EQ(Range<long long>(40, 20), media("V1.b")->trackRange());
}

TEST_F(CloneInsertMediasCmdTest, NeedsAMapping)
{
    given("V1: aabb");
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        insertionAt(20, {}), "can't perform a splitting ripple move without tracks"));
}

TEST_F(CloneInsertMediasCmdTest, UndoAndRedoGiveBackTheSameClones)
{
    given("V1: aabb");
    boost::shared_ptr<CloneInsertMediasCmd> const command = insertionAt(20, {"V1.b"});
    project->execute(command);
    boost::shared_ptr<Media> const clone = track("V1")->mediaAtTime(30).second;
    project->undo();
    project->redo();
    EXPECT_EQ(clone, track("V1")->mediaAtTime(30).second);
    EXPECT_EQ(MediaList{clone}, command->clones());
}

TEST_F(CloneInsertMediasCmdTest, IsWrittenByItsNameAlone)
{
    given("V1: aa");
    EXPECT_EQ(emptyElement("CloneInsertMediasCmd", ""), xmlOf(*insertionAt(10, {"V1.a"})));
}

TEST_F(CloneInsertMediasCmdTest, ACloneHasRunNothing)
{
    given("V1: aabb");
    boost::shared_ptr<CloneInsertMediasCmd> const command = insertionAt(20, {"V1.b"});
    project->execute(command);
    project->undo();
    boost::shared_ptr<CloneInsertMediasCmd> const copy(command->clone());
    EXPECT_EQ(0u, copy->numUndoCommands());
    EXPECT_TRUE(edits(copy, "V1: aaccbb"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
