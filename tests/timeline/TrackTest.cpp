#include "timeline/Track.h"

#include "datatypes/UpdateCollector.h"
#include "effects/Blur.h"
#include "parameters/MTVector.h"
#include "support/CountingObserver.h"
#include "support/ModelTest.h"
#include "support/OtherThread.h"
#include "support/Thrown.h"
#include "support/Xml.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <memory>
#include <vector>

namespace tarn {
namespace test {
namespace {

using Cut = Pair<boost::shared_ptr<Media>>;

/// What a track can be asked without changing it.
class TrackTest : public ModelTest
{
protected:
    ~TrackTest() override { m_empty->detach(&m_observer); }

    boost::shared_ptr<Track const> constTrack(std::string const& name) const { return track(name); }
    Cut cut(long long time) const { return track("V1")->mediaAtTime(time); }
    Cut both(std::string const& left, std::string const& right) const
    {
        return Cut(media(left), media(right));
    }
    /// The medias of V1 that reach into a range.
    ConstMediaList in(long long start, long long duration) const
    {
        return *constTrack("V1")->mediasIntersectingRange(Range<long long>(start, duration),
                                                          m_nothing);
    }

    boost::shared_ptr<Media> m_nothing;
    boost::shared_ptr<Track> m_empty{new VisualTrack(lock())};
    CountingObserver m_observer;
};

TEST_F(TrackTest, AnEmptyOneHasNoTime)
{
    EXPECT_EQ(0, m_empty->startTime());
    EXPECT_EQ(0, m_empty->endTime());
    EXPECT_EQ(0, m_empty->duration());
    EXPECT_EQ(0u, m_empty->numMedias());
}

TEST_F(TrackTest, RunsFromItsFirstMediaToTheEndOfItsLast)
{
    given("V1: ..aa...bbb");
    EXPECT_EQ(20, track("V1")->startTime());
    EXPECT_EQ(100, track("V1")->endTime());
    EXPECT_EQ(80, track("V1")->duration());
    EXPECT_EQ(2u, track("V1")->numMedias());
}

TEST_F(TrackTest, IteratorsWalkByRisingStart)
{
    given("V1: ..aa...bbb");
    EXPECT_EQ(20, track("V1")->mediaBegin()->first);
    EXPECT_EQ(media("V1.a"), track("V1")->mediaBegin()->second);
    EXPECT_EQ(media("V1.b"), (++track("V1")->mediaBegin())->second);
    EXPECT_EQ(2, std::distance(track("V1")->mediaBegin(), track("V1")->mediaEnd()));
    EXPECT_EQ(media("V1.b"), track("V1")->mediaRBegin()->second);
    EXPECT_EQ(2, std::distance(track("V1")->mediaRBegin(), track("V1")->mediaREnd()));
}

TEST_F(TrackTest, ConstIteratorsWalkTheSameWay)
{
    given("V1: ..aa...bbb");
    boost::shared_ptr<Track const> const shown = constTrack("V1");
    EXPECT_EQ(20, shown->mediaBegin()->first);
    EXPECT_EQ(media("V1.b"), (++shown->mediaBegin())->second);
    EXPECT_EQ(2, std::distance(shown->mediaBegin(), shown->mediaEnd()));
    EXPECT_EQ(media("V1.b"), shown->mediaRBegin()->second);
    EXPECT_EQ(2, std::distance(shown->mediaRBegin(), shown->mediaREnd()));
}

TEST_F(TrackTest, BoundsAreThoseOfTheStarts)
{
    given("V1: .aa..bb");
    boost::shared_ptr<Track const> const shown = constTrack("V1");
    EXPECT_EQ(media("V1.a"), shown->lower_bound(10)->second);
    EXPECT_EQ(media("V1.b"), shown->lower_bound(11)->second);
    EXPECT_EQ(media("V1.a"), shown->upper_bound(9)->second);
    EXPECT_EQ(media("V1.b"), shown->upper_bound(10)->second);
    EXPECT_EQ(shown->mediaEnd(), shown->upper_bound(50));
    EXPECT_EQ(shown->mediaEnd(), shown->lower_bound(51));
}

TEST_F(TrackTest, AConstIteratorKeepsTheProjectFromBeingWritten)
{
    given("V1: a");
    boost::shared_ptr<InternalProject> const locked = project;
    auto held = std::make_unique<Track::ConstMediaIterator>(constTrack("V1")->mediaBegin());
    OtherThread writer([locked] { ReadWriteMutex::ScopedWriteLock lock(locked->mutex()); });
    EXPECT_TRUE(writer.isWaiting());
    held.reset();
    EXPECT_TRUE(writer.finishes());
}

TEST_F(TrackTest, ABoundKeepsTheProjectFromBeingWrittenToo)
{
    given("V1: a");
    boost::shared_ptr<InternalProject> const locked = project;
    auto held = std::make_unique<Track::ConstMediaIterator>(constTrack("V1")->upper_bound(0));
    OtherThread writer([locked] { ReadWriteMutex::ScopedWriteLock lock(locked->mutex()); });
    EXPECT_TRUE(writer.isWaiting());
    held.reset();
    EXPECT_TRUE(writer.finishes());
}

TEST_F(TrackTest, QueriesOfADeadProjectFail)
{
    boost::shared_ptr<Track const> const orphan = m_empty;
    project.reset();
    EXPECT_THROW(orphan->mediaBegin(), boost::bad_weak_ptr);
    EXPECT_THROW(orphan->mediaRBegin(), boost::bad_weak_ptr);
    EXPECT_THROW(orphan->lower_bound(0), boost::bad_weak_ptr);
    EXPECT_THROW(orphan->upper_bound(0), boost::bad_weak_ptr);
    EXPECT_THROW(orphan->startTime(), boost::bad_weak_ptr);
    EXPECT_THROW(orphan->hasMedia(m_nothing), boost::bad_weak_ptr);
}

TEST_F(TrackTest, FindsTheMediaItHolds)
{
    given("V1: .aa / V2: .bb");
    EXPECT_EQ(media("V1.a"), track("V1")->findMedia(media("V1.a")));
    EXPECT_EQ(media("V1.a"), constTrack("V1")->findMedia(media("V1.a")));
    EXPECT_TRUE(track("V1")->hasMedia(media("V1.a")));
}

TEST_F(TrackTest, FindsNoOtherMediaOfTheSameStart)
{
    given("V1: .aa / V2: .bb");
    EXPECT_FALSE(track("V1")->findMedia(media("V2.b")));
    EXPECT_FALSE(constTrack("V1")->findMedia(media("V2.b")));
    EXPECT_FALSE(track("V1")->hasMedia(media("V2.b")));
}

TEST_F(TrackTest, FindsNoMediaWhereNothingStarts)
{
    given("V1: .aa / V2: bb");
    EXPECT_FALSE(track("V1")->findMedia(media("V2.b")));
    EXPECT_FALSE(m_empty->findMedia(media("V2.b")));
    EXPECT_FALSE(track("V1")->findMedia(m_nothing));
    EXPECT_FALSE(track("V1")->hasMedia(m_nothing));
}

TEST_F(TrackTest, ACutThroughAMediaGivesItTwice)
{
    given("V1: .aaa");
    EXPECT_EQ(both("V1.a", "V1.a"), cut(11));
    EXPECT_EQ(both("V1.a", "V1.a"), cut(39));
}

TEST_F(TrackTest, ACutBetweenTouchingMediasGivesBothInOrder)
{
    // From 0 to 100 and from 100 to 200.
    given("V1: aaaaaaaaaabbbbbbbbbb");
    EXPECT_EQ(both("V1.a", "V1.b"), cut(100));
    EXPECT_EQ(both("V1.b", "V1.b"), cut(150));
}

TEST_F(TrackTest, ACutAtAStartAfterAGapGivesTheRightOneOnly)
{
    given("V1: a..bb");
    EXPECT_EQ(Cut(m_nothing, media("V1.b")), cut(30));
    EXPECT_EQ(Cut(m_nothing, media("V1.a")), cut(0));
}

TEST_F(TrackTest, ACutAtAnEndBeforeAGapGivesTheLeftOneOnly)
{
    given("V1: a..bb");
    EXPECT_EQ(Cut(media("V1.a"), m_nothing), cut(10));
    EXPECT_EQ(Cut(media("V1.b"), m_nothing), cut(50));
}

TEST_F(TrackTest, ACutInAGapGivesNothing)
{
    given("V1: .a..bb");
    EXPECT_EQ(Cut(), cut(25));
    EXPECT_EQ(Cut(), cut(61));
}

TEST_F(TrackTest, ACutBeforeTheFirstMediaGivesNothing)
{
    given("V1: .a..bb");
    EXPECT_EQ(Cut(), cut(9));
    EXPECT_EQ(Cut(), cut(-5));
}

TEST_F(TrackTest, ACutOfAnEmptyTrackGivesNothing)
{
    EXPECT_EQ(Cut(), m_empty->mediaAtTime(0));
}

TEST_F(TrackTest, ACutGivesConstMediasOfAConstTrack)
{
    given("V1: ab");
    Pair<boost::shared_ptr<Media const>> const found = constTrack("V1")->mediaAtTime(10);
    EXPECT_EQ(media("V1.a"), found.first);
    EXPECT_EQ(media("V1.b"), found.second);
}

TEST_F(TrackTest, ListsTheMediasInARangeInTimeOrder)
{
    given("V1: aab.cc");
    EXPECT_EQ((ConstMediaList{media("V1.a"), media("V1.b"), media("V1.c")}), in(0, 100));
    EXPECT_EQ((ConstMediaList{media("V1.a"), media("V1.b")}), in(19, 2));
    EXPECT_EQ(ConstMediaList{media("V1.b")}, in(25, 15));
}

TEST_F(TrackTest, AMediaThatBeganBeforeARangeReachesIntoIt)
{
    given("V1: aaaaaaaaaa");
    EXPECT_EQ(ConstMediaList{media("V1.a")}, in(50, 10));
    EXPECT_EQ(ConstMediaList{media("V1.a")}, in(99, 500));
}

TEST_F(TrackTest, AMediaThatTouchesARangeIsNotInIt)
{
    given("V1: ..aa");
    EXPECT_EQ(ConstMediaList(), in(0, 20));
    EXPECT_EQ(ConstMediaList(), in(40, 20));
    EXPECT_EQ(ConstMediaList{media("V1.a")}, in(0, 21));
    EXPECT_EQ(ConstMediaList{media("V1.a")}, in(39, 20));
}

TEST_F(TrackTest, NothingIsInARangeThatIsNotLongerThanNothing)
{
    given("V1: ..aabb");
    EXPECT_EQ(ConstMediaList(), in(30, 0));
    EXPECT_EQ(ConstMediaList(), in(50, -30));
    EXPECT_EQ(ConstMediaList(), in(0, -5));
}

TEST_F(TrackTest, NothingIsInARangeOfAnEmptyTrack)
{
    EXPECT_TRUE(m_empty->mediasIntersectingRange(Range<long long>(0, 100), m_nothing)->empty());
    EXPECT_FALSE(m_empty->intersectionAtRange(Range<long long>(0, 100)));
    EXPECT_FALSE(m_empty->intersectionAtRange(Range<long long>(0, -100)));
}

TEST_F(TrackTest, AMediaWithoutLengthIsInNoRange)
{
    given("V1: .ss");
    track("V1")->trimEnd(media("V1.s"), 20, false);
    ASSERT_EQ(Range<long long>(10, 0), media("V1.s")->trackRange());
    EXPECT_EQ(ConstMediaList(), in(0, 100));
    EXPECT_FALSE(track("V1")->intersectionAtRange(Range<long long>(0, 100)));
}

TEST_F(TrackTest, ExcludedMediasAreLeftOut)
{
    given("V1: abc");
    Range<long long> const all(0, 100);
    boost::shared_ptr<Track const> const shown = constTrack("V1");
    EXPECT_EQ((ConstMediaList{media("V1.a"), media("V1.c")}),
              *shown->mediasIntersectingRange(all, media("V1.b")));
    EXPECT_EQ(ConstMediaList{media("V1.b")},
              *shown->mediasIntersectingRange(all, ConstMediaSet{media("V1.a"), media("V1.c")}));
    EXPECT_EQ(ConstMediaList{media("V1.a")},
              *shown->mediasIntersectingRange(all, ConstMediaList{media("V1.b"), media("V1.c")}));
}

TEST_F(TrackTest, AMutableTrackListsMutableMedias)
{
    given("V1: abc");
    boost::shared_ptr<MediaList> const found =
        track("V1")->mediasIntersectingRange(Range<long long>(0, 100), media("V1.b"));
    EXPECT_EQ((MediaList{media("V1.a"), media("V1.c")}), *found);
}

TEST_F(TrackTest, ThoseWithLinksAreListedApart)
{
    given("V1: abcd / A1: .b.d");
    Range<long long> const all(0, 100);
    EXPECT_EQ((ConstMediaVector{media("V1.b"), media("V1.d")}),
              track("V1")->linkedMediasIntersectingRange(all));
    EXPECT_EQ(ConstMediaVector{media("V1.b")},
              track("V1")->linkedMediasIntersectingRange(Range<long long>(19, 11)));
    EXPECT_EQ(ConstMediaVector(),
              track("V1")->linkedMediasIntersectingRange(Range<long long>(20, 10)));
    EXPECT_EQ(ConstMediaVector(),
              track("V1")->linkedMediasIntersectingRange(Range<long long>(10, 0)));
}

TEST_F(TrackTest, AMediaLiesOnItsOwnTrackAlone)
{
    given("V1: a / V2: b");
    EXPECT_TRUE(media("V1.a")->isPlacedOn(track("V1")));
    EXPECT_FALSE(media("V1.a")->isPlacedOn(track("V2")));
    EXPECT_FALSE(media("V2.b")->isPlacedOn(track("V1")));
    EXPECT_FALSE(freshVideo('c', 1)->isPlacedOn(track("V1")));
}

TEST_F(TrackTest, TellsWhetherAnythingIsInARange)
{
    given("V1: ..aa");
    EXPECT_TRUE(track("V1")->intersectionAtRange(Range<long long>(0, 21)));
    EXPECT_TRUE(track("V1")->intersectionAtRange(Range<long long>(25, 1)));
    EXPECT_FALSE(track("V1")->intersectionAtRange(Range<long long>(0, 20)));
    EXPECT_FALSE(track("V1")->intersectionAtRange(Range<long long>(40, 20)));
    EXPECT_FALSE(track("V1")->intersectionAtRange(Range<long long>(30, 0)));
}

TEST_F(TrackTest, ASubSectionGivesEachMediaWithTheCommonRange)
{
    given("V1: aaa.bbb");
    auto const section = track("V1")->subSection(Range<long long>(15, 35));
    ASSERT_EQ(2u, section->size());
    EXPECT_EQ(media("V1.a"), (*section)[0].media);
    EXPECT_EQ(Range<long long>(15, 15), (*section)[0].range);
    EXPECT_EQ(media("V1.b"), (*section)[1].media);
    EXPECT_EQ(Range<long long>(40, 10), (*section)[1].range);
}

TEST_F(TrackTest, ASubSectionOfAnEmptyRangeIsEmpty)
{
    given("V1: aaa.bbb");
    EXPECT_TRUE(track("V1")->subSection(Range<long long>(15, 0))->empty());
    EXPECT_TRUE(track("V1")->subSection(Range<long long>(30, 10))->empty());
    EXPECT_TRUE(track("V1")->subSection(Range<long long>(30, -20))->empty());
}

TEST_F(TrackTest, KnowsTheInstancesOfASourceByTime)
{
    given("V1: a.b / V2: a");
    track("V2")->removeMedia(media("V2.a"), false);
    track("V1")->addMedia(media("V2.a"), 50);
    EXPECT_EQ((ConstMediaList{media("V1.a"), media("V2.a")}),
              *track("V1")->instancesOf(source('a')));
    EXPECT_TRUE(track("V1")->hasInstanceOf(source('b')));
    EXPECT_FALSE(track("V2")->hasInstanceOf(source('a')));
    EXPECT_TRUE(track("V2")->instancesOf(source('a'))->empty());
}

TEST_F(TrackTest, ParametersRunOnTheTimelinesClock)
{
    EXPECT_EQ(12.5, m_empty->toParameterTime(12.5));
    EXPECT_EQ(12.5, m_empty->fromParameterTime(12.5));
    EXPECT_EQ(-7, m_empty->fromGlobalToParametricTime(-7));
}

TEST_F(TrackTest, OfItselfHasNoParametersAndTheIdentAttribute)
{
    EXPECT_EQ(0, m_empty->Track::numParameters());
    EXPECT_TRUE(m_empty->Track::parameterVector()->empty());
    EXPECT_EQ(1, m_empty->numAttributes());
    EXPECT_EQ("Track", m_empty->description());
}

TEST_F(TrackTest, TellsOnceOfManyChangesWhileUpdatesAreCollected)
{
    m_empty->attach(&m_observer);
    {
        UpdateCollector::Collection const collection;
        m_empty->notify();
        m_empty->notify();
        EXPECT_EQ(0, m_observer.calls());
    }
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(TrackTest, OneThatNothingOwnsCannotBeCollected)
{
    VisualTrack const unowned(lock());
    UpdateCollector::Collection const collection;
    EXPECT_THROW(unowned.notify(), boost::bad_weak_ptr);
}

TEST_F(TrackTest, EveryChangeOfItsEffectsIsTold)
{
    m_empty->attach(&m_observer);
    boost::shared_ptr<Effect> const first(new Blur(lock()));
    boost::shared_ptr<Effect> const second(new Blur(lock()));
    EXPECT_EQ(0, m_empty->addEffect(first));
    EXPECT_EQ(1, m_observer.calls());
    m_empty->insertEffect(second, 0);
    EXPECT_EQ(2, m_observer.calls());
    m_empty->swapEffectOrder(0, 1);
    EXPECT_EQ(3, m_observer.calls());
    m_empty->removeEffect(first);
    EXPECT_EQ(4, m_observer.calls());
    m_empty->removeEffect(0);
    EXPECT_EQ(5, m_observer.calls());
}

TEST_F(TrackTest, HoldsItsEffectsInOrder)
{
    boost::shared_ptr<Effect> const first(new Blur(lock()));
    boost::shared_ptr<Effect> const second(new Blur(lock()));
    m_empty->addEffect(first);
    m_empty->insertEffect(second, 0);
    Track const& constEmpty = *m_empty;
    EXPECT_EQ(2, m_empty->numEffects());
    EXPECT_EQ(second, m_empty->effectAtIndex(0));
    EXPECT_EQ(first, constEmpty.effectAtIndex(1));
}

TEST_F(TrackTest, PrintsItsMediasByRisingTime)
{
    given("A1: ..b");
    boost::shared_ptr<Media> const early = freshSound('c', 1);
    track("A1")->addMedia(early, 0);
    std::string const xml = xmlOf(*track("A1"));
    std::size_t const first = xml.find("\n <Medias>\n  <AMFile id=\"#\" start=\"0\" ");
    std::size_t const second = xml.find("\n  </AMFile>\n  <AMFile id=\"#\" start=\"20\" ");
    ASSERT_NE(std::string::npos, first);
    ASSERT_NE(std::string::npos, second);
    EXPECT_LT(first, second);
    EXPECT_LT(second, xml.find("\n  </AMFile>\n </Medias>\n</AudioTrack>\n"));
}

TEST_F(TrackTest, PrintsItsEffectsBeforeItsMedias)
{
    m_empty->addEffect(boost::shared_ptr<Effect>(new Blur(lock())));
    std::string const xml = xmlOf(*m_empty);
    std::size_t const effects = xml.find("\n <Effects>\n");
    ASSERT_NE(std::string::npos, effects);
    EXPECT_LT(effects, xml.find("\n </Effects>\n <Attributes>\n"));
    EXPECT_LT(xml.find("\n <Attributes>\n"), xml.find("\n <Medias>\n </Medias>\n"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
