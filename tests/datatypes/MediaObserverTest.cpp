#include "datatypes/MediaObserver.h"

#include "commands/NewVisualTrackCmd.h"
#include "support/CountingObserver.h"
#include "support/ModelTest.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <functional>
#include <memory>

namespace tarn {
namespace test {
namespace {

class MediaObserverTest : public ModelTest
{
protected:
    ~MediaObserverTest() override { stopWatching(); }

    void watch()
    {
        m_watcher = std::make_unique<MediaObserver>(timeline());
        m_watcher->attach(&m_host);
    }
    void stopWatching() { m_watcher.reset(); }
    /// Whether the host hears of the change, however often.
    bool hears(std::function<void()> const& change)
    {
        int const before = m_host.calls();
        change();
        return m_host.calls() > before;
    }

    CountingObserver m_host;
    std::unique_ptr<MediaObserver> m_watcher;
};

TEST_F(MediaObserverTest, HearsOfTheTimeline)
{
    watch();
    EXPECT_TRUE(hears([&] { timeline()->notify(); }));
}

TEST_F(MediaObserverTest, HearsOfMixersAndTracksThatWereThere)
{
    given("A1: aa / V1: bb / V2: cc");
    watch();
    EXPECT_TRUE(hears([&] { visualMixer()->notify(); }));
    EXPECT_TRUE(hears([&] { audioMixer()->notify(); }));
    EXPECT_TRUE(hears([&] { track("V1")->notify(); }));
    EXPECT_TRUE(hears([&] { track("V2")->notify(); }));
    EXPECT_TRUE(hears([&] { track("A1")->notify(); }));
}

TEST_F(MediaObserverTest, HearsNothingWhileNothingChanges)
{
    given("A1: aa / V1: bb");
    watch();
    EXPECT_FALSE(hears([&] { timeline()->allMedias(); }));
}

TEST_F(MediaObserverTest, HearsOfAMediaThatComesOrGoes)
{
    given("V1: aa");
    watch();
    EXPECT_TRUE(hears([&] { project->execute(remove("V1.a")); }));
    EXPECT_TRUE(hears([&] { project->undo(); }));
}

TEST_F(MediaObserverTest, DoesNotHearOfMovesTrimsAndStretches)
{
    given("V1: aaaa");
    watch();
    EXPECT_FALSE(hears([&] { project->execute(move("V1.a", 1)); }));
    EXPECT_FALSE(hears([&] { project->execute(trimEnd("V1.a", 1)); }));
    EXPECT_FALSE(hears([&] { project->execute(trimStart("V1.a", 1)); }));
    EXPECT_FALSE(hears([&] { project->execute(stretch("V1.a", 2)); }));
}

TEST_F(MediaObserverTest, WatchesMixersThatComeLater)
{
    watch();
    EXPECT_TRUE(hears([&] { timeline()->newVisualMixer(640, 480); }));
    EXPECT_TRUE(hears([&] { timeline()->newAudioMixer(44100, 16, 2); }));
    EXPECT_TRUE(hears([&] { visualMixer()->notify(); }));
    EXPECT_TRUE(hears([&] { audioMixer()->notify(); }));
}

TEST_F(MediaObserverTest, WatchesTheTracksOfAMixerThatComesLater)
{
    watch();
    boost::shared_ptr<VisualMixer> const mixer(new VisualMixer(640, 480, lock()));
    boost::shared_ptr<VisualTrack> const picture = mixer->newTrack<VisualTrack>(-1);
    EXPECT_TRUE(hears([&] { timeline()->newVisualMixer(mixer); }));
    EXPECT_TRUE(hears([&] { picture->notify(); }));
}

TEST_F(MediaObserverTest, WatchesAMixerThatTakesThePlaceOfAnother)
{
    given("V1: aa");
    watch();
    timeline()->removeVisualMixer();
    timeline()->newVisualMixer(320, 240);
    EXPECT_TRUE(hears([&] { visualMixer()->notify(); }));
}

TEST_F(MediaObserverTest, WatchesTracksThatComeLater)
{
    given("V1: aa");
    watch();
    EXPECT_TRUE(hears([&] { project->execute(NewVisualTrackCmd::create(-1)); }));
    EXPECT_TRUE(hears([&] { track("V2")->notify(); }));
}

TEST_F(MediaObserverTest, ANewTrackIsWatchedFromItsMixersNextNotificationOn)
{
    given("V1: aa");
    watch();
    boost::shared_ptr<Track> const quiet(new VisualTrack(lock()));
    visualMixer()->trackList().push_back(quiet);
    EXPECT_FALSE(hears([&] { quiet->notify(); }));
    visualMixer()->notify();
    EXPECT_TRUE(hears([&] { quiet->notify(); }));
}

TEST_F(MediaObserverTest, ATrackThatIsGoneIsNoLongerWatched)
{
    given("V1: aa / V2: bb");
    watch();
    boost::shared_ptr<Track const> const gone = track("V1");
    EXPECT_TRUE(hears([&] { visualMixer()->removeTrack<Track>(gone); }));
    EXPECT_FALSE(hears([&] { gone->notify(); }));
    EXPECT_TRUE(hears([&] { track("V1")->notify(); }));
}

TEST_F(MediaObserverTest, ATrackThatComesBackIsWatchedAgain)
{
    given("V1: aa / V2: bb");
    watch();
    auto const removed = visualMixer()->removeTrack<Track>(track("V1"));
    visualMixer()->addTrack(removed.first, removed.second);
    EXPECT_TRUE(hears([&] { removed.first->notify(); }));
}

TEST_F(MediaObserverTest, AMixersChangeLeavesTheTracksOfTheOtherWatched)
{
    given("A1: aa / V1: bb");
    watch();
    audioMixer()->newTrack<AudioTrack>(-1);
    EXPECT_TRUE(hears([&] { track("V1")->notify(); }));
    visualMixer()->newTrack<VisualTrack>(-1);
    EXPECT_TRUE(hears([&] { track("A1")->notify(); }));
    EXPECT_TRUE(hears([&] { track("A2")->notify(); }));
}

TEST_F(MediaObserverTest, IsSilentWhileItsNotificationsAreDisabled)
{
    given("V1: aa");
    watch();
    Subject::NotifyDisabler const disabler = m_watcher->disableNotifies();
    EXPECT_FALSE(hears([&] { track("V1")->notify(); }));
}

TEST_F(MediaObserverTest, LeavesNothingBehindWhenItDies)
{
    given("A1: aa / V1: bb");
    watch();
    stopWatching();
    EXPECT_FALSE(hears([&] {
        timeline()->notify();
        visualMixer()->notify();
        audioMixer()->notify();
        track("V1")->notify();
        track("A1")->notify();
    }));
}

TEST_F(MediaObserverTest, HasNoDescription)
{
    EXPECT_EQ("", MediaObserver(timeline()).description());
}

}  // namespace
}  // namespace test
}  // namespace tarn
