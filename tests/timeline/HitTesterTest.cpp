#include "timeline/HitTester.h"

#include "datatypes/Point.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "support/FakeProject.h"
#include "support/Geometry.h"
#include "timeline/IMFile.h"
#include "timeline/ImageTransition.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <gtest/gtest.h>

#include <cmath>

namespace tarn {
namespace test {
namespace {

/// A mixer of 640 x 480 with one track, and stills of 64 x 48 that last 10. The eye stands 3000
/// before the middle and sees the plane z = 0 so that a location on the viewport is a place on it.
class HitTesterTest : public ::testing::Test
{
protected:
    HitTesterTest() { m_mixer->addTrack(m_track, -1); }

    boost::shared_ptr<VisualTrack> frontTrack() const
    {
        boost::shared_ptr<VisualTrack> const track(new VisualTrack(m_project->weak()));
        m_mixer->addTrack(track, -1);
        return track;
    }
    boost::shared_ptr<IMFile> still(boost::shared_ptr<VisualTrack> const& track,
                                    long long start) const
    {
        boost::shared_ptr<IMFile> const media(
            new IMFile(0, 10, m_project->weak(), Rect<float>(0, 0, 64, 48), "still"));
        track->addMedia(media, start);
        return media;
    }
    static void set(boost::shared_ptr<VectorParam> const& vector, double x, double y, double z)
    {
        vector->at(0)->changeKeyFrame(0, x);
        vector->at(1)->changeKeyFrame(0, y);
        vector->at(2)->changeKeyFrame(0, z);
    }
    boost::shared_ptr<VisualMedia const> mediaAt(double x, double y, long long time = 0) const
    {
        return HitTester::mediaAtLocation(m_mixer, Point(x, y, 0), time);
    }
    Point placeAt(double x, double y, long long time = 0) const
    {
        return HitTester::hitTestAtLocation(m_mixer, Point(x, y, 0), time).second;
    }
    /// Up to the rounding of a ray 3000 long.
    static ::testing::AssertionResult isClose(Point const& got, double x, double y)
    {
        if (std::fabs(got.x - x) < 1e-6 && std::fabs(got.y - y) < 1e-6 && std::fabs(got.z) < 1e-6)
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << got << " instead of " << Point(x, y, 0);
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    boost::shared_ptr<VisualMixer> m_mixer{new VisualMixer(640, 480, m_project->weak())};
    boost::shared_ptr<VisualTrack> m_track{new VisualTrack(m_project->weak())};
    boost::shared_ptr<VisualMedia const> const m_none;
};

TEST_F(HitTesterTest, AMixerWithoutTracksIsNotHit)
{
    boost::shared_ptr<VisualMixer> const empty(new VisualMixer(640, 480, m_project->weak()));
    EXPECT_FALSE(HitTester::hitTestAtLocation(empty, Point(), 0).first);
    EXPECT_EQ(Point(), HitTester::hitTestAtLocation(empty, Point(), 0).second);
    EXPECT_FALSE(HitTester::mediaAtLocation(empty, Point(), 0));
}

TEST_F(HitTesterTest, AnEmptyTrackIsNotHit)
{
    EXPECT_EQ(m_none, mediaAt(10, 20));
    EXPECT_EQ(Point(), placeAt(10, 20));
}

TEST_F(HitTesterTest, APictureIsHitWhereItIsSeen)
{
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    EXPECT_EQ(media, mediaAt(10, 20));
    EXPECT_TRUE(isClose(placeAt(10, 20), 10, 20));
    EXPECT_EQ(media, HitTester::hitTestAtLocation(m_mixer, Point(10, 20, 0), 0).first);
}

/// A host's own kind of track.
class OwnTrack : public VisualTrack
{
public:
    using VisualTrack::VisualTrack;
};

TEST_F(HitTesterTest, APictureOnAHostsOwnTrackIsHit)
{
    boost::shared_ptr<VisualTrack> const own(new OwnTrack(m_project->weak()));
    m_mixer->addTrack(own, -1);
    boost::shared_ptr<IMFile> const media = still(own, 0);
    EXPECT_EQ(media, mediaAt(10, 20));
}

TEST_F(HitTesterTest, BesideThePictureNothingIsHit)
{
    still(m_track, 0);
    EXPECT_EQ(m_none, mediaAt(-1, 20));
    EXPECT_EQ(m_none, mediaAt(65, 20));
    EXPECT_EQ(m_none, mediaAt(10, -1));
    EXPECT_EQ(m_none, mediaAt(10, 49));
    EXPECT_EQ(Point(), placeAt(65, 20));
}

TEST_F(HitTesterTest, ATenThousandthBeyondTheEdgeIsInside)
{
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    EXPECT_EQ(media, mediaAt(64.00005, 20));
    EXPECT_EQ(media, mediaAt(-0.00005, 20));
    EXPECT_EQ(media, mediaAt(10, 48.00005));
    EXPECT_EQ(media, mediaAt(10, -0.00005));
    EXPECT_EQ(m_none, mediaAt(64.0002, 20));
    EXPECT_EQ(m_none, mediaAt(10, -0.0002));
}

TEST_F(HitTesterTest, TheDepthOfTheLocationIsNotLookedAt)
{
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    EXPECT_EQ(media, HitTester::mediaAtLocation(m_mixer, Point(10, 20, 77), 0));
}

TEST_F(HitTesterTest, TheMediasTransformCounts)
{
    // (110 - 100) / 2 and (60 - 50) / 2
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    set(media->translation(), 100, 50, 0);
    set(media->scale(), 2, 2, 1);
    EXPECT_TRUE(isClose(placeAt(110, 60), 5, 5));
    EXPECT_EQ(media, mediaAt(227, 145));
    EXPECT_EQ(m_none, mediaAt(229, 145));
}

TEST_F(HitTesterTest, ATurnedPictureIsHitWhereItIsSeen)
{
    // By 90 degrees: (x, y) is seen at (-y, x).
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    set(media->rotation(), 0, 0, k_rightAngle);
    EXPECT_TRUE(isClose(placeAt(-10, 20), 20, 10));
    EXPECT_EQ(m_none, mediaAt(10, 20));
}

TEST_F(HitTesterTest, ANearPictureIsSeenLarger)
{
    // Half way to the eye: twice as large.
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    set(media->translation(), 0, 0, 1500);
    EXPECT_TRUE(isClose(placeAt(20, 40), 10, 20));
    EXPECT_EQ(media, mediaAt(127, 95));
    EXPECT_EQ(m_none, mediaAt(129, 95));
}

TEST_F(HitTesterTest, AFarPictureIsSeenSmaller)
{
    // Twice as far: half as large.
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    set(media->translation(), 0, 0, -3000);
    EXPECT_TRUE(isClose(placeAt(5, 10), 10, 20));
    EXPECT_EQ(media, mediaAt(31, 23));
    EXPECT_EQ(m_none, mediaAt(33, 23));
}

TEST_F(HitTesterTest, ATiltedPictureIsHitInPerspective)
{
    // By 60 degrees around y, (40, 20) stands at (20, 20, -40 sin 60), and is seen smaller.
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    set(media->rotation(), 0, k_rightAngle * 2 / 3, 0);
    double const shrunk = 3000 / (3000 + 40 * std::sqrt(0.75));
    EXPECT_TRUE(isClose(placeAt(20 * shrunk, 20 * shrunk), 40, 20));
}

TEST_F(HitTesterTest, APictureSeenEdgeOnIsNotHit)
{
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    set(media->rotation(), 0, k_rightAngle, 0);
    EXPECT_EQ(m_none, mediaAt(0, 20));
    EXPECT_EQ(m_none, mediaAt(5, 20));
}

TEST_F(HitTesterTest, APictureBehindTheEyeIsNotHit)
{
    // Through the eye, (10, 10, 4000) would be seen at (-30, -30).
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    set(media->translation(), 0, 0, 4000);
    EXPECT_EQ(m_none, mediaAt(-30, -30));
}

TEST_F(HitTesterTest, TheTracksTransformActsAfterTheMedias)
{
    // 2 * (x + 10) = 30 and 2 y = 20. The other way round x would be 10.
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    set(media->translation(), 10, 0, 0);
    set(m_track->scale(), 2, 2, 1);
    EXPECT_TRUE(isClose(placeAt(30, 20), 5, 10));
}

TEST_F(HitTesterTest, TheMixersTransformDoesNotCount)
{
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    set(m_mixer->translation(), 500, 0, 0);
    EXPECT_TRUE(isClose(placeAt(10, 20), 10, 20));
    EXPECT_EQ(media, mediaAt(10, 20));
}

TEST_F(HitTesterTest, TheEyesPlaceCounts)
{
    // Eye and target 100 to the right: the middle of the viewport is (100, 0).
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    set(media->translation(), 95, 0, 0);
    set(m_mixer->eyePositionParam(), 100, 0, 3000);
    set(m_mixer->eyeLookAtPositionParam(), 100, 0, 0);
    EXPECT_TRUE(isClose(placeAt(0, 10), 5, 10));
}

TEST_F(HitTesterTest, TheEyeMovesInTime)
{
    // 100 to the right at 10, so 50 at 5.
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    m_mixer->eyePositionParam()->at(0)->addKeyFrame(10, 100);
    m_mixer->eyeLookAtPositionParam()->at(0)->addKeyFrame(10, 100);
    EXPECT_TRUE(isClose(placeAt(0, 10, 5), 50, 10));
    EXPECT_TRUE(isClose(placeAt(0, 10, 0), 0, 10));
}

TEST_F(HitTesterTest, TheViewportIsCutToWholeNumbers)
{
    // 641.9 x 481.5 is the viewport (-320,-240,641,481), whose middle is (0.5, 0.5).
    boost::shared_ptr<VisualMixer> const odd(new VisualMixer(641.9f, 481.5f, m_project->weak()));
    boost::shared_ptr<VisualTrack> const track(new VisualTrack(m_project->weak()));
    odd->addTrack(track, -1);
    still(track, 0);
    EXPECT_TRUE(isClose(HitTester::hitTestAtLocation(odd, Point(10, 20, 0), 0).second, 9.5, 19.5));
}

TEST_F(HitTesterTest, TheGeometryCropIsWhatCanBeHit)
{
    // Left are x from 10 to 44 and y from 5 to 40.
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    set(media->geometryCropParam(), 10, 5, 20);
    media->geometryCropParam()->at(3)->changeKeyFrame(0, 8);
    EXPECT_TRUE(isClose(placeAt(11, 20), 11, 20));
    EXPECT_EQ(m_none, mediaAt(9, 20));
    EXPECT_EQ(m_none, mediaAt(45, 20));
    EXPECT_EQ(m_none, mediaAt(20, 4));
    EXPECT_EQ(m_none, mediaAt(20, 41));
    EXPECT_EQ(media, mediaAt(43, 39));
}

TEST_F(HitTesterTest, TheSourceCropDoesNotCount)
{
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    set(media->sourceCropParam(), 60, 40, 0);
    EXPECT_EQ(media, mediaAt(10, 20));
}

TEST_F(HitTesterTest, OpacityAndEffectsDoNotCount)
{
    boost::shared_ptr<IMFile> const behind = still(m_track, 0);
    boost::shared_ptr<IMFile> const front = still(frontTrack(), 0);
    front->opacity()->changeKeyFrame(0, 0);
    EXPECT_EQ(front, mediaAt(10, 20));
}

TEST_F(HitTesterTest, TheLastTrackIsInFront)
{
    boost::shared_ptr<IMFile> const behind = still(m_track, 0);
    boost::shared_ptr<IMFile> const middle = still(frontTrack(), 0);
    boost::shared_ptr<IMFile> const front = still(frontTrack(), 0);
    EXPECT_EQ(front, mediaAt(10, 20));
    // Also when it stands further away.
    set(front->translation(), 0, 0, -100);
    EXPECT_EQ(front, mediaAt(10, 20));
}

TEST_F(HitTesterTest, BesideTheFrontPictureWhatLiesBehindIsHit)
{
    boost::shared_ptr<IMFile> const behind = still(m_track, 0);
    boost::shared_ptr<IMFile> const front = still(frontTrack(), 0);
    set(front->translation(), 30, 0, 0);
    EXPECT_EQ(behind, mediaAt(10, 20));
    EXPECT_EQ(front, mediaAt(31, 20));
}

TEST_F(HitTesterTest, AGapInFrontIsSeenThrough)
{
    boost::shared_ptr<IMFile> const behind = still(m_track, 20);
    boost::shared_ptr<VisualTrack> const front = frontTrack();
    still(front, 0);
    still(front, 50);
    EXPECT_EQ(behind, mediaAt(10, 20, 25));
}

TEST_F(HitTesterTest, AtACutTheLaterMediaIsHit)
{
    still(m_track, 0);
    boost::shared_ptr<IMFile> const later = still(m_track, 10);
    EXPECT_EQ(later, mediaAt(10, 20, 10));
}

TEST_F(HitTesterTest, AtTheEndOfAMediaItIsOver)
{
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    EXPECT_EQ(media, mediaAt(10, 20, 9));
    EXPECT_EQ(m_none, mediaAt(10, 20, 10));
    EXPECT_EQ(m_none, mediaAt(10, 20, -1));
}

TEST_F(HitTesterTest, AMediasParametersAreReadOnItsOwnClock)
{
    // At 105 the media is 5 old: moved by 20 of 40, cropped by 5 of 10.
    boost::shared_ptr<IMFile> const media = still(m_track, 100);
    media->translation()->at(0)->addKeyFrame(10, 40);
    media->geometryCropParam()->at(0)->addKeyFrame(10, 10);
    EXPECT_TRUE(isClose(placeAt(30, 20, 105), 10, 20));
    EXPECT_EQ(m_none, mediaAt(24, 20, 105));
    EXPECT_EQ(media, mediaAt(26, 20, 105));
    EXPECT_EQ(media, mediaAt(1, 20, 100));
}

TEST_F(HitTesterTest, AMoviesParametersAreReadOnItsSourcesClock)
{
    // 5 after its start it shows 505: moved by 20 of 40.
    boost::shared_ptr<VMFile> const movie(new VMFile(Range<long long>(500, 10), m_project->weak(),
                                                     Rect<float>(0, 0, 64, 48), "movie"));
    m_track->addMedia(movie, 100);
    movie->translation()->at(0)->addKeyFrame(500, 0);
    movie->translation()->at(0)->addKeyFrame(510, 40);
    EXPECT_TRUE(isClose(placeAt(30, 20, 105), 10, 20));
}

TEST_F(HitTesterTest, ATracksParametersAreReadOnTheTimelinesClock)
{
    // Moved by 40 at 200, so by 21 at 105.
    still(m_track, 100);
    m_track->translation()->at(0)->addKeyFrame(200, 40);
    EXPECT_TRUE(isClose(placeAt(31, 20, 105), 10, 20));
}

TEST_F(HitTesterTest, EdgesBendWhatIsHit)
{
    // Half faded in the picture is half as wide.
    boost::shared_ptr<IMFile> const media = still(m_track, 0);
    media->addLeftEdgeModification(EdgeModification(media->scale()->at(0), FadeInFunc()));
    media->setLeftEdgeModificationLength(8);
    EXPECT_TRUE(isClose(placeAt(20, 20, 4), 40, 20));
    EXPECT_EQ(m_none, mediaAt(33, 20, 4));
    EXPECT_EQ(media, mediaAt(33, 20, 8));
}

/// A still at [0, 10), a transition to a still at [20, 30) over [10, 20).
class HitTesterOfTransitionsTest : public HitTesterTest
{
protected:
    HitTesterOfTransitionsTest() { m_track->addMedia(m_transition, 10); }

