#include "project/InternalProject.h"

#include "support/LoadingTest.h"
#include "support/ScriptedCmd.h"
#include "support/Thrown.h"
#include "support/Xml.h"

#include "clipbin/ClipBoard.h"
#include "commands/CommandHistory.h"
#include "commands/CommandObserver.h"
#include "exceptions/TypeException.h"
#include "exceptions/ValueException.h"

namespace tarn {
namespace test {

namespace {

class NoObserver : public CommandObserver
{
public:
    void onPreCommand() override {}
};

class InternalProjectTest : public LoadingTest
{
protected:
    boost::shared_ptr<InternalProject> cloned() const
    {
        return boost::shared_ptr<InternalProject>(project->clone());
    }
    /// A mixer that is not the timeline's.
    boost::shared_ptr<VisualMixer> foreignMixer() const
    {
        return boost::shared_ptr<VisualMixer>(new VisualMixer(640, 480, lock()));
    }
    template <class Action>
    static std::string refusal(Action const& action)
    {
        return thrownBy<TarnMediaLibException>(action).what();
    }
};

}  // namespace

TEST_F(InternalProjectTest, DescribesItselfByNothing)
{
    EXPECT_EQ("", project->description());
}

TEST_F(InternalProjectTest, IsTheHandlerOfItsOwnPrimitives)
{
    given("A1: aa / V1: aa");
    EXPECT_EQ(project->timeline()->visualMixer(), project->visualMixer());
    EXPECT_EQ(project->timeline()->audioMixer(), project->audioMixer());
    EXPECT_TRUE(project->edgeModCommandHandler());
    EXPECT_EQ(project->edgeModCommandHandler(), project->edgeModCommandHandler());
}

TEST_F(InternalProjectTest, PrimitivesRecordNothing)
{
    given("V1: aaa");
    project->move(track("V1"), media("V1.a"), 20);
    EXPECT_EQ("V1: ..aaa", strip());
    EXPECT_EQ(0u, project->commandHistory()->numUndoCommands());
}

TEST_F(InternalProjectTest, ARemovalTellsTheMediaAndItsLinksWithTheirTracks)
{
    given("A1: aaa / A2: aaa / V1: aaa");
    boost::shared_ptr<RemovedMedias> const removed =
        project->removeMedia(track("A2"), media("A2.a"));
    ASSERT_EQ(3u, removed->size());
    EXPECT_EQ(media("A2.a"), removed->front().first);
    EXPECT_EQ(track("A2"), removed->front().second);
    EXPECT_EQ("", strip());
}

TEST_F(InternalProjectTest, LinkedMediasAreRemovedInTheOrderOfTheirLinks)
{
    given("V1: aaa / V2: bbb / V3: ccc");
    media("V1.a")->link(media("V3.c"));
    media("V1.a")->link(media("V2.b"));
    boost::shared_ptr<RemovedMedias> const removed =
        project->removeMedia(track("V1"), media("V1.a"));
    RemovedMedias const expected{
        {media("V1.a"), track("V1")}, {media("V3.c"), track("V3")}, {media("V2.b"), track("V2")}};
    EXPECT_EQ(expected, *removed);
}

TEST_F(InternalProjectTest, ARemovalToAStartTakesOneMediaAndGivesItThatStart)
{
    given("A1: aaa / V1: aaa");
    project->removeMedia(track("V1"), media("V1.a"), 7);
    EXPECT_EQ("A1: aaa", strip());
    EXPECT_EQ(Range<long long>(7, 30), media("V1.a")->trackRange());
}

TEST_F(InternalProjectTest, ARemovalToAStartRefusesAMediaThatKeepsItsParent)
{
    given("V1: aaa / V2: bbb");
    auto const thrown = thrownBy<ValueException<boost::shared_ptr<Media>>>(
        [&] { project->removeMedia(track("V2"), media("V1.a"), 7); });
    EXPECT_STREQ("trying to edit parented media like a parentless media", thrown.what());
    EXPECT_EQ(media("V1.a"), thrown.value());
    EXPECT_EQ(Range<long long>(0, 30), media("V1.a")->trackRange());
}

TEST_F(InternalProjectTest, ARemovalToAStartRefusesWhatDoesNotStartOnTheTrack)
{
    given("V1: .aaa / V2: bbb");
    auto const thrown = thrownBy<ValueException<boost::shared_ptr<Media>>>(
        [&] { project->removeMedia(track("V2"), media("V1.a"), 7); });
    EXPECT_STREQ("can't find media to remove", thrown.what());
}

TEST_F(InternalProjectTest, AStretchTellsTheScalarThatWasApplied)
{
    given("V1: aaa");
    // 30 * 1.51 = 45.3, rounded 45; 45 / 30 = 1.5.
    EXPECT_EQ(1.5, project->stretch(track("V1"), media("V1.a"), 1.51));
}

TEST_F(InternalProjectTest, ALinkGoesOneWay)
{
    given("V1: aaa / V2: aaa / V3: bbb");
    project->removeLink(media("V1.a"), media("V2.a"));
    EXPECT_FALSE(media("V1.a")->isLinkedWith(media("V2.a")));
    EXPECT_TRUE(media("V2.a")->isLinkedWith(media("V1.a")));
    project->addLink(media("V1.a"), media("V3.b"));
    EXPECT_TRUE(media("V1.a")->isLinkedWith(media("V3.b")));
    EXPECT_FALSE(media("V3.b")->isLinkedWith(media("V1.a")));
}

TEST_F(InternalProjectTest, ANewTrackIsOfTheMixersKind)
{
    given("V1: a");
    EXPECT_TRUE(boost::dynamic_pointer_cast<VisualTrack>(project->newTrack(visualMixer(), -1)));
    EXPECT_TRUE(boost::dynamic_pointer_cast<AudioTrack>(project->newTrack(audioMixer(), -1)));
    EXPECT_EQ(2u, visualMixer()->numTracks());
    EXPECT_EQ(2u, audioMixer()->numTracks());
}

TEST_F(InternalProjectTest, ATrackIsRemovedAndAddedWithItsIndex)
{
    given("V1: a / V2: b");
    boost::shared_ptr<Track> const first = track("V1");
    std::pair<boost::shared_ptr<Track>, int> const removed =
        project->removeTrack(visualMixer(), first);
    EXPECT_EQ(first, removed.first);
    EXPECT_EQ(0, removed.second);
    EXPECT_EQ(first, project->addTrack(visualMixer(), first, 1));
    EXPECT_EQ(first, track("V2"));
    project->swapTrackOrder(visualMixer(), track("V1"), track("V2"));
    EXPECT_EQ(first, track("V1"));
}

TEST_F(InternalProjectTest, TracksOfAForeignOrEmptyMixerAreRefused)
{
    given("V1: a / V2: b");
    std::string const message = "mixer doesn't belong to project";
    boost::shared_ptr<VisualMixer> const foreign = foreignMixer();
    boost::shared_ptr<Track> const first = track("V1");
    EXPECT_EQ(message, refusal([&] { project->newTrack(foreign, -1); }));
    EXPECT_EQ(message, refusal([&] { project->addTrack(foreign, first, -1); }));
    EXPECT_EQ(message, refusal([&] { project->removeTrack(foreign, first); }));
    EXPECT_EQ(message, refusal([&] { project->swapTrackOrder(foreign, first, track("V2")); }));
    EXPECT_EQ(message, refusal([&] { project->addTrack(nullptr, first, -1); }));
    EXPECT_EQ(message, refusal([&] { project->removeTrack(nullptr, first); }));
    EXPECT_EQ("V1: a / V2: b", strip());
}

TEST_F(InternalProjectTest, ANewImageTrackIsAlwaysRefused)
{
    given("V1: a");
    EXPECT_THROW(project->newImageTrack(-1), TypeException);
    EXPECT_EQ(1u, visualMixer()->numTracks());
}

TEST_F(InternalProjectTest, ASourceIsUnloadedOnlyOffTheTimeline)
{
    given("V1: aaa");
    auto const thrown = thrownBy<ValueException<boost::shared_ptr<Source const>>>(
        [&] { project->unloadSource(source('a')); });
    EXPECT_STREQ("unable to remove a source that still has instances on the timeline.",
                 thrown.what());
    project->removeMedia(track("V1"), media("V1.a"));
    project->unloadSource(source('a'));
    EXPECT_EQ(noSources(), bin());
}

TEST_F(InternalProjectTest, ACloneHasATimelineOfItsOwnThatLooksTheSame)
{
    given("A1: a / V1: aaa");
    boost::shared_ptr<InternalProject> const clone = cloned();
    boost::shared_ptr<Timeline> const copy = clone->timeline();
    ASSERT_TRUE(copy);
    EXPECT_NE(timeline(), copy);
    boost::shared_ptr<Track> const copiedTrack = copy->visualMixer()->trackAtIndex(0);
    ASSERT_EQ(1u, copiedTrack->numMedias());
    EXPECT_EQ(Range<long long>(0, 30), copiedTrack->mediaBegin()->second->trackRange());
    EXPECT_NE(media("V1.a"), copiedTrack->mediaBegin()->second);
}

TEST_F(InternalProjectTest, ACloneHasTheEditRateButNoBinNoClipboardAndNoLock)
{
    boost::shared_ptr<InternalProject> const clone = cloned();
    EXPECT_EQ(project->editRate(), clone->editRate());
    EXPECT_FALSE(clone->sourceBin());
    EXPECT_FALSE(clone->clipBoard());
    EXPECT_STREQ("a cloned project has no lock",
                 thrownBy<TarnMediaLibException>([&] { clone->mutex(); }).what());
}

TEST_F(InternalProjectTest, AClonesPrimitivesMissItsBinAndItsClipboard)
{
    boost::shared_ptr<InternalProject> const clone = cloned();
    CommandHandler& handler = *clone;
    EXPECT_STREQ("a cloned project has no source bin",
                 thrownBy<TarnMediaLibException>([&] { handler.loadSource("fake:a"); }).what());
    EXPECT_STREQ("a cloned project has no clipboard",
                 thrownBy<TarnMediaLibException>([&] { handler.addClipping(nullptr); }).what());
}

TEST_F(InternalProjectTest, ACloneKnowsNoSourceThatAMediaCouldBelongTo)
{
    given("V1: a");
    boost::shared_ptr<InternalProject> const clone = cloned();
    boost::shared_ptr<Track> const copied = clone->timeline()->visualMixer()->trackAtIndex(0);
    boost::shared_ptr<Media> const fresh = freshVideo('a', 2);
    EXPECT_EQ("attempting to add a media whose source doesn't belong to the project",
              refusal([&] { clone->addMedia(copied, fresh, 50); }));
    EXPECT_EQ(1u, copied->numMedias());
}

TEST_F(InternalProjectTest, AClonePrintsItsTimelineWithoutABin)
{
    EXPECT_EQ("<Project id=\"#\" editRate=\"30/1\" version=\"1.0\" >\n"
              " <Author></Author>\n"
              " <Comment></Comment>\n"
              " <System></System>\n"
              " <Timeline id=\"#\"  >\n"
              " </Timeline>\n"
              "</Project>\n",
              xmlOf(*cloned()));
}

TEST_F(InternalProjectTest, AClonesHistoryHasACopyOfEachCommand)
{
    given("V1: aaa");
    project->execute(move("V1.a", 1));
    project->execute(move("V1.a", 1));
    project->undo();
    boost::shared_ptr<InternalProject> const clone = cloned();
    ASSERT_TRUE(clone->commandHistory());
    EXPECT_NE(project->commandHistory(), clone->commandHistory());
    EXPECT_EQ(1u, clone->commandHistory()->numUndoCommands());
    EXPECT_EQ(1u, clone->commandHistory()->numRedoCommands());
    EXPECT_EQ(2u, project->commandHistory()->numUndoCommands() +
                      project->commandHistory()->numRedoCommands());
}

TEST_F(InternalProjectTest, AClonesHistoryRunsThroughTheClonesOwnPrimitives)
{
    std::string log;
    boost::shared_ptr<InternalProject> const clone = cloned();
    boost::shared_ptr<ScriptedCmd> const command = ScriptedCmd::create("a", log);
    clone->commandHistory()->execute(command);
    EXPECT_EQ(static_cast<CommandHandler*>(clone.get()), command->handler());
    EXPECT_TRUE(clone->edgeModCommandHandler());
    EXPECT_NE(project->edgeModCommandHandler(), clone->edgeModCommandHandler());
}

TEST_F(InternalProjectTest, UndoOfAClonedCompositePopsItWithoutEffect)
{
    given("V1: aaa");
    project->execute(split("V1", 1));
    boost::shared_ptr<InternalProject> const clone = cloned();
    boost::shared_ptr<CommandHistory> const history = clone->commandHistory();
    history->undo();
    EXPECT_EQ(0u, history->numUndoCommands());
    EXPECT_EQ(1u, history->numRedoCommands());
    EXPECT_EQ("V1: abb", strip());
    EXPECT_EQ(2u, clone->timeline()->visualMixer()->trackAtIndex(0)->numMedias());
}

TEST_F(InternalProjectTest, ACloneHasNoCommandObserverAndNothingToCombine)
{
    NoObserver observer;
    project->attachCommandObserver(&observer);
    project->combineNextCommand();
    boost::shared_ptr<InternalProject> const clone = cloned();
    EXPECT_EQ("trying to detach a non observer",
              refusal([&] { clone->detachCommandObserver(&observer); }));
}

}  // namespace test
}  // namespace tarn
