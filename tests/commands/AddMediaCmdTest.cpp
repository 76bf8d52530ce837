#include "commands/AddMediaCmd.h"

#include "support/CommandXml.h"
#include "support/ModelTest.h"
#include "support/OneOfEachKind.h"
#include "support/Thrown.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/Source.h"
#include "commands/CommandHistory.h"
#include "exceptions/CollisionException.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/TypeException.h"
#include "exceptions/ValueException.h"
#include "timeline/AMFile.h"
#include "timeline/Media.h"
#include "timeline/Track.h"
#include "timeline/VMFile.h"

namespace tarn {
namespace test {

using AddMediaCmdTest = ModelTest;

TEST_F(AddMediaCmdTest, PutsAMediaWhereATrackIsFree)
{
    given("V1: aaa");
    EXPECT_TRUE(edits(add("V1", freshVideo('b', 3), 4), "V1: aaa.bbb"));
}

TEST_F(AddMediaCmdTest, TouchingBothNeighboursIsNoCollision)
{
    given("V1: aaa...cc");
    EXPECT_TRUE(edits(add("V1", freshVideo('b', 3), 3), "V1: aaabbbcc"));
}

TEST_F(AddMediaCmdTest, OverlapByOneEditUnitIsRefused)
{
    given("V1: aaa...cc");
    boost::shared_ptr<Media> const fresh = freshVideo('b', 3);
    EXPECT_TRUE(refuses<CollisionException>(AddMediaCmd::create(track("V1"), fresh, 29)));
    EXPECT_TRUE(refuses<CollisionException>(AddMediaCmd::create(track("V1"), fresh, 31)));
}

TEST_F(AddMediaCmdTest, TheRefusalTellsTheMediasInTheWay)
{
    given("V1: aaa...cc");
    boost::shared_ptr<Command> const command = add("V1", freshVideo('b', 5), 2);
    auto const thrown = thrownBy<CollisionException>([&] { project->execute(command); });
    CollisionException::MediaList const inTheWay{media("V1.a"), media("V1.c")};
    EXPECT_EQ(inTheWay, *thrown.medias());
}

TEST_F(AddMediaCmdTest, UndoGivesBackTheStartFromBeforeTheAdd)
{
    given("V1: aaa");
    boost::shared_ptr<Media> const fresh = freshVideo('b', 3);
    fresh->setTrackStart(7);
    project->execute(add("V1", fresh, 4));
    EXPECT_EQ(Range<long long>(40, 30), fresh->trackRange());
    project->undo();
    EXPECT_EQ(Range<long long>(7, 30), fresh->trackRange());
    EXPECT_TRUE(fresh->parentTrack().expired());
}

TEST_F(AddMediaCmdTest, RedoNotesTheStartAnew)
{
    given("V1: aaa");
    boost::shared_ptr<Media> const fresh = freshVideo('b', 3);
    project->execute(add("V1", fresh, 4));
    project->undo();
    fresh->setTrackStart(11);
    project->redo();
    EXPECT_EQ(40, fresh->trackRange().start);
    project->undo();
    EXPECT_EQ(11, fresh->trackRange().start);
}

TEST_F(AddMediaCmdTest, UndoLeavesWhatIsLinkedOnItsTrack)
{
    given("A1: aaa");
    boost::shared_ptr<Media> const fresh = freshVideo('a', 3);
    fresh->link(media("A1.a"));
    project->execute(add("V1", fresh, 0));
    project->undo();
    EXPECT_EQ("A1: aaa", strip());
}

TEST_F(AddMediaCmdTest, TakesAStartBelowZero)
{
    given("V1: ...aaa");
    boost::shared_ptr<Media> const fresh = freshVideo('b', 3);
    EXPECT_TRUE(project->execute(add("V1", fresh, -2)));
    EXPECT_EQ(Range<long long>(-20, 30), fresh->trackRange());
}

TEST_F(AddMediaCmdTest, AMediaOfAnotherProjectsSourceIsRefused)
{
    given("V1: aaa");
    boost::shared_ptr<MediaFileStats> const stats(MediaFileStats::create());
    stats->setFilename("fake:foreign");
    stats->addTrackStats(source('a')->mediaFileStats()->trackStats(0));
    boost::shared_ptr<Source> const foreign = Source::create(project, lock(), stats);
    boost::shared_ptr<Media> const stranger(
        new VMFile(Range<long long>(0, 30), lock(), foreign, 0));
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        add("V1", stranger, 3),
        "attempting to add a media whose source doesn't belong to the project"));
    EXPECT_TRUE(stranger->parentTrack().expired());
}

