#include "timeline/VisualMediaHitTester.h"

#include "datatypes/TransformMatrix.h"
#include "datatypes/VectorUtil.h"
#include "exceptions/TypeException.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "support/FakeProject.h"
#include "support/Geometry.h"
#include "support/OneOfEachKind.h"
#include "support/Thrown.h"
#include "timeline/VisualTrack.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

/// Shoots straight down the z axis through (10, 20), at medias of 64 x 48.
class VisualMediaHitTesterTest : public ::testing::Test
{
protected:
    VisualMediaHitTester tester() const
    {
        return VisualMediaHitTester(m_origin, m_direction, m_trackTransform, 0);
    }
    static void move(Transformer& media, double x, double y, double z)
    {
        media.translation()->at(0)->changeKeyFrame(0, x);
        media.translation()->at(1)->changeKeyFrame(0, y);
        media.translation()->at(2)->changeKeyFrame(0, z);
    }
    boost::shared_ptr<TextBox> textBox() const
    {
        return boost::shared_ptr<TextBox>(
            new TextBox("text", 0, 10, 0, 10, m_project->weak(), 64, 48));
    }
    template <class M>
    static bool hits(VisualMediaHitTester& tester, boost::shared_ptr<M> const& media)
    {
        media->receiveDispatcher(static_cast<ConstMediaDispatcher*>(&tester));
        return tester.doesHit();
    }

    boost::shared_ptr<FakeProject> m_project = FakeProject::create();
    OneOfEachKind m_kinds{m_project->weak()};
    boost::shared_ptr<IMFile> m_still = m_kinds.still;
    Point m_origin{10, 20, 100};
    Point m_direction{0, 0, -1};
    TransformMatrix m_trackTransform;
};

TEST_F(VisualMediaHitTesterTest, HasHitNothingAtFirst)
{
    EXPECT_FALSE(tester().doesHit());
    EXPECT_EQ(Point(), tester().hitLocation());
}

TEST_F(VisualMediaHitTesterTest, HitsEveryKindOfPicture)
{
    VisualMediaHitTester hitTester = tester();
    EXPECT_TRUE(hits(hitTester, m_kinds.video));
    EXPECT_EQ(Point(10, 20, 0), hitTester.hitLocation());
    EXPECT_TRUE(hits(hitTester, m_kinds.still));
    EXPECT_TRUE(hits(hitTester, m_kinds.callout));
    EXPECT_TRUE(hits(hitTester, textBox()));
}

TEST_F(VisualMediaHitTesterTest, HitsNothingWithoutASize)
{
    VisualMediaHitTester hitTester = tester();
    EXPECT_FALSE(hits(hitTester, m_kinds.text));
}

TEST_F(VisualMediaHitTesterTest, IsAboutTheLastMediaOnly)
{
    VisualMediaHitTester hitTester = tester();
    EXPECT_TRUE(hits(hitTester, m_kinds.video));
    move(*m_still, 100, 0, 0);
    EXPECT_FALSE(hits(hitTester, m_still));
}

TEST_F(VisualMediaHitTesterTest, SoundHasNoPlace)
{
    char const* const k_message = "Audio media can't be tested for geometry";
    VisualMediaHitTester hitTester = tester();
    EXPECT_STREQ(k_message,
                 thrownBy<TypeException>([&] { hits(hitTester, m_kinds.sound); }).what());
    EXPECT_STREQ(k_message,
                 thrownBy<TypeException>([&] { hits(hitTester, m_kinds.crossFade); }).what());
}

TEST_F(VisualMediaHitTesterTest, TellsThePlaceInTheMediasCoordinates)
{
    // (10 - 2) / 4 and (20 - 2) / 2
    move(*m_still, 2, 2, 50);
    m_still->scale()->at(0)->changeKeyFrame(0, 4);
    m_still->scale()->at(1)->changeKeyFrame(0, 2);
    VisualMediaHitTester hitTester = tester();
    EXPECT_TRUE(hitTester.rayHitsVisualMedia(m_still));
    EXPECT_TRUE(isNear(hitTester.hitLocation(), Point(2, 9, 0)));
}

