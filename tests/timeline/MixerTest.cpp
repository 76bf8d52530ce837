#include "timeline/Mixer.h"

#include "datatypes/UpdateCollector.h"
#include "effects/Blur.h"
#include "exceptions/IndexException.h"
#include "exceptions/ValueException.h"
#include "support/CountingObserver.h"
#include "support/ModelTest.h"
#include "support/OtherThread.h"
#include "support/Thrown.h"
#include "support/Xml.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <memory>

namespace tarn {
namespace test {
namespace {

using MissingTrack = ValueException<boost::shared_ptr<Track const>>;

/// A mixer with the tracks m_first, m_second and m_third.
class MixerTest : public ModelTest
{
protected:
    ~MixerTest() override { m_mixer->detach(&m_observer); }

    void watch() { m_mixer->attach(&m_observer); }
    boost::shared_ptr<Track> aTrack() const
    {
        return boost::shared_ptr<Track>(new VisualTrack(lock()));
    }

    boost::shared_ptr<Mixer> m_mixer{new VisualMixer(640, 480, lock())};
    boost::shared_ptr<Track> m_first = m_mixer->newTrack<VisualTrack>(-1);
    boost::shared_ptr<Track> m_second = m_mixer->newTrack<VisualTrack>(-1);
    boost::shared_ptr<Track> m_third = m_mixer->newTrack<VisualTrack>(-1);
    CountingObserver m_observer;
};

TEST_F(MixerTest, WithoutTracksItHasNoTime)
{
    VisualMixer const mixer(640, 480, lock());
    EXPECT_EQ(0, mixer.startTime());
    EXPECT_EQ(0, mixer.endTime());
    EXPECT_EQ(0, mixer.duration());
    EXPECT_EQ(0u, mixer.numTracks());
}

TEST_F(MixerTest, RunsFromTheEarliestStartToTheLatestEndOfItsTracks)
{
    given("V1: ...aaaa / V2: ..bb");
    EXPECT_EQ(20, visualMixer()->startTime());
    EXPECT_EQ(70, visualMixer()->endTime());
    EXPECT_EQ(50, visualMixer()->duration());
}

TEST_F(MixerTest, WithAnEmptyTrackItStartsAtZero)
{
    given("V1: ...aaaa / V2: ..bb");
    visualMixer()->newTrack<VisualTrack>(-1);
    EXPECT_EQ(0, visualMixer()->startTime());
    EXPECT_EQ(70, visualMixer()->duration());
}

TEST_F(MixerTest, MayStartBelowZeroButNotEndThere)
{
    given("V1: aa / V2: b");
    track("V1")->move(media("V1.a"), -50, false);
    track("V2")->move(media("V2.b"), -30, false);
    EXPECT_EQ(-50, visualMixer()->startTime());
    EXPECT_EQ(0, visualMixer()->endTime());
}

TEST_F(MixerTest, MinusOneAndTheNumberOfTracksBothAppend)
{
    boost::shared_ptr<Track> const fourth = aTrack();
    boost::shared_ptr<Track> const fifth = aTrack();
    m_mixer->addTrackSansTypeCheck(fourth, -1);
    m_mixer->addTrackSansTypeCheck(fifth, 4);
    EXPECT_EQ((Mixer::TrackList{m_first, m_second, m_third, fourth, fifth}), m_mixer->trackList());
}

TEST_F(MixerTest, AnyOtherIndexInsertsBeforeTheTrackThere)
{
    boost::shared_ptr<Track> const head = aTrack();
    boost::shared_ptr<Track> const middle = aTrack();
    m_mixer->addTrackSansTypeCheck(head, 0);
    m_mixer->addTrackSansTypeCheck(middle, 2);
    EXPECT_EQ((Mixer::TrackList{head, m_first, middle, m_second, m_third}), m_mixer->trackList());
}

TEST_F(MixerTest, AnIndexPastTheNumberOfTracksIsRefused)
{
    watch();
    auto const thrown =
        thrownBy<ValueException<int>>([&] { m_mixer->addTrackSansTypeCheck(aTrack(), 4); });
    EXPECT_STREQ("invalid index", thrown.what());
    EXPECT_EQ(4, thrown.value());
    EXPECT_EQ(3u, m_mixer->numTracks());
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(MixerTest, AnIndexBelowMinusOneIsRefused)
{
    auto const thrown =
        thrownBy<ValueException<int>>([&] { m_mixer->addTrackSansTypeCheck(aTrack(), -2); });
    EXPECT_STREQ("invalid index", thrown.what());
    EXPECT_EQ(-2, thrown.value());
    EXPECT_EQ(3u, m_mixer->numTracks());
}

TEST_F(MixerTest, TellsOfAnAddedTrack)
{
    watch();
    m_mixer->newTrack<VisualTrack>(0);
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(MixerTest, ANewTrackComesToTheIndexAskedFor)
{
    boost::shared_ptr<VisualTrack> const made = m_mixer->newTrack<VisualTrack>(1);
    EXPECT_EQ(made, m_mixer->trackAtIndex(1));
    EXPECT_EQ(0u, made->numMedias());
}

TEST_F(MixerTest, RemovalGivesTheTrackAndTheIndexItHad)
{
    watch();
    auto const removed = m_mixer->removeTrack<Track>(m_second);
    EXPECT_EQ(m_second, removed.first);
    EXPECT_EQ(1, removed.second);
    EXPECT_EQ((Mixer::TrackList{m_first, m_third}), m_mixer->trackList());
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(MixerTest, ATrackGoesBackToWhereItWasByTheIndexOfItsRemoval)
{
    auto const removed = m_mixer->removeTrack<Track>(m_second);
    m_mixer->addTrack(removed.first, removed.second);
    EXPECT_EQ((Mixer::TrackList{m_first, m_second, m_third}), m_mixer->trackList());
}

TEST_F(MixerTest, ATrackThatIsNotHereCannotBeRemoved)
{
    watch();
    boost::shared_ptr<Track const> const stranger = aTrack();
    auto const thrown = thrownBy<MissingTrack>([&] { m_mixer->removeTrack<Track>(stranger); });
    EXPECT_STREQ("trying to remove a track not on mixer", thrown.what());
    EXPECT_EQ(stranger, thrown.value());
    EXPECT_EQ(3u, m_mixer->numTracks());
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(MixerTest, RemovesAllTracksAtOnceAndTells)
{
    watch();
    m_mixer->removeTracks();
    EXPECT_EQ(0u, m_mixer->numTracks());
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(MixerTest, SwapsTwoTracksInPlaceAndTells)
{
    watch();
    m_mixer->swapTrackOrder(m_first, m_third);
    EXPECT_EQ((Mixer::TrackList{m_third, m_second, m_first}), m_mixer->trackList());
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(MixerTest, ASecondSwapRestoresTheOrder)
{
    m_mixer->swapTrackOrder(m_first, m_second);
    m_mixer->swapTrackOrder(m_first, m_second);
    EXPECT_EQ((Mixer::TrackList{m_first, m_second, m_third}), m_mixer->trackList());
}

TEST_F(MixerTest, ATrackMayBeSwappedWithItself)
{
    m_mixer->swapTrackOrder(m_second, m_second);
    EXPECT_EQ((Mixer::TrackList{m_first, m_second, m_third}), m_mixer->trackList());
}

TEST_F(MixerTest, ASwapNamesTheFirstTrackThatIsNotHere)
{
    boost::shared_ptr<Track const> const stranger = aTrack();
    boost::shared_ptr<Track const> const other = aTrack();
    auto const thrown = thrownBy<MissingTrack>([&] { m_mixer->swapTrackOrder(stranger, other); });
    EXPECT_STREQ("trying to swap track that doesn't exist", thrown.what());
    EXPECT_EQ(stranger, thrown.value());
}

TEST_F(MixerTest, ASwapNamesTheSecondTrackWhenOnlyThatIsNotHere)
{
    watch();
    boost::shared_ptr<Track const> const stranger = aTrack();
    auto const thrown = thrownBy<MissingTrack>([&] { m_mixer->swapTrackOrder(m_first, stranger); });
    EXPECT_STREQ("trying to swap track that doesn't exist", thrown.what());
    EXPECT_EQ(stranger, thrown.value());
    EXPECT_EQ((Mixer::TrackList{m_first, m_second, m_third}), m_mixer->trackList());
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(MixerTest, FindsTracksByIndexAndIndexesByTrack)
{
    Mixer const& constMixer = *m_mixer;
    EXPECT_EQ(m_third, m_mixer->trackAtIndex(2));
    EXPECT_EQ(m_first, constMixer.trackAtIndex(0));
    EXPECT_EQ(1, m_mixer->indexForTrack(m_second));
    EXPECT_EQ(-1, m_mixer->indexForTrack(aTrack()));
    EXPECT_TRUE(m_mixer->hasTrack(m_first));
    EXPECT_FALSE(m_mixer->hasTrack(aTrack()));
    EXPECT_FALSE(m_mixer->hasTrack(boost::shared_ptr<Track const>()));
}

TEST_F(MixerTest, AnIndexWithoutATrackIsRefused)
{
    Mixer const& constMixer = *m_mixer;
    EXPECT_EQ(3, thrownBy<IndexException>([&] { m_mixer->trackAtIndex(3); }).index());
    EXPECT_EQ(3, thrownBy<IndexException>([&] { constMixer.trackAtIndex(3); }).index());
}

TEST_F(MixerTest, IteratorsWalkTheTracksInOrder)
{
    Mixer const& constMixer = *m_mixer;
    EXPECT_EQ((Mixer::TrackList{m_first, m_second, m_third}),
              Mixer::TrackList(m_mixer->trackBegin(), m_mixer->trackEnd()));
    EXPECT_EQ((Mixer::TrackList{m_first, m_second, m_third}),
              Mixer::TrackList(constMixer.trackBegin(), constMixer.trackEnd()));
}

TEST_F(MixerTest, AConstIteratorKeepsTheProjectFromBeingWritten)
{
    Mixer const& constMixer = *m_mixer;
    boost::shared_ptr<InternalProject> const locked = project;
    auto held = std::make_unique<Mixer::ConstTrackIterator>(constMixer.trackBegin());
    OtherThread writer([locked] { ReadWriteMutex::ScopedWriteLock lock(locked->mutex()); });
    EXPECT_TRUE(writer.isWaiting());
    held.reset();
    EXPECT_TRUE(writer.finishes());
}

TEST_F(MixerTest, IteratorsOfADeadProjectFail)
{
    Mixer const& constMixer = *m_mixer;
    project.reset();
    EXPECT_THROW(constMixer.trackBegin(), boost::bad_weak_ptr);
    EXPECT_THROW(constMixer.startTime(), boost::bad_weak_ptr);
}

TEST_F(MixerTest, ParametersRunOnTheTimelinesClock)
{
    EXPECT_EQ(12.5, m_mixer->toParameterTime(12.5));
    EXPECT_EQ(12.5, m_mixer->fromParameterTime(12.5));
    EXPECT_EQ(-7, m_mixer->fromGlobalToParametricTime(-7));
}

TEST_F(MixerTest, TellsOnceOfManyChangesWhileUpdatesAreCollected)
{
    watch();
    {
        UpdateCollector::Collection const collection;
        m_mixer->swapTrackOrder(m_first, m_third);
        m_mixer->swapTrackOrder(m_first, m_third);
        EXPECT_EQ(0, m_observer.calls());
    }
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(MixerTest, OneThatNothingOwnsCannotBeCollected)
{
    VisualMixer const unowned(640, 480, lock());
    UpdateCollector::Collection const collection;
    EXPECT_THROW(unowned.notify(), boost::bad_weak_ptr);
}

TEST_F(MixerTest, OneThatNothingOwnsMayNotifyWhenNothingIsCollected)
{
    VisualMixer const unowned(640, 480, lock());
    unowned.attach(&m_observer);
    unowned.notify();
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(MixerTest, EveryChangeOfItsEffectsIsTold)
{
    watch();
    boost::shared_ptr<Effect> const first(new Blur(lock()));
    boost::shared_ptr<Effect> const second(new Blur(lock()));
    EXPECT_EQ(0, m_mixer->addEffect(first));
    EXPECT_EQ(1, m_observer.calls());
    m_mixer->insertEffect(second, 0);
    EXPECT_EQ(2, m_observer.calls());
    m_mixer->swapEffectOrder(0, 1);
    EXPECT_EQ(3, m_observer.calls());
    m_mixer->removeEffect(first);
    EXPECT_EQ(4, m_observer.calls());
    m_mixer->removeEffect(0);
    EXPECT_EQ(5, m_observer.calls());
}

TEST_F(MixerTest, HoldsItsEffectsInOrder)
{
    boost::shared_ptr<Effect> const first(new Blur(lock()));
    boost::shared_ptr<Effect> const second(new Blur(lock()));
    m_mixer->addEffect(first);
    m_mixer->insertEffect(second, 0);
    Mixer const& constMixer = *m_mixer;
    EXPECT_EQ(2, m_mixer->numEffects());
    EXPECT_EQ(second, m_mixer->effectAtIndex(0));
    EXPECT_EQ(first, constMixer.effectAtIndex(1));
    m_mixer->swapEffectOrder(0, 1);
    EXPECT_EQ(first, m_mixer->effectAtIndex(0));
}

TEST_F(MixerTest, ACloneHasEffectsAndTracksOfItsOwn)
{
    boost::shared_ptr<Effect> const effect(new Blur(lock()));
    m_mixer->addEffect(effect);
    boost::shared_ptr<Mixer> const clone(m_mixer->clone());
    ASSERT_EQ(1, clone->numEffects());
    EXPECT_NE(effect, clone->effectAtIndex(0));
    ASSERT_EQ(3u, clone->numTracks());
    EXPECT_FALSE(clone->hasTrack(m_first));
    clone->removeEffect(0);
    EXPECT_EQ(1, m_mixer->numEffects());
}

TEST_F(MixerTest, AClonesMediasLieOnTheClonesTracksUnlinked)
{
    given("V1: aa / V2: aa");
    boost::shared_ptr<Mixer> const clone(visualMixer()->clone());
    boost::shared_ptr<Media const> const copied = clone->trackAtIndex(1)->mediaBegin()->second;
    EXPECT_NE(media("V2.a"), copied);
    EXPECT_EQ(clone->trackAtIndex(1), copied->parentTrack().lock());
    EXPECT_EQ(copied->linkEnd(), copied->linkBegin());
}

TEST_F(MixerTest, KnowsTheInstancesOfASourceByTrackAndTime)
{
    given("V1: .a / V2: a.b");
    ConstMediaList const wanted = {media("V1.a"), media("V2.a")};
    EXPECT_EQ(wanted, *visualMixer()->instancesOf(source('a')));
    EXPECT_TRUE(visualMixer()->hasInstanceOf(source('b')));
    EXPECT_FALSE(audioMixer()->hasInstanceOf(source('b')));
    EXPECT_TRUE(audioMixer()->instancesOf(source('b'))->empty());
}

TEST_F(MixerTest, PortionsNeedNoMap)
{
    given("V1: aaaa / V2: bb");
    boost::shared_ptr<VisualMixer> const portion =
        visualMixer()->copyPortion(Range<long long>(10, 20), ConstTrackSet{track("V1")}, nullptr);
    ASSERT_EQ(1u, portion->numTracks());
    EXPECT_EQ(10, portion->startTime());
    EXPECT_EQ(30, portion->endTime());
    boost::shared_ptr<VisualMixer> const chosen =
        visualMixer()->copyPortion(ConstMediaVector{media("V2.b")}, nullptr);
    ASSERT_EQ(1u, chosen->numTracks());
    EXPECT_EQ(20, chosen->endTime());
}

TEST_F(MixerTest, ALinkBetweenCopiedMediasHoldsBetweenTheirClonesWithoutAMap)
{
    given("V1: aa / V2: aa");
    boost::shared_ptr<VisualMixer> const chosen =
        visualMixer()->copyPortion(ConstMediaVector{media("V1.a"), media("V2.a")}, nullptr);
    EXPECT_TRUE(chosen->trackAtIndex(0)->mediaBegin()->second->isLinkedWith(
        chosen->trackAtIndex(1)->mediaBegin()->second));
}

TEST_F(MixerTest, IsNamedAfterItselfWhereAKindOfItIsNot)
{
    EXPECT_EQ("Mixer", m_mixer->Mixer::description());
    std::ostringstream out;
    XMLable::Options options{&out, ""};
    m_mixer->Mixer::xmlName(options);
    EXPECT_EQ("Mixer", out.str());
}

TEST_F(MixerTest, SortsTheMediasToCopyByTrackAndLeavesOutStrangers)
{
    given("A1: d / V1: ab / V2: c");
    TrackMediasMap sorted;
    visualMixer()->genTrackMapForCopying(
        ConstMediaVector{media("V1.b"), media("A1.d"), media("V2.c"), media("V1.a")}, &sorted);
    ASSERT_EQ(2u, sorted.size());
    EXPECT_EQ((ConstMediaVector{media("V1.b"), media("V1.a")}), sorted.at(track("V1")));
    EXPECT_EQ(ConstMediaVector{media("V2.c")}, sorted.at(track("V2")));
}

TEST_F(MixerTest, PrintsItsEffectsAttributesAndTracks)
{
    AudioMixer mixer(8000, 8, 1, lock());
    boost::shared_ptr<Track> const sound(new AudioTrack(lock()));
    mixer.trackList().push_back(sound);
    std::string const xml = xmlOf(mixer);
    // A mixer's body stands one level in, its tracks two.
    EXPECT_EQ(0u, xml.find("<AudioMixer id=\"#\"  >\n <Attributes>\n"));
    EXPECT_NE(std::string::npos, xml.find("\n <Tracks>\n  <AudioTrack id=\"#\"  >\n"));
    EXPECT_NE(std::string::npos, xml.find("\n  </AudioTrack>\n </Tracks>\n</AudioMixer>\n"));
}

TEST_F(MixerTest, PrintsEffectsBetweenParametersAndAttributes)
{
    m_mixer->addEffect(boost::shared_ptr<Effect>(new Blur(lock())));
    std::string const xml = xmlOf(*m_mixer);
    std::size_t const effects = xml.find("\n </Parameters>\n <Effects>\n  <");
    ASSERT_NE(std::string::npos, effects);
    EXPECT_LT(effects, xml.find("\n </Effects>\n <Attributes>\n"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