    boost::shared_ptr<IMFile> m_left = still(m_track, 0);
    boost::shared_ptr<ImageTransition> m_transition{new ImageTransition(0, 10, m_project->weak())};
    boost::shared_ptr<IMFile> m_right = still(m_track, 20);
};

TEST_F(HitTesterOfTransitionsTest, ATransitionIsHitWhereEitherNeighbourIs)
{
    set(m_right->translation(), 100, 0, 0);
    EXPECT_EQ(m_transition, mediaAt(10, 20, 15));
    EXPECT_TRUE(isClose(placeAt(10, 20, 15), 10, 20));
    EXPECT_EQ(m_transition, mediaAt(110, 20, 15));
    EXPECT_TRUE(isClose(placeAt(110, 20, 15), 10, 20));
    EXPECT_EQ(m_none, mediaAt(80, 20, 15));
}

TEST_F(HitTesterOfTransitionsTest, TheLeftNeighbourComesFirst)
{
    set(m_left->scale(), 2, 2, 1);
    EXPECT_TRUE(isClose(placeAt(10, 20, 15), 5, 10));
}

TEST_F(HitTesterOfTransitionsTest, EachNeighbourIsTestedOnItsOwnClock)
{
    // At 15 the left one is 15 old, moved by 30 of 40; the right one is 5 before its start, so -5
    // old, moved from 200 by 5 of 10.
    m_left->translation()->at(0)->addKeyFrame(20, 40);
    m_right->translation()->at(0)->changeKeyFrame(0, 200);
    m_right->translation()->at(0)->addKeyFrame(-10, 210);
    EXPECT_TRUE(isClose(placeAt(40, 20, 15), 10, 20));
    EXPECT_TRUE(isClose(placeAt(215, 20, 15), 10, 20));
}

TEST_F(HitTesterOfTransitionsTest, WithoutNeighboursItIsSeenThrough)
{
    boost::shared_ptr<VisualTrack> const front = frontTrack();
    front->addMedia(boost::shared_ptr<Media>(new ImageTransition(0, 10, m_project->weak())), 0);
    EXPECT_EQ(m_left, mediaAt(10, 20, 5));
}

TEST_F(HitTesterTest, NeedsALivingProject)
{
    still(m_track, 0);
    m_project.reset();
    EXPECT_THROW(mediaAt(10, 20), boost::bad_weak_ptr);
}

}  // namespace
}  // namespace test
}  // namespace tarn