TEST_F(VisualMediaHitTesterTest, TheTracksTransformActsAfterTheMedias)
{
    // 2 * (x + 4) = 10 and 2 y = 20. The other way round x would be 3.
    move(*m_still, 4, 0, 0);
    m_trackTransform = TransformMatrix::scale(2, 2, 1);
    VisualMediaHitTester hitTester = tester();
    EXPECT_TRUE(hitTester.rayHitsVisualMedia(m_still));
    EXPECT_TRUE(isNear(hitTester.hitLocation(), Point(1, 10, 0)));
}

TEST_F(VisualMediaHitTesterTest, ASlantedRayMeetsThePlaneElsewhere)
{
    // From (10,20,100) towards (30,40,0).
    m_direction = Point(20, 20, -100);
    VectorUtil::normalize(m_direction);
    VisualMediaHitTester hitTester = tester();
    EXPECT_TRUE(hitTester.rayHitsVisualMedia(m_still));
    EXPECT_TRUE(isNear(hitTester.hitLocation(), Point(30, 40, 0)));
}

TEST_F(VisualMediaHitTesterTest, ATiltedPictureIsHitWhereItStands)
{
    // Turned by 60 degrees around y: (x, y) stands at (x / 2, y).
    m_still->rotation()->at(1)->changeKeyFrame(0, k_rightAngle * 2 / 3);
    VisualMediaHitTester hitTester = tester();
    EXPECT_TRUE(hitTester.rayHitsVisualMedia(m_still));
    EXPECT_TRUE(isNear(hitTester.hitLocation(), Point(20, 20, 0)));
}

TEST_F(VisualMediaHitTesterTest, AShearedPictureIsHitWhereItStands)
{
    // By 45 degrees along x: (x, y) stands at (x + y, y), so (10, 20) is (-10, 20), outside, and
    // (30, 20) is (10, 20).
    m_still->shear()->at(0)->changeKeyFrame(0, k_rightAngle / 2);
    VisualMediaHitTester hitTester = tester();
    EXPECT_FALSE(hitTester.rayHitsVisualMedia(m_still));
    m_origin = Point(30, 20, 100);
    EXPECT_TRUE(hitTester.rayHitsVisualMedia(m_still));
    EXPECT_TRUE(isNear(hitTester.hitLocation(), Point(10, 20, 0)));
}

TEST_F(VisualMediaHitTesterTest, APictureSeenFromBehindIsHit)
{
    // Turned by 180 degrees around y: (x, y) stands at (-x, y).
    m_still->rotation()->at(1)->changeKeyFrame(0, 2 * k_rightAngle);
    m_origin = Point(-10, 20, 100);
    VisualMediaHitTester hitTester = tester();
    EXPECT_TRUE(hitTester.rayHitsVisualMedia(m_still));
    EXPECT_TRUE(isNear(hitTester.hitLocation(), Point(10, 20, 0)));
}

TEST_F(VisualMediaHitTesterTest, APictureSeenEdgeOnIsNotHit)
{
    // In the ray's own plane, and beside it.
    m_still->rotation()->at(1)->changeKeyFrame(0, k_rightAngle);
    move(*m_still, 10, 0, 0);
    VisualMediaHitTester hitTester = tester();
    EXPECT_FALSE(hitTester.rayHitsVisualMedia(m_still));
    move(*m_still, 11, 0, 0);
    EXPECT_FALSE(hitTester.rayHitsVisualMedia(m_still));
}

TEST_F(VisualMediaHitTesterTest, WhatLiesBehindTheOriginIsNotHit)
{
    move(*m_still, 0, 0, 101);
    VisualMediaHitTester hitTester = tester();
    EXPECT_FALSE(hitTester.rayHitsVisualMedia(m_still));
    move(*m_still, 0, 0, 99);
    EXPECT_TRUE(hitTester.rayHitsVisualMedia(m_still));
}

