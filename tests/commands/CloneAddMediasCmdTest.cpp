#include "commands/CloneAddMediasCmd.h"

#include "exceptions/CollisionException.h"
#include "exceptions/TypeException.h"
#include "support/CommandXml.h"
#include "support/ModelTest.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

namespace tarn {
namespace test {
namespace {

class CloneAddMediasCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<CloneAddMediasCmd> cloningTo(long long time) const
    {
        return CloneAddMediasCmd::create(time);
    }
};

TEST_F(CloneAddMediasCmdTest, PutsClonesOnTheTracksMappedToAtTheirDistance)
{
    given("A1: .bb / V1: aa");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(60);
    command->addMapping(track("V1"), media("V1.a"));
    command->addMapping(track("A1"), media("A1.b"));
    EXPECT_TRUE(edits(command, "A1: .bb....cc / V1: aa....dd"));
}

TEST_F(CloneAddMediasCmdTest, TheEarliestLandsOnTheTime)
{
    given("V1: ..........aa / V2: ...............bb");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(0);
    command->addMapping(track("V1"), media("V1.a"));
    command->addMapping(track("V2"), media("V2.b"));
    EXPECT_TRUE(edits(command, "V1: cc........aa / V2: .....dd........bb"));
}

TEST_F(CloneAddMediasCmdTest, MediasMayLandOnOtherTracks)
{
    given("V1: aa.bb / V2: .......cc");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(10);
    command->addMapping(track("V2"), media("V1.a"));
    command->addMapping(track("V2"), media("V1.b"));
    EXPECT_TRUE(edits(command, "V1: aa.bb / V2: .dd.ee.cc"));
}

TEST_F(CloneAddMediasCmdTest, MediasThatStartTogetherLandTogether)
{
    given("V1: .aa / V2: .bb");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(50);
    command->addMapping(track("V1"), media("V1.a"));
    command->addMapping(track("V2"), media("V2.b"));
    EXPECT_TRUE(edits(command, "V1: .aa..cc / V2: .bb..dd"));
}

TEST_F(CloneAddMediasCmdTest, WithoutMappingsItSucceedsAtNothing)
{
    given("V1: aa");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(60);
    EXPECT_TRUE(edits(command, "V1: aa"));
    EXPECT_EQ(0u, command->numUndoCommands());
}

TEST_F(CloneAddMediasCmdTest, AMediaMappedTwiceToATrackCountsOnce)
{
    given("V1: aa");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(30);
    command->addMapping(track("V1"), media("V1.a"));
    command->addMapping(track("V1"), media("V1.a"));
    EXPECT_TRUE(edits(command, "V1: aa.bb"));
}

TEST_F(CloneAddMediasCmdTest, AMediaMappedToTwoTracksHasTwoClones)
{
    given("V1: aa / V2: ........bb");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(30);
    command->addMapping(track("V1"), media("V1.a"));
    command->addMapping(track("V2"), media("V1.a"));
    EXPECT_TRUE(edits(command, "V1: aa.cc / V2: ...dd...bb"));
    EXPECT_EQ(1u, command->cloneMap().size());
    EXPECT_EQ(1u, command->clones().size());
}

TEST_F(CloneAddMediasCmdTest, ClonesAreNotLinked)
{
    given("A1: aa / V1: aa");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(40);
    command->addMapping(track("A1"), media("A1.a"));
    command->addMapping(track("V1"), media("V1.a"));
    EXPECT_TRUE(edits(command, "A1: aa..bb / V1: aa..cc"));
}

TEST_F(CloneAddMediasCmdTest, TellsTheCloneOfEachMedia)
{
    given("V1: aa");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(30);
    command->addMapping(track("V1"), media("V1.a"));
    EXPECT_TRUE(command->cloneMap().empty());
    EXPECT_TRUE(command->clones().empty());
    project->execute(command);
    boost::shared_ptr<Media> const clone = track("V1")->mediaAtTime(40).second;
    EXPECT_EQ(clone, command->cloneMap().at(media("V1.a")));
    EXPECT_EQ(MediaList{clone}, command->clones());
}

TEST_F(CloneAddMediasCmdTest, UndoAndRedoGiveBackTheSameClones)
{
    given("V1: aa");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(30);
    command->addMapping(track("V1"), media("V1.a"));
    project->execute(command);
    boost::shared_ptr<Media> const clone = track("V1")->mediaAtTime(40).second;
    project->undo();
    project->redo();
    EXPECT_EQ(clone, track("V1")->mediaAtTime(40).second);
    EXPECT_EQ(MediaList{clone}, command->clones());
}

TEST_F(CloneAddMediasCmdTest, ATakenPlaceIsRefused)
{
    given("V1: aa..bb / V2: cc");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(30);
    command->addMapping(track("V1"), media("V1.a"));
    command->addMapping(track("V2"), media("V2.c"));
    EXPECT_TRUE(refuses<CollisionException>(command));
}

TEST_F(CloneAddMediasCmdTest, SoundOnAVisualTrackIsRefused)
{
    given("A1: aa / V1: bb");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(30);
    command->addMapping(track("V1"), media("V1.b"));
    command->addMapping(track("V1"), media("A1.a"));
    EXPECT_TRUE(refuses<TypeException>(command));
}

// ---- How much is added ----

TEST_F(CloneAddMediasCmdTest, NothingMappedAddsNothing)
{
    EXPECT_EQ(0, cloningTo(60)->additionLength());
    EXPECT_EQ(60, cloningTo(60)->time());
}

TEST_F(CloneAddMediasCmdTest, TheAdditionIsWhatTheFurthestReachesPastTheTime)
{
    // a ends at 50, b at 70.
    given("V1: ..aaa.b");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(30);
    command->addMapping(track("V1"), media("V1.a"));
    EXPECT_EQ(20, command->additionLength());
    command->addMapping(track("V1"), media("V1.b"));
    EXPECT_EQ(40, command->additionLength());
}

TEST_F(CloneAddMediasCmdTest, MediasThatEndBeforeTheTimeAddNothing)
{
    given("V1: aaa");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(40);
    command->addMapping(track("V1"), media("V1.a"));
    EXPECT_EQ(0, command->additionLength());
}

// ---- Mappings ----

TEST_F(CloneAddMediasCmdTest, KnowsTheTrackOfAMedia)
{
    given("V1: aa / V2: bb");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(0);
    command->addMapping(track("V2"), media("V1.a"));
    EXPECT_EQ(track("V2"), command->mappedTrack(media("V1.a")));
    EXPECT_FALSE(command->mappedTrack(media("V2.b")));
}

TEST_F(CloneAddMediasCmdTest, AddsTheTracksMappedToToASet)
{
    given("V1: aa / V2: bb / V3: cc");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(0);
    command->addMapping(track("V2"), media("V1.a"));
    command->addMapping(track("V1"), media("V2.b"));
    std::set<boost::shared_ptr<Track const>> tracks{track("V3")};
    command->mappedTracks(&tracks);
    EXPECT_EQ((std::set<boost::shared_ptr<Track const>>{track("V1"), track("V2"), track("V3")}),
              tracks);
}

// ---- XML and copies ----

TEST_F(CloneAddMediasCmdTest, IsWrittenByItsNameAlone)
{
    EXPECT_EQ(emptyElement("CloneAddMediasCmd", ""), xmlOf(*cloningTo(10)));
}

TEST_F(CloneAddMediasCmdTest, ACloneHasTheMappingsAndHasRunNothing)
{
    given("V1: aa");
    boost::shared_ptr<CloneAddMediasCmd> const command = cloningTo(30);
    command->addMapping(track("V1"), media("V1.a"));
    project->execute(command);
    boost::shared_ptr<Media> const first = command->clones().front();
    project->undo();
    boost::shared_ptr<CloneAddMediasCmd> const copy(command->clone());
    EXPECT_EQ(0u, copy->numUndoCommands());
    EXPECT_TRUE(edits(copy, "V1: aa.bb"));
    EXPECT_NE(first, track("V1")->mediaAtTime(40).second);
    EXPECT_EQ(track("V1")->mediaAtTime(40).second, copy->cloneMap().at(media("V1.a")));
}

}  // namespace
}  // namespace test
}  // namespace tarn