TEST_F(AddMediaCmdTest, ASoundIsRefusedByAVisualTrack)
{
    given("V1: aaa");
    EXPECT_TRUE(refuses<TypeException>(add("V1", freshSound('b', 3), 3)));
}

TEST_F(AddMediaCmdTest, APictureIsRefusedByAnAudioTrack)
{
    given("A1: aaa");
    EXPECT_TRUE(refuses<TypeException>(add("A1", freshVideo('b', 3), 3)));
}

// What lies on a track must be cloned before it is added: the track refuses it only when the entry
// is made already.
TEST_F(AddMediaCmdTest, AParentedMediaIsRefusedButLeavesAStrayEntry)
{
    given("V1: aaa / V2: b");
    boost::shared_ptr<Command> const command = add("V2", media("V1.a"), 5);
    auto const thrown =
        thrownBy<ValueException<boost::shared_ptr<Media>>>([&] { project->execute(command); });
    EXPECT_STREQ("trying to edit parented media like a parentless media", thrown.what());
    EXPECT_EQ(media("V1.a"), thrown.value());
    EXPECT_EQ(Range<long long>(0, 30), media("V1.a")->trackRange());
    EXPECT_EQ(track("V1"), media("V1.a")->parentTrack().lock());
    EXPECT_EQ(2u, track("V2")->numMedias());
    EXPECT_FALSE(project->commandState().undoTop());
}

TEST_F(AddMediaCmdTest, AStillWithoutLengthReplacesWhatStartsThereAndUndoLeavesNeither)
{
    given("V1: aaa");
    boost::shared_ptr<Media> const flat = freshStill('s', 0);
    project->execute(add("V1", flat, 0));
    EXPECT_TRUE(track("V1")->hasMedia(flat));
    EXPECT_EQ(1u, track("V1")->numMedias());
    project->undo();
    EXPECT_EQ(0u, track("V1")->numMedias());
}

TEST_F(AddMediaCmdTest, AnAddOntoTheStartOfAStillWithoutLengthReplacesIt)
{
    given("V1: sss");
    project->execute(trimEnd("V1.s", 3));
    boost::shared_ptr<Media> const fresh = freshVideo('b', 3);
    project->execute(add("V1", fresh, 0));
    EXPECT_TRUE(track("V1")->hasMedia(fresh));
    project->undo();
    EXPECT_EQ(0u, track("V1")->numMedias());
}

TEST_F(AddMediaCmdTest, AClearedRedoListLeavesADeadLinkThatRefusesEveryEditOfThePartner)
{
    given("A1: aaa...bb");
    {
        boost::shared_ptr<Media> const fresh = freshVideo('a', 3);
        fresh->link(media("A1.a"));
        project->execute(add("V1", fresh, 0));
    }
    project->undo();
    project->execute(move("A1.b", 1));  // drops the redo list, and with it the picture
    using DeadLink = DanglingWeakPtrException<Media const>;
    EXPECT_THROW(project->execute(move("A1.a", 1)), DeadLink);
    EXPECT_THROW(project->execute(trimStart("A1.a", 1)), DeadLink);
    EXPECT_THROW(project->execute(trimEnd("A1.a", 1)), DeadLink);
    EXPECT_THROW(project->execute(split("A1", 1)), DeadLink);
    EXPECT_THROW(project->execute(remove("A1.a")), DeadLink);
    EXPECT_EQ("A1: aaa....bb", strip());
}

TEST_F(AddMediaCmdTest, AClonePutsTheSameMediaInTheSamePlace)
{
    given("V1: aaa");
    boost::shared_ptr<AddMediaCmd> const command =
        AddMediaCmd::create(track("V1"), freshVideo('b', 3), 30);
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(command->clone()), "V1: aaabbb"));
}

TEST_F(AddMediaCmdTest, PrintsTrackMediaAndTime)
{
    given("V1: aaa");
    boost::shared_ptr<Media> const fresh = freshVideo('b', 3);
    EXPECT_EQ(emptyElement("AddMediaCmd", identAttribute("track", track("V1")) + " " +
                                              identAttribute("media", fresh) + " time=\"30\""),
              xmlOf(*AddMediaCmd::create(track("V1"), fresh, 30)));
}

TEST_F(AddMediaCmdTest, PrintsZeroForWhatIsEmpty)
{
    EXPECT_EQ(emptyElement("AddMediaCmd", "track=\"0\" media=\"0\" time=\"-5\""),
              xmlOf(*AddMediaCmd::create(nullptr, nullptr, -5)));
}

}  // namespace test
}  // namespace tarn
