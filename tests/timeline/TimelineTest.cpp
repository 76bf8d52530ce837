#include "timeline/Timeline.h"

#include "exceptions/AddRemoveException.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/TypeException.h"
#include "exceptions/ValueException.h"
#include "parameters/Attribute.h"
#include "parameters/LeftParameter.h"
#include "parameters/MTVector.h"
#include "support/CountingObserver.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "support/Xml.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/ImageTrack.h"
#include "timeline/Media.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

namespace tarn {
namespace test {
namespace {

class TimelineTest : public ModelTest
{
protected:
    ~TimelineTest() override { m_fresh->detach(&m_observer); }

    void watch() { m_fresh->attach(&m_observer); }
    boost::shared_ptr<VisualMixer> aVisualMixer() const
    {
        return boost::make_shared<VisualMixer>(320.0f, 240.0f, lock());
    }
    boost::shared_ptr<AudioMixer> anAudioMixer() const
    {
        return boost::make_shared<AudioMixer>(8000u, 8u, 1u, lock());
    }
    /// The track range of the only media on the only track of a mixer.
    static Range<long long> onlyRange(Mixer const& mixer)
    {
        return mixer.trackAtIndex(0)->mediaBegin()->second->trackRange();
    }

    boost::shared_ptr<Timeline> m_fresh{new Timeline(lock())};
    boost::shared_ptr<Mixer const> m_noMixer;
    CountingObserver m_observer;
};

TEST_F(TimelineTest, AFreshOneHasNoMixersAndNoTime)
{
    EXPECT_FALSE(m_fresh->hasVisualMixer());
    EXPECT_FALSE(m_fresh->hasAudioMixer());
    EXPECT_FALSE(m_fresh->visualMixer());
    EXPECT_FALSE(m_fresh->audioMixer());
    EXPECT_EQ(0, m_fresh->startTime());
    EXPECT_EQ(0, m_fresh->endTime());
    EXPECT_EQ(0, m_fresh->duration());
    EXPECT_EQ(Range<long long>(0, 0), m_fresh->timeRange());
    EXPECT_EQ(0u, m_fresh->numTracks());
    EXPECT_TRUE(m_fresh->allMedias()->empty());
}

TEST_F(TimelineTest, ItsOneParameterIsTheMarkerWhichStartsWithoutKeyFrames)
{
    EXPECT_EQ(1, m_fresh->numParameters());
    auto const parameters = m_fresh->parameterVector();
    ASSERT_EQ(1u, parameters->size());
    EXPECT_EQ(m_fresh->markerParam(), parameters->at(0));
    EXPECT_EQ("marker", m_fresh->markerParam()->ident());
    EXPECT_EQ(0, m_fresh->markerParam()->numKeyFrames());
    EXPECT_EQ(m_fresh->markerParam(), m_fresh->paramWithName("marker"));
}

TEST_F(TimelineTest, ParametersRunOnItsOwnClock)
{
    EXPECT_EQ(12.5, m_fresh->toParameterTime(12.5));
    EXPECT_EQ(12.5, m_fresh->fromParameterTime(12.5));
    EXPECT_EQ(-7, m_fresh->fromGlobalToParametricTime(-7));
}

TEST_F(TimelineTest, DescribesItselfByItsName)
{
    EXPECT_EQ("Timeline", m_fresh->description());
}

TEST_F(TimelineTest, ANewVisualMixerHasTheSizeAskedForAndIsTold)
{
    watch();
    boost::shared_ptr<VisualMixer> const mixer = m_fresh->newVisualMixer(640, 480);
    EXPECT_EQ(mixer, m_fresh->visualMixer());
    EXPECT_TRUE(m_fresh->hasVisualMixer());
    EXPECT_EQ(640, mixer->attributeWidth()->value());
    EXPECT_EQ(480, mixer->attributeHeight()->value());
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(TimelineTest, ANewAudioMixerHasTheFormatAskedForAndIsTold)
{
    watch();
    boost::shared_ptr<AudioMixer> const mixer = m_fresh->newAudioMixer(44100, 16, 2);
    EXPECT_EQ(mixer, m_fresh->audioMixer());
    EXPECT_TRUE(m_fresh->hasAudioMixer());
    EXPECT_EQ(44100u, mixer->attributeSampleRate()->value());
    EXPECT_EQ(16u, mixer->attributeBitDepth()->value());
    EXPECT_EQ(2u, mixer->attributeNumChannels()->value());
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(TimelineTest, AGivenVisualMixerIsStoredItself)
{
    watch();
    boost::shared_ptr<VisualMixer> const given = aVisualMixer();
    EXPECT_EQ(given, m_fresh->newVisualMixer(given));
    EXPECT_EQ(given, m_fresh->visualMixer());
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(TimelineTest, AGivenAudioMixerIsStoredItself)
{
    watch();
    boost::shared_ptr<AudioMixer> const given = anAudioMixer();
    EXPECT_EQ(given, m_fresh->newAudioMixer(given));
    EXPECT_EQ(given, m_fresh->audioMixer());
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(TimelineTest, ASecondVisualMixerIsRefusedInBothForms)
{
    boost::shared_ptr<VisualMixer> const first = m_fresh->newVisualMixer(640, 480);
    watch();
    char const* const message = "Can't create a new video mixer if we already have one";
    EXPECT_STREQ(message,
                 thrownBy<AddRemoveException>([&] { m_fresh->newVisualMixer(320, 240); }).what());
    EXPECT_STREQ(message, thrownBy<AddRemoveException>([&] {
                              m_fresh->newVisualMixer(aVisualMixer());
                          }).what());
    EXPECT_EQ(first, m_fresh->visualMixer());
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(TimelineTest, ASecondAudioMixerIsRefusedInBothForms)
{
    boost::shared_ptr<AudioMixer> const first = m_fresh->newAudioMixer(44100, 16, 2);
    watch();
    char const* const message = "Can't create a new audio mixer if we already have one";
    EXPECT_STREQ(message,
                 thrownBy<AddRemoveException>([&] { m_fresh->newAudioMixer(8000, 8, 1); }).what());
    EXPECT_STREQ(message, thrownBy<AddRemoveException>([&] {
                              m_fresh->newAudioMixer(anAudioMixer());
                          }).what());
    EXPECT_EQ(first, m_fresh->audioMixer());
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(TimelineTest, RemovingTheVisualMixerGivesItAndTells)
{
    boost::shared_ptr<VisualMixer> const mixer = m_fresh->newVisualMixer(640, 480);
    watch();
    EXPECT_EQ(mixer, m_fresh->removeVisualMixer());
    EXPECT_FALSE(m_fresh->hasVisualMixer());
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(TimelineTest, RemovingTheAudioMixerGivesItAndTells)
{
    boost::shared_ptr<AudioMixer> const mixer = m_fresh->newAudioMixer(44100, 16, 2);
    watch();
    EXPECT_EQ(mixer, m_fresh->removeAudioMixer());
    EXPECT_FALSE(m_fresh->hasAudioMixer());
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(TimelineTest, ARemovedMixerKeepsItsTracksAndMedias)
{
    given("V1: aaa");
    boost::shared_ptr<VisualMixer> const mixer = timeline()->removeVisualMixer();
    EXPECT_EQ(1u, mixer->numTracks());
    EXPECT_TRUE(mixer->trackAtIndex(0)->hasMedia(media("V1.a")));
}

TEST_F(TimelineTest, AVisualMixerThatIsNotThereCannotBeRemoved)
{
    watch();
    EXPECT_STREQ("Can't remove a video mixer if we don't have one",
                 thrownBy<AddRemoveException>([&] { m_fresh->removeVisualMixer(); }).what());
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(TimelineTest, AnAudioMixerThatIsNotThereCannotBeRemoved)
{
    watch();
    EXPECT_STREQ("Can't remove an audio mixer if we don't have one",
                 thrownBy<AddRemoveException>([&] { m_fresh->removeAudioMixer(); }).what());
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(TimelineTest, NewTracksComeToTheMixerOfTheirKind)
{
    boost::shared_ptr<VisualMixer> const visual = m_fresh->newVisualMixer(640, 480);
    boost::shared_ptr<AudioMixer> const audio = m_fresh->newAudioMixer(44100, 16, 2);
    boost::shared_ptr<VisualTrack> const picture = m_fresh->newTrack<VisualTrack>(visual, -1);
    boost::shared_ptr<AudioTrack> const sound = m_fresh->newTrack<AudioTrack>(audio, -1);
    EXPECT_EQ(picture, visual->trackAtIndex(0));
    EXPECT_EQ(sound, audio->trackAtIndex(0));
}

TEST_F(TimelineTest, AnAudioTrackIsRefusedOnAnyOtherMixer)
{
    m_fresh->newAudioMixer(44100, 16, 2);
    boost::shared_ptr<VisualMixer> const visual = m_fresh->newVisualMixer(640, 480);
    char const* const message = "can't add audio tracks to mixer";
    EXPECT_STREQ(message, thrownBy<TarnMediaLibException>([&] {
                              m_fresh->newTrack<AudioTrack>(visual, -1);
                          }).what());
    EXPECT_STREQ(message, thrownBy<TarnMediaLibException>([&] {
                              m_fresh->newTrack<AudioTrack>(anAudioMixer(), -1);
                          }).what());
    EXPECT_STREQ(message, thrownBy<TarnMediaLibException>([&] {
                              m_fresh->newTrack<AudioTrack>(m_noMixer, -1);
                          }).what());
    EXPECT_EQ(0u, m_fresh->numTracks());
}

TEST_F(TimelineTest, AVisualTrackIsRefusedOnAnyOtherMixer)
{
    m_fresh->newVisualMixer(640, 480);
    boost::shared_ptr<AudioMixer> const audio = m_fresh->newAudioMixer(44100, 16, 2);
    char const* const message = "can't add visual tracks to mixer";
    EXPECT_STREQ(message, thrownBy<TarnMediaLibException>([&] {
                              m_fresh->newTrack<VisualTrack>(audio, -1);
                          }).what());
    EXPECT_STREQ(message, thrownBy<TarnMediaLibException>([&] {
                              m_fresh->newTrack<VisualTrack>(aVisualMixer(), -1);
                          }).what());
    EXPECT_STREQ(message, thrownBy<TarnMediaLibException>([&] {
                              m_fresh->newTrack<VisualTrack>(m_noMixer, -1);
                          }).what());
    EXPECT_EQ(0u, m_fresh->numTracks());
}

TEST_F(TimelineTest, AnImageTrackIsRefusedOnAnyOtherMixer)
{
    m_fresh->newVisualMixer(640, 480);
    boost::shared_ptr<AudioMixer> const audio = m_fresh->newAudioMixer(44100, 16, 2);
    EXPECT_STREQ("can't add visual tracks to mixer", thrownBy<TarnMediaLibException>([&] {
                                                         m_fresh->newTrack<ImageTrack>(audio, -1);
                                                     }).what());
}

TEST_F(TimelineTest, AMixerThatIsGivenWhereNoneIsIsAnotherMixer)
{
    EXPECT_STREQ("can't add audio tracks to mixer",
                 thrownBy<TarnMediaLibException>([&] {
                     m_fresh->newTrack<AudioTrack>(anAudioMixer(), -1);
                 }).what());
    EXPECT_STREQ("can't add visual tracks to mixer",
                 thrownBy<TarnMediaLibException>([&] {
                     m_fresh->newTrack<VisualTrack>(aVisualMixer(), -1);
                 }).what());
}

TEST_F(TimelineTest, AnImageTrackIsRefusedByTheVisualMixerItself)
{
    boost::shared_ptr<VisualMixer> const visual = m_fresh->newVisualMixer(640, 480);
    EXPECT_STREQ("VisualTrack", thrownBy<TypeException>([&] {
                                    m_fresh->newTrack<ImageTrack>(visual, -1);
                                }).what());
    EXPECT_EQ(0u, visual->numTracks());
}

TEST_F(TimelineTest, WithoutAMixerAllThreeKindsOfTracksAreRefusedInTheSameWords)
{
    char const* const message =
        "Can't create a new audio track if we don't have a audio mixer to put it on";
    EXPECT_STREQ(message, thrownBy<AddRemoveException>([&] {
                              m_fresh->newTrack<AudioTrack>(m_noMixer, -1);
                          }).what());
    EXPECT_STREQ(message, thrownBy<AddRemoveException>([&] {
                              m_fresh->newTrack<VisualTrack>(m_noMixer, -1);
                          }).what());
    EXPECT_STREQ(message, thrownBy<AddRemoveException>([&] {
                              m_fresh->newTrack<ImageTrack>(m_noMixer, -1);
                          }).what());
}

TEST_F(TimelineTest, ATrackIndexThatIsNotThereIsRefused)
{
    boost::shared_ptr<VisualMixer> const visual = m_fresh->newVisualMixer(640, 480);
    auto const thrown =
        thrownBy<ValueException<int>>([&] { m_fresh->newTrack<VisualTrack>(visual, 1); });
    EXPECT_STREQ("invalid index", thrown.what());
    EXPECT_EQ(1, thrown.value());
    EXPECT_EQ(0u, visual->numTracks());
}

TEST_F(TimelineTest, AddAndRemoveTrackOnlyRouteAndSoTakeAnyMixer)
{
    boost::shared_ptr<AudioMixer> const foreign = anAudioMixer();
    boost::shared_ptr<Track> const sound(new AudioTrack(lock()));
    m_fresh->addTrack(foreign, sound, 0);
    EXPECT_EQ(sound, foreign->trackAtIndex(0));
    auto const removed = m_fresh->removeTrack(foreign, sound);
    EXPECT_EQ(sound, removed.first);
    EXPECT_EQ(0, removed.second);
    EXPECT_EQ(0u, foreign->numTracks());
}

TEST_F(TimelineTest, NoMixerAtAllIsRefusedByAddAndRemoveTrack)
{
    boost::shared_ptr<Track> const sound(new AudioTrack(lock()));
    char const* const message = "mixer doesn't belong to project";
    EXPECT_STREQ(message, thrownBy<TarnMediaLibException>([&] {
                              m_fresh->addTrack(boost::shared_ptr<Mixer>(), sound, -1);
                          }).what());
    EXPECT_STREQ(message, thrownBy<TarnMediaLibException>([&] {
                              m_fresh->removeTrack(boost::shared_ptr<Mixer>(), sound);
                          }).what());
}

TEST_F(TimelineTest, RemoveVisualTrackGivesTheTrackAndItsIndex)
{
    boost::shared_ptr<VisualMixer> const visual = m_fresh->newVisualMixer(640, 480);
    m_fresh->newTrack<VisualTrack>(visual, -1);
    boost::shared_ptr<AbstractVisualTrack> const second =
        m_fresh->newTrack<VisualTrack>(visual, -1);
    auto const removed = m_fresh->removeVisualTrack(second);
    EXPECT_EQ(second, removed.first);
    EXPECT_EQ(1, removed.second);
    EXPECT_EQ(1u, visual->numTracks());
}

TEST_F(TimelineTest, RemoveAudioTrackGivesTheTrackAndItsIndex)
{
    boost::shared_ptr<AudioMixer> const audio = m_fresh->newAudioMixer(44100, 16, 2);
    m_fresh->newTrack<AudioTrack>(audio, -1);
    boost::shared_ptr<AudioTrack> const second = m_fresh->newTrack<AudioTrack>(audio, -1);
    auto const removed = m_fresh->removeAudioTrack(second);
    EXPECT_EQ(second, removed.first);
    EXPECT_EQ(1, removed.second);
    EXPECT_EQ(1u, audio->numTracks());
}

TEST_F(TimelineTest, WithoutItsMixerNoTrackCanBeRemoved)
{
    boost::shared_ptr<AbstractVisualTrack const> const picture(new VisualTrack(lock()));
    boost::shared_ptr<AudioTrack const> const sound(new AudioTrack(lock()));
    EXPECT_STREQ("Can't remove a video track if we don't have a video mixer",
                 thrownBy<AddRemoveException>([&] { m_fresh->removeVisualTrack(picture); }).what());
    EXPECT_STREQ("Can't remove a audio track if we don't have an audio mixer",
                 thrownBy<AddRemoveException>([&] { m_fresh->removeAudioTrack(sound); }).what());
}

TEST_F(TimelineTest, ATrackThatIsNotThereCannotBeRemoved)
{
    m_fresh->newVisualMixer(640, 480);
    boost::shared_ptr<AbstractVisualTrack const> const stranger(new VisualTrack(lock()));
    auto const thrown = thrownBy<ValueException<boost::shared_ptr<Track const>>>(
        [&] { m_fresh->removeVisualTrack(stranger); });
    EXPECT_STREQ("trying to remove a track not on mixer", thrown.what());
    EXPECT_EQ(stranger, thrown.value());
}

TEST_F(TimelineTest, CountsTheTracksOfBothMixers)
{
    given("A1: a / A2: b / V1: c / V2: d / V3: e");
    EXPECT_EQ(5u, timeline()->numTracks());
    timeline()->removeAudioMixer();
    EXPECT_EQ(3u, timeline()->numTracks());
}

TEST_F(TimelineTest, RunsFromItsEarliestStartToItsLatestEnd)
{
    given("A1: ..aaaa / V1: ...bb");
    EXPECT_EQ(20, timeline()->startTime());
    EXPECT_EQ(60, timeline()->endTime());
    EXPECT_EQ(40, timeline()->duration());
    EXPECT_EQ(Range<long long>(20, 40), timeline()->timeRange());
}

TEST_F(TimelineTest, TheVisualMixerMayGiveStartAndEnd)
{
    given("A1: ...a / V1: .bbbbb");
    EXPECT_EQ(10, timeline()->startTime());
    EXPECT_EQ(60, timeline()->endTime());
}

TEST_F(TimelineTest, AnEmptyTrackStartsAtZeroAndSoDoesTheTimeline)
{
    given("V1: ...bb");
    ASSERT_EQ(1u, audioMixer()->numTracks());
    EXPECT_EQ(0, timeline()->startTime());
    EXPECT_EQ(50, timeline()->duration());
}

TEST_F(TimelineTest, AMixerAloneGivesTheRange)
{
    given("A1: ...aa / V1: ...bb");
    timeline()->removeVisualMixer();
    EXPECT_EQ(30, timeline()->startTime());
    EXPECT_EQ(50, timeline()->endTime());
}

TEST_F(TimelineTest, MayStartBelowZeroButNotEndThere)
{
    given("A1: a / V1: bb");
    track("A1")->move(media("A1.a"), -50, false);
    track("V1")->move(media("V1.b"), -50, false);
    EXPECT_EQ(-50, timeline()->startTime());
    EXPECT_EQ(0, timeline()->endTime());
    EXPECT_EQ(50, timeline()->duration());
}

TEST_F(TimelineTest, ListsMediasVisualFirstThenByTrackThenByTime)
{
    given("A1: ab / V1: .cd / V2: ef");
    ConstMediaList const wanted = {media("V1.c"), media("V1.d"), media("V2.e"),
                                   media("V2.f"), media("A1.a"), media("A1.b")};
    EXPECT_EQ(wanted, *timeline()->allMedias());
}

TEST_F(TimelineTest, KnowsTheInstancesOfASource)
{
    given("A1: a.b / V1: a.a");
    // A letter is one source, so the two pictures and the sound are its instances.
    boost::shared_ptr<ConstMediaList> const found = timeline()->instancesOf(source('a'));
    ASSERT_EQ(3u, found->size());
    EXPECT_EQ(visualMixer()->trackAtIndex(0), found->front()->parentTrack().lock());
    EXPECT_EQ(media("A1.a"), found->back());
    EXPECT_TRUE(timeline()->hasInstanceOf(source('b')));
}

TEST_F(TimelineTest, ASourceThatIsShownNowhereHasNoInstance)
{
    given("A1: a / V1: b");
    freshVideo('c', 1);
    EXPECT_FALSE(timeline()->hasInstanceOf(source('c')));
    EXPECT_TRUE(timeline()->instancesOf(source('c'))->empty());
    EXPECT_FALSE(m_fresh->hasInstanceOf(source('a')));
    EXPECT_TRUE(m_fresh->instancesOf(source('a'))->empty());
}

TEST_F(TimelineTest, AnInstanceOnTheAudioMixerAloneIsFound)
{
    given("A1: a / V1: b");
    EXPECT_TRUE(timeline()->hasInstanceOf(source('a')));
    timeline()->removeVisualMixer();
    EXPECT_TRUE(timeline()->hasInstanceOf(source('a')));
    EXPECT_FALSE(timeline()->hasInstanceOf(source('b')));
}

TEST_F(TimelineTest, ACloneHasMixersTracksMediasAndMarkerOfItsOwn)
{
    given("A1: .aa / V1: bbb");
    timeline()->markerParam()->addKeyFrame(40, "here");
    boost::shared_ptr<Timeline> const clone(timeline()->clone());
    EXPECT_NE(visualMixer(), clone->visualMixer());
    EXPECT_NE(audioMixer(), clone->audioMixer());
    EXPECT_NE(media("V1.b"), clone->visualMixer()->trackAtIndex(0)->mediaBegin()->second);
    EXPECT_EQ(Range<long long>(0, 30), onlyRange(*clone->visualMixer()));
    EXPECT_EQ(Range<long long>(10, 20), onlyRange(*clone->audioMixer()));
    EXPECT_NE(timeline()->markerParam(), clone->markerParam());
    EXPECT_EQ("here", clone->markerParam()->valueAtTime(40));
}

TEST_F(TimelineTest, ACloneOfAnEmptyOneIsEmpty)
{
    boost::shared_ptr<Timeline> const clone(m_fresh->clone());
    EXPECT_FALSE(clone->hasVisualMixer());
    EXPECT_FALSE(clone->hasAudioMixer());
}

TEST_F(TimelineTest, ClonedMediasAreNotLinked)
{
    given("A1: aa / V1: aa");
    boost::shared_ptr<Timeline> const clone(timeline()->clone());
    boost::shared_ptr<Media const> const picture =
        clone->visualMixer()->trackAtIndex(0)->mediaBegin()->second;
    EXPECT_EQ(picture->linkEnd(), picture->linkBegin());
}

TEST_F(TimelineTest, APortionIsTrimmedToItsRangeAndKeepsItsTimes)
{
    given("V1: aaa..bbb");
    boost::shared_ptr<Timeline> const copy =
        timeline()->copyPortion(Range<long long>(15, 45), ConstTrackSet{track("V1")});
    // What lies in [15,60): a from 15 to its end at 30, b from its start at 50 to 60.
    boost::shared_ptr<Track const> const copied = copy->visualMixer()->trackAtIndex(0);
    ASSERT_EQ(2u, copied->numMedias());
    EXPECT_EQ(Range<long long>(15, 15), copied->mediaBegin()->second->trackRange());
    EXPECT_EQ(Range<long long>(50, 10), copied->mediaRBegin()->second->trackRange());
    EXPECT_EQ("V1: aaa..bbb", strip());
}

TEST_F(TimelineTest, APortionLeavesNoGapForTracksThatAreNotWanted)
{
    given("V1: aa / V2: bbb / V3: cccc");
    boost::shared_ptr<Timeline> const copy =
        timeline()->copyPortion(Range<long long>(0, 100), ConstTrackSet{track("V1"), track("V3")});
    ASSERT_EQ(2u, copy->visualMixer()->numTracks());
    EXPECT_EQ(20, copy->visualMixer()->trackAtIndex(0)->endTime());
    EXPECT_EQ(40, copy->visualMixer()->trackAtIndex(1)->endTime());
    EXPECT_FALSE(copy->hasAudioMixer());
}

TEST_F(TimelineTest, APortionOfAWantedTrackWithNothingInRangeIsAnEmptyTrack)
{
    given("V1: aa");
    boost::shared_ptr<Timeline> const copy =
        timeline()->copyPortion(Range<long long>(50, 10), ConstTrackSet{track("V1")});
    ASSERT_TRUE(copy->hasVisualMixer());
    EXPECT_EQ(0u, copy->visualMixer()->trackAtIndex(0)->numMedias());
}

TEST_F(TimelineTest, APortionOfNoTracksHasNoMixers)
{
    given("A1: aa / V1: bb");
    boost::shared_ptr<Timeline> const copy =
        timeline()->copyPortion(Range<long long>(0, 100), ConstTrackSet());
    EXPECT_FALSE(copy->hasVisualMixer());
    EXPECT_FALSE(copy->hasAudioMixer());
}

TEST_F(TimelineTest, APortionTakesAlongTheTracksOfLinkedMediasInItsRange)
{
    given("A1: aa / V1: aa");
    boost::shared_ptr<Timeline> const copy =
        timeline()->copyPortion(Range<long long>(5, 10), ConstTrackSet{track("V1")});
    ASSERT_TRUE(copy->hasAudioMixer());
    boost::shared_ptr<Media const> const picture =
        copy->visualMixer()->trackAtIndex(0)->mediaBegin()->second;
    boost::shared_ptr<Media const> const sound =
        copy->audioMixer()->trackAtIndex(0)->mediaBegin()->second;
    EXPECT_TRUE(picture->isLinkedWith(sound));
    EXPECT_TRUE(sound->isLinkedWith(picture));
    EXPECT_FALSE(picture->isLinkedWith(media("A1.a")));
}

TEST_F(TimelineTest, APortionTellsWhichCloneIsWhose)
{
    given("A1: aa / V1: aa.b");
    MediaCloneMap clones;
    boost::shared_ptr<Timeline> const copy =
        timeline()->copyPortion(Range<long long>(0, 20), ConstTrackSet{track("V1")}, &clones);
    ASSERT_EQ(2u, clones.size());
    EXPECT_EQ(copy->visualMixer()->trackAtIndex(0)->mediaBegin()->second, clones.at(media("V1.a")));
    EXPECT_EQ(copy->audioMixer()->trackAtIndex(0)->mediaBegin()->second, clones.at(media("A1.a")));
}

TEST_F(TimelineTest, ChosenMediasAreCopiedWholeOnTracksOfTheirOwn)
{
    given("V1: aa.bb / V2: cc / V3: .dd");
    MediaCloneMap clones;
    boost::shared_ptr<Timeline> const copy =
        timeline()->copyPortion(ConstMediaVector{media("V3.d"), media("V1.b")}, &clones);
    ASSERT_EQ(2u, copy->visualMixer()->numTracks());
    EXPECT_EQ(Range<long long>(30, 20), clones.at(media("V1.b"))->trackRange());
    EXPECT_EQ(copy->visualMixer()->trackAtIndex(0), clones.at(media("V1.b"))->parentTrack().lock());
    EXPECT_EQ(Range<long long>(10, 20), clones.at(media("V3.d"))->trackRange());
    EXPECT_EQ(copy->visualMixer()->trackAtIndex(1), clones.at(media("V3.d"))->parentTrack().lock());
}

TEST_F(TimelineTest, OfChosenMediasOnlyThoseLinksHoldWhoseBothEndsAreChosen)
{
    given("A1: aa..bb / V1: aa..bb");
    MediaCloneMap clones;
    timeline()->copyPortion(ConstMediaVector{media("V1.a"), media("A1.a"), media("V1.b")}, &clones);
    EXPECT_EQ(3u, clones.size());
    boost::shared_ptr<Media const> const alone = clones.at(media("V1.b"));
    EXPECT_TRUE(clones.at(media("V1.a"))->isLinkedWith(clones.at(media("A1.a"))));
    EXPECT_EQ(alone->linkEnd(), alone->linkBegin());
}

TEST_F(TimelineTest, ACopyOfAnEmptyOneHasNoMixersEither)
{
    boost::shared_ptr<Timeline> const portion =
        m_fresh->copyPortion(Range<long long>(0, 100), ConstTrackSet());
    EXPECT_FALSE(portion->hasVisualMixer());
    EXPECT_FALSE(portion->hasAudioMixer());
    boost::shared_ptr<Timeline> const chosen = m_fresh->copyPortion(ConstMediaVector());
    EXPECT_FALSE(chosen->hasVisualMixer());
    EXPECT_FALSE(chosen->hasAudioMixer());
}

TEST_F(TimelineTest, ACopyOfNoMediasHasNoMixers)
{
    given("A1: aa / V1: bb");
    boost::shared_ptr<Timeline> const copy = timeline()->copyPortion(ConstMediaVector());
    EXPECT_FALSE(copy->hasVisualMixer());
    EXPECT_FALSE(copy->hasAudioMixer());
}

TEST_F(TimelineTest, APortionKeepsTheMixersSettingsAndTheMarker)
{
    given("A1: aa / V1: bb");
    timeline()->markerParam()->addKeyFrame(0, "start");
    boost::shared_ptr<Timeline> const copy =
        timeline()->copyPortion(ConstMediaVector{media("A1.a"), media("V1.b")});
    EXPECT_EQ(640, copy->visualMixer()->attributeWidth()->value());
    EXPECT_EQ(44100u, copy->audioMixer()->attributeSampleRate()->value());
    EXPECT_EQ("start", copy->markerParam()->valueAtTime(0));
}

TEST_F(TimelineTest, APortionWithAnImageTrackIsRefusedByTheMixersTypeCheck)
{
    m_fresh->newVisualMixer(640, 480);
    boost::shared_ptr<Track> const images(new ImageTrack(lock()));
    m_fresh->visualMixer()->addTrackSansTypeCheck(images, -1);
    EXPECT_STREQ("VisualTrack", thrownBy<TypeException>([&] {
                                    m_fresh->copyPortion(Range<long long>(0, 10),
                                                         ConstTrackSet{images});
                                }).what());
}

TEST_F(TimelineTest, PrintsNothingInsideWhenEmpty)
{
    EXPECT_EQ("<Timeline id=\"#\"  >\n</Timeline>\n", xmlOf(*m_fresh));
}

TEST_F(TimelineTest, PrintsItsMixersTwoLevelsIn)
{
    m_fresh->newAudioMixer(8000, 8, 1);
    EXPECT_EQ("<Timeline id=\"#\"  >\n"
              "  <AudioMixer id=\"#\"  >\n"
              "   <Attributes>\n"
              "    <Attribute id=\"#\" value=\"\" name=\"ident\">\n"
              "    </Attribute>\n"
              "    <Attribute id=\"#\" value=\"8000\" name=\"sampleRate\">\n"
              "    </Attribute>\n"
              "    <Attribute id=\"#\" value=\"8\" name=\"bitDepth\">\n"
              "    </Attribute>\n"
              "    <Attribute id=\"#\" value=\"1\" name=\"numChannels\">\n"
              "    </Attribute>\n"
              "   </Attributes>\n"
              "   <Tracks>\n"
              "   </Tracks>\n"
              "  </AudioMixer>\n"
              "</Timeline>\n",
              xmlOf(*m_fresh));
}

TEST_F(TimelineTest, PrintsTheVisualMixerFirst)
{
    m_fresh->newAudioMixer(8000, 8, 1);
    m_fresh->newVisualMixer(320, 240);
    std::string const xml = xmlOf(*m_fresh);
    std::size_t const visual = xml.find("\n  <VisualMixer id=\"#\"  >\n");
    ASSERT_NE(std::string::npos, visual);
    EXPECT_LT(visual, xml.find("\n  <AudioMixer id=\"#\"  >\n"));
}

TEST_F(TimelineTest, QueriesOfADeadProjectFail)
{
    boost::shared_ptr<Timeline> const orphan = m_fresh;
    project.reset();
    EXPECT_THROW(orphan->startTime(), boost::bad_weak_ptr);
    EXPECT_THROW(orphan->hasVisualMixer(), boost::bad_weak_ptr);
    EXPECT_THROW(orphan->parameterVector(), boost::bad_weak_ptr);
    EXPECT_THROW(orphan->toParameterTime(0), boost::bad_weak_ptr);
}

}  // namespace
}  // namespace test
}  // namespace tarn
