#include "effects/Effectable.h"

#include "effects/Blur.h"
#include "effects/CompositeEffect.h"
#include "exceptions/IndexException.h"
#include "exceptions/ValueException.h"
#include "parameters/MTVector.h"
#include "parameters/ParameterInterface.h"
#include "support/CountingObserver.h"
#include "support/FakeProject.h"
#include "support/Thrown.h"
#include "timeline/IMFile.h"
#include "timeline/ImageTransition.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

/// What effects can be put on: a movie of 10 that shows its source from 100, a track, a mixer and a
/// transition.
class EffectableTest : public ::testing::Test
{
protected:
    boost::shared_ptr<Effect> effect(std::string const& name) const
    {
        return boost::shared_ptr<Effect>(new CompositeEffect(name, m_project->weak()));
    }
    boost::shared_ptr<VMFile> movie() const
    {
        return boost::shared_ptr<VMFile>(new VMFile(Range<long long>(100, 10), m_project->weak(),
                                                    Rect<float>(0, 0, 64, 48), "movie"));
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::shared_ptr<VMFile> m_movie = movie();
    VisualTrack m_track{m_project->weak()};
    VisualMixer m_mixer{640, 480, m_project->weak()};
    ImageTransition m_transition{0, 10, m_project->weak()};
    boost::shared_ptr<Effect> m_a = effect("a");
    boost::shared_ptr<Effect> m_b = effect("b");
    CountingObserver m_observer;
};

TEST_F(EffectableTest, AnEffectOnAMediaRunsFromTheMediasStart)
{
    // g + 100 - 30
    m_movie->setTrackStart(30);
    m_movie->addEffect(m_a);
    EXPECT_EQ(105, m_a->fromGlobalToParametricTime(35));
}

TEST_F(EffectableTest, AnEffectOnAStillIsAtZeroWhereTheStillStarts)
{
    boost::shared_ptr<IMFile> const still(
        new IMFile(0, 10, m_project->weak(), Rect<float>(0, 0, 64, 48), "still"));
    still->setTrackStart(30);
    still->addEffect(m_a);
    EXPECT_EQ(0, m_a->fromGlobalToParametricTime(30));
    EXPECT_EQ(5, m_a->fromGlobalToParametricTime(35));
}

TEST_F(EffectableTest, TheStretchActsOnTheTimelinesTimeBeforeTheStartIsTakenOff)
{
    // 50 / 2 + 100 - 30; 51 / 2 + 100 - 30 = 95.5
    m_movie->stretch(2);
    m_movie->setTrackStart(30);
    EXPECT_EQ(95, m_movie->globalTimeToEffectTime(50));
    EXPECT_EQ(95, m_movie->globalTimeToEffectTime(51));
}

TEST_F(EffectableTest, EffectTimeIsCutTowardsZero)
{
    // -201 / 2 + 100 - 30 = -30.5
    m_movie->stretch(2);
    m_movie->setTrackStart(30);
    EXPECT_EQ(-30, m_movie->globalTimeToEffectTime(-201));
}

TEST_F(EffectableTest, AnInsertedEffectRunsOnTheMediasClockToo)
{
    m_movie->insertEffect(m_a, 0);
    EXPECT_EQ(m_movie.get(), m_a->effectTimeConverter());
}

TEST_F(EffectableTest, AnEffectTakenOffRunsOnTheTimelinesClock)
{
    m_movie->setTrackStart(30);
    m_movie->addEffect(m_a);
    EXPECT_EQ(m_a, m_movie->removeEffect(boost::shared_ptr<Effect const>(m_a)).first);
    EXPECT_EQ(35, m_a->fromGlobalToParametricTime(35));
    EXPECT_EQ(nullptr, m_a->effectTimeConverter());
}

TEST_F(EffectableTest, TakenOffByIndexItIsTheRemovedEffectThatLosesTheClock)
{
    m_movie->addEffect(m_a);
    m_movie->addEffect(m_b);
    RemovedEffect const removed = m_movie->removeEffect(0);
    EXPECT_EQ(m_b, removed.first);
    EXPECT_EQ(0, removed.second);
    EXPECT_EQ(nullptr, m_a->effectTimeConverter());
    EXPECT_EQ(m_movie.get(), m_b->effectTimeConverter());
}

TEST_F(EffectableTest, TheLastOneCanBeTakenOffByIndex)
{
    m_movie->addEffect(m_a);
    EXPECT_FALSE(m_movie->removeEffect(0).first);
    EXPECT_EQ(nullptr, m_a->effectTimeConverter());
    EXPECT_EQ(0, m_movie->numEffects());
}

TEST_F(EffectableTest, AMediaTellsOfEveryChangeOfItsEffects)
{
    m_movie->attach(&m_observer);
    m_movie->addEffect(m_a);
    EXPECT_EQ(1, m_observer.calls());
    m_movie->insertEffect(m_b, 0);
    EXPECT_EQ(2, m_observer.calls());
    m_movie->swapEffectOrder(0, 1);
    EXPECT_EQ(3, m_observer.calls());
    m_movie->removeEffect(boost::shared_ptr<Effect const>(m_b));
    EXPECT_EQ(4, m_observer.calls());
    m_movie->removeEffect(0);
    EXPECT_EQ(5, m_observer.calls());
    m_movie->detach(&m_observer);
}

TEST_F(EffectableTest, AMediaTellsOfNothingThatWasRefused)
{
    m_movie->attach(&m_observer);
    EXPECT_EQ(1, thrownBy<IndexException>([&] { m_movie->insertEffect(m_a, 1); }).index());
    EXPECT_EQ(0, thrownBy<IndexException>([&] { m_movie->swapEffectOrder(0, 0); }).index());
    EXPECT_EQ(0, thrownBy<IndexException>([&] { m_movie->removeEffect(0); }).index());
    EXPECT_THROW(m_movie->removeEffect(boost::shared_ptr<Effect const>(m_a)),
                 ValueException<boost::shared_ptr<Effect const>>);
    EXPECT_EQ(0, m_observer.calls());
    EXPECT_EQ(nullptr, m_a->effectTimeConverter());
    m_movie->detach(&m_observer);
}

TEST_F(EffectableTest, AMediaTakesANullEffect)
{
    EXPECT_EQ(0, m_movie->addEffect(boost::shared_ptr<Effect>()));
    m_movie->insertEffect(boost::shared_ptr<Effect>(), 0);
    boost::shared_ptr<Media> const copy(m_movie->clone());
    EXPECT_EQ(2, copy->numEffects());
    m_movie->removeEffect(0);
    EXPECT_EQ(1, m_movie->numEffects());
}

TEST_F(EffectableTest, AClonedMediasEffectsRunOnItsOwnClock)
{
    m_movie->addEffect(m_a);
    boost::shared_ptr<VMFile> const copy(m_movie->clone());
    copy->setTrackStart(40);
    EXPECT_EQ(copy.get(), copy->effectAtIndex(0)->effectTimeConverter());
    EXPECT_EQ(105, copy->effectAtIndex(0)->fromGlobalToParametricTime(45));
    EXPECT_EQ(m_movie.get(), m_a->effectTimeConverter());
}

TEST_F(EffectableTest, AnEffectOutlivesItsMedia)
{
    m_movie->addEffect(m_a);
    m_movie.reset();
    EXPECT_EQ(nullptr, m_a->effectTimeConverter());
    EXPECT_EQ(7, m_a->fromGlobalToParametricTime(7));
}

TEST_F(EffectableTest, AnEffectOnTwoMediasRunsOnTheClockOfTheLater)
{
    boost::shared_ptr<VMFile> const later = movie();
    m_movie->addEffect(m_a);
    later->addEffect(m_a);
    EXPECT_EQ(later.get(), m_a->effectTimeConverter());
    m_movie.reset();
    EXPECT_EQ(later.get(), m_a->effectTimeConverter());
}

TEST_F(EffectableTest, AnEffectOnATrackRunsOnTheTimelinesClock)
{
    EXPECT_EQ(0, m_track.addEffect(m_a));
    m_track.insertEffect(m_b, 0);
    EXPECT_EQ(35, m_a->fromGlobalToParametricTime(35));
    EXPECT_EQ(35, m_b->fromGlobalToParametricTime(35));
    EXPECT_EQ(m_b, m_track.effectAtIndex(0));
}

TEST_F(EffectableTest, AnEffectOnAMixerRunsOnTheTimelinesClock)
{
    EXPECT_EQ(0, m_mixer.addEffect(m_a));
    m_mixer.insertEffect(m_b, 0);
    EXPECT_EQ(35, m_a->fromGlobalToParametricTime(35));
    EXPECT_EQ(35, m_b->fromGlobalToParametricTime(35));
    EXPECT_EQ(m_b, m_mixer.effectAtIndex(0));
}

TEST_F(EffectableTest, ATrackTellsOnceOfEveryChangeAndNeverOfARefusal)
{
    m_track.attach(&m_observer);
    m_track.addEffect(m_a);
    m_track.insertEffect(m_b, 0);
    m_track.swapEffectOrder(0, 1);
    m_track.removeEffect(boost::shared_ptr<Effect const>(m_b));
    m_track.removeEffect(0);
    EXPECT_EQ(5, m_observer.calls());
    EXPECT_EQ(0, thrownBy<IndexException>([&] { m_track.swapEffectOrder(0, 0); }).index());
    EXPECT_EQ(5, m_observer.calls());
    m_track.detach(&m_observer);
}

TEST_F(EffectableTest, AMixerTellsOnceOfEveryChangeAndNeverOfARefusal)
{
    m_mixer.attach(&m_observer);
    m_mixer.addEffect(m_a);
    m_mixer.insertEffect(m_b, 0);
    m_mixer.swapEffectOrder(0, 1);
    m_mixer.removeEffect(boost::shared_ptr<Effect const>(m_b));
    m_mixer.removeEffect(0);
    EXPECT_EQ(5, m_observer.calls());
    EXPECT_EQ(0, thrownBy<IndexException>([&] { m_mixer.removeEffect(0); }).index());
    EXPECT_EQ(5, m_observer.calls());
    m_mixer.detach(&m_observer);
}

TEST_F(EffectableTest, ATransitionHasRoomForOneEffect)
{
    EXPECT_FALSE(m_transition.transitionEffect());
    EXPECT_EQ(0, m_transition.addEffect(m_a));
    EXPECT_EQ(m_a, m_transition.transitionEffect());
    EXPECT_STREQ("add error: Image Transitions can only have one transition effect",
                 thrownBy<TarnMediaLibException>([&] { m_transition.addEffect(m_b); }).what());
    EXPECT_STREQ(
        "insert error: Image Transitions can only have one transition effect",
        thrownBy<TarnMediaLibException>([&] { m_transition.insertEffect(m_b, 0); }).what());
    EXPECT_EQ(1, m_transition.numEffects());
    EXPECT_EQ(nullptr, m_b->effectTimeConverter());
}

TEST_F(EffectableTest, ATransitionAsksForRoomBeforeItLooksAtTheIndex)
{
    m_transition.insertEffect(m_a, 0);
    EXPECT_THROW(m_transition.insertEffect(m_b, 7), TarnMediaLibException);
    EXPECT_STREQ(
        "insert error: Image Transitions can only have one transition effect",
        thrownBy<TarnMediaLibException>([&] { m_transition.insertEffect(m_b, 7); }).what());
}

TEST_F(EffectableTest, ATransitionListsItsEffectsParametersAfterItsOwn)
{
    boost::shared_ptr<Effect> const blur(new Blur(m_project->weak()));
    m_transition.addEffect(blur);
    auto const parameters = m_transition.parameterVector();
    ASSERT_EQ(25u, parameters->size());
    EXPECT_EQ("anchor2", (*parameters)[22]->ident());
    EXPECT_EQ(blur->parameters().front(), (*parameters)[23]);
    EXPECT_EQ(blur->parameters().back(), (*parameters)[24]);
}

TEST_F(EffectableTest, OtherOwnersListTheirOwnParametersAlone)
{
    boost::shared_ptr<Effect> const blur(new Blur(m_project->weak()));
    m_movie->addEffect(blur);
    m_track.addEffect(blur);
    EXPECT_EQ(23u, m_movie->parameterVector()->size());
    EXPECT_EQ(14u, m_track.parameterVector()->size());
}

}  // namespace
}  // namespace test
}  // namespace tarn