TEST_F(VisualMediaHitTesterTest, APictureOfNoSizeLeftIsNotHit)
{
    m_still->scale()->at(0)->changeKeyFrame(0, 0);
    VisualMediaHitTester hitTester = tester();
    EXPECT_FALSE(hitTester.rayHitsVisualMedia(m_still));
}

TEST_F(VisualMediaHitTesterTest, BordersAreInside)
{
    VisualMediaHitTester hitTester = tester();
    m_origin = Point(0, 0, 100);
    EXPECT_TRUE(hitTester.rayHitsVisualMedia(m_still));
    m_origin = Point(64, 48, 100);
    EXPECT_TRUE(hitTester.rayHitsVisualMedia(m_still));
}

TEST_F(VisualMediaHitTesterTest, BordersHaveAToleranceOfATenThousandth)
{
    VisualMediaHitTester hitTester = tester();
    m_origin = Point(-0.00009, 20, 100);
    EXPECT_TRUE(hitTester.rayHitsVisualMedia(m_still));
    m_origin = Point(64.00009, 20, 100);
    EXPECT_TRUE(hitTester.rayHitsVisualMedia(m_still));
    m_origin = Point(10, -0.00009, 100);
    EXPECT_TRUE(hitTester.rayHitsVisualMedia(m_still));
    m_origin = Point(10, 48.00009, 100);
    EXPECT_TRUE(hitTester.rayHitsVisualMedia(m_still));
}

TEST_F(VisualMediaHitTesterTest, BeyondTheToleranceIsOutside)
{
    VisualMediaHitTester hitTester = tester();
    m_origin = Point(-0.00011, 20, 100);
    EXPECT_FALSE(hitTester.rayHitsVisualMedia(m_still));
    m_origin = Point(64.00011, 20, 100);
    EXPECT_FALSE(hitTester.rayHitsVisualMedia(m_still));
    m_origin = Point(10, -0.00011, 100);
    EXPECT_FALSE(hitTester.rayHitsVisualMedia(m_still));
    m_origin = Point(10, 48.00011, 100);
    EXPECT_FALSE(hitTester.rayHitsVisualMedia(m_still));
}

TEST_F(VisualMediaHitTesterTest, ATransitionOnNoTrackCannotBeTested)
{
    VisualMediaHitTester hitTester = tester();
    EXPECT_THROW(hits(hitTester, m_kinds.fade), boost::bad_weak_ptr);
}

TEST_F(VisualMediaHitTesterTest, ATransitionWithoutNeighboursIsNotHit)
{
    boost::shared_ptr<VisualTrack> const track(new VisualTrack(m_project->weak()));
    track->addMedia(m_kinds.fade, 20);
    VisualMediaHitTester hitTester = tester();
    EXPECT_FALSE(hits(hitTester, m_kinds.fade));
}

TEST_F(VisualMediaHitTesterTest, ATransitionIsHitWhereItsNeighbourIs)
{
    // The text box is over the point, the still is not.
    boost::shared_ptr<VisualTrack> const track(new VisualTrack(m_project->weak()));
    boost::shared_ptr<TextBox> const before = textBox();
    track->addMedia(before, 10);
    track->addMedia(m_kinds.fade, 20);
    track->addMedia(m_still, 30);
    move(*m_still, 100, 0, 0);
    move(*before, 3, 3, 0);
    VisualMediaHitTester hitTester = tester();
    EXPECT_TRUE(hits(hitTester, m_kinds.fade));
    EXPECT_TRUE(isNear(hitTester.hitLocation(), Point(7, 17, 0)));
    move(*before, -100, 0, 0);
    EXPECT_FALSE(hits(hitTester, m_kinds.fade));
}

}  // namespace
}  // namespace test
}  // namespace tarn
