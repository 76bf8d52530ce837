#include "support/FakeProject.h"
#include "timeline/AMFile.h"
#include "timeline/AudioTrack.h"
#include "timeline/AudioTransition.h"
#include "timeline/IMFile.h"
#include "timeline/ImageTransition.h"
#include "timeline/Track.h"
#include "timeline/VisualTrack.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

/// A transition at [20, 30), a still before it at [0, 20) and one after it at [30, 40).
class TransitionNeighboursTest : public testing::Test
{
protected:
    TransitionNeighboursTest()
    {
        m_track->addMedia(m_before, 0);
        m_track->addMedia(m_transition, 20);
        m_track->addMedia(m_after, 30);
    }

    boost::shared_ptr<Media> still(long long duration) const
    {
        return boost::shared_ptr<Media>(
            new IMFile(0, duration, m_project->weak(), Rect<float>(0, 0, 64, 48), "still"));
    }
    boost::shared_ptr<ImageTransition> transition(long long duration) const
    {
        return boost::shared_ptr<ImageTransition>(
            new ImageTransition(0, duration, m_project->weak()));
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::shared_ptr<Track> m_track{new VisualTrack(m_project->weak())};
    boost::shared_ptr<Media> m_before = still(20);
    boost::shared_ptr<ImageTransition> m_transition = transition(10);
    boost::shared_ptr<Media> m_after = still(10);
    boost::shared_ptr<Transition const> const m_none;
};

TEST_F(TransitionNeighboursTest, AMediaFindsTheTransitionOnEitherSide)
{
    EXPECT_EQ(m_transition, m_track->rightTransition(m_before));
    EXPECT_EQ(m_transition, m_track->leftTransition(m_after));
}

TEST_F(TransitionNeighboursTest, ATransitionFindsTheMediaOnEitherSide)
{
    EXPECT_EQ(m_before, m_track->leftOfTransition(m_transition));
    EXPECT_EQ(m_after, m_track->rightOfTransition(m_transition));
}

TEST_F(TransitionNeighboursTest, NothingLiesBeyondTheEnds)
{
    EXPECT_EQ(m_none, m_track->leftTransition(m_before));
    EXPECT_EQ(m_none, m_track->rightTransition(m_after));
}

TEST_F(TransitionNeighboursTest, APlainMediaIsNoTransition)
{
    boost::shared_ptr<Media> const plain = still(10);
    m_track->addMedia(plain, 40);
    EXPECT_EQ(m_none, m_track->rightTransition(m_after));
    EXPECT_EQ(m_none, m_track->leftTransition(plain));
}

TEST_F(TransitionNeighboursTest, WhatDoesNotTouchIsNoNeighbour)
{
    m_track->move(m_before, -1, false);
    m_track->move(m_after, 1, false);
    EXPECT_EQ(m_none, m_track->rightTransition(m_before));
    EXPECT_EQ(m_none, m_track->leftTransition(m_after));
    EXPECT_FALSE(m_track->leftOfTransition(m_transition));
    EXPECT_FALSE(m_track->rightOfTransition(m_transition));
}

TEST_F(TransitionNeighboursTest, ATransitionAtTheEndsOfATrackHasNoNeighbour)
{
    m_track->removeMedia(m_before, false);
    m_track->removeMedia(m_after, false);
    EXPECT_FALSE(m_track->leftOfTransition(m_transition));
    EXPECT_FALSE(m_track->rightOfTransition(m_transition));
}

TEST_F(TransitionNeighboursTest, ATransitionMayBeTheNeighbourOfATransition)
{
    boost::shared_ptr<ImageTransition> const next = transition(10);
    m_track->addMedia(next, 40);
    m_track->removeMedia(m_after, false);
    m_track->move(next, -10, false);
    EXPECT_EQ(next, m_track->rightTransition(m_transition));
    EXPECT_EQ(m_transition, m_track->leftOfTransition(next));
}

TEST_F(TransitionNeighboursTest, AParentlessMediaHasNoNeighbours)
{
    m_track->removeMedia(m_transition, false);
    EXPECT_FALSE(m_track->leftOfTransition(m_transition));
    EXPECT_FALSE(m_track->rightOfTransition(m_transition));
    m_track->removeMedia(m_before, false);
    EXPECT_EQ(m_none, m_track->leftTransition(m_before));
    EXPECT_EQ(m_none, m_track->rightTransition(m_before));
}

TEST_F(TransitionNeighboursTest, NeighboursAreThoseOnTheMediasOwnTrack)
{
    VisualTrack const another(m_project->weak());
    EXPECT_EQ(m_transition, another.rightTransition(m_before));
    EXPECT_EQ(m_after, another.rightOfTransition(m_transition));
}

TEST_F(TransitionNeighboursTest, SoundsFindTheirTransitionsToo)
{
    boost::shared_ptr<Track> const sounds(new AudioTrack(m_project->weak()));
    boost::shared_ptr<Media> const sound(
        new AMFile(Range<long long>(0, 10), 44100, 16, m_project->weak(), "sound"));
    boost::shared_ptr<AudioTransition> const crossFade(
        new AudioTransition(Range<long long>(0, 10), m_project->weak()));
    sounds->addMedia(sound, 0);
    // A sound track's own type check refuses it.
    sounds->addMediaSansTypeCheck(crossFade, 10);
    EXPECT_EQ(crossFade, sounds->rightTransition(sound));
    EXPECT_EQ(sound, sounds->leftOfTransition(crossFade));
}

}  // namespace
}  // namespace test
}  // namespace tarn
