#include "edgemods/EdgeModification.h"
#include "edgemods/MixerXSlideFuncUtil.h"
#include "edgemods/MixerYSlideInFunc.h"
#include "edgemods/MixerYSlideOutFunc.h"
#include "parameters/Attribute.h"
#include "support/Geometry.h"
#include "support/SlideStage.h"
#include "support/Xml.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <gtest/gtest.h>

#include <cmath>

namespace tarn {
namespace test {
namespace {

class MixerYSlideTest : public ::testing::Test
{
protected:
    double slideIn(double angle, double position, double value) const
    {
        MixerYSlideInFunc slide(angle);
        slide.setAuxInfo(m_stage.info());
        return slide.execute(position, value);
    }
    double slideOut(double angle, double position, double value) const
    {
        MixerYSlideOutFunc slide(angle);
        slide.setAuxInfo(m_stage.info());
        return slide.execute(position, value);
    }

    SlideStage m_stage;
    boost::shared_ptr<IMFile> const& m_media = m_stage.media;
};

TEST_F(MixerYSlideTest, SlidesInFromBeyondTheUpperSide)
{
    // Starts at 480 / 2 + 50 / 2 = 265.
    EXPECT_DOUBLE_EQ(265, slideIn(90, 0, 10));
    EXPECT_DOUBLE_EQ(137.5, slideIn(90, 0.5, 10));
    EXPECT_DOUBLE_EQ(10, slideIn(90, 1, 10));
}

TEST_F(MixerYSlideTest, SlidesOutTheSameWay)
{
    // A quarter: 10 + 0.25 * (265 - 10)
    EXPECT_DOUBLE_EQ(10, slideOut(90, 0, 10));
    EXPECT_DOUBLE_EQ(73.75, slideOut(90, 0.25, 10));
    EXPECT_DOUBLE_EQ(265, slideOut(90, 1, 10));
}

TEST_F(MixerYSlideTest, EveryAngleButZeroIsVertical)
{
    EXPECT_DOUBLE_EQ(137.5, slideIn(1, 0.5, 10));
    EXPECT_DOUBLE_EQ(137.5, slideIn(-45, 0.5, 10));
    EXPECT_DOUBLE_EQ(137.5, slideIn(1e-300, 0.5, 10));
    EXPECT_DOUBLE_EQ(137.5, slideOut(1, 0.5, 10));
}

TEST_F(MixerYSlideTest, WithoutAnAngleTheValueGrowsFromZero)
{
    EXPECT_EQ(0, slideIn(0, 0, 8));
    EXPECT_EQ(2, slideIn(0, 0.25, 8));
    EXPECT_EQ(2, slideIn(-0.0, 0.25, 8));
    EXPECT_EQ(2, MixerYSlideInFunc().execute(0.25, 8));
    EXPECT_EQ(6, slideOut(0, 0.25, 8));
    EXPECT_EQ(6, MixerYSlideOutFunc().execute(0.25, 8));
}

TEST_F(MixerYSlideTest, KeepsItsAngle)
{
    EXPECT_EQ(0, MixerYSlideInFunc().angle());
    EXPECT_EQ(30, MixerYSlideInFunc(30).angle());
}

TEST_F(MixerYSlideTest, TheMixersHeightCounts)
{
    boost::const_pointer_cast<Attribute<float>>(m_stage.mixer->attributeHeight())->setValue(1000);
    EXPECT_DOUBLE_EQ(525, slideIn(90, 0, 10));
}

TEST_F(MixerYSlideTest, ACropAndAScaleCountByTheHeightAlone)
{
    // 40 are left, twice as high: 240 + 40.
    m_media->geometryCropParam()->at(3)->changeKeyFrame(0, 10);
    EXPECT_DOUBLE_EQ(260, slideIn(90, 0, 10));
    m_media->scale()->at(1)->changeKeyFrame(0, 2);
    EXPECT_DOUBLE_EQ(280, slideIn(90, 0, 10));
}

TEST_F(MixerYSlideTest, TheOtherCropsDoNotCount)
{
    m_media->geometryCropParam()->at(0)->changeKeyFrame(0, 30);
    m_media->geometryCropParam()->at(1)->changeKeyFrame(0, 30);
    m_media->geometryCropParam()->at(2)->changeKeyFrame(0, 30);
    EXPECT_DOUBLE_EQ(265, slideIn(90, 0, 10));
}

TEST_F(MixerYSlideTest, BendsTheTranslationOfTheMediaItMeasures)
{
    MixerYSlideInFunc slide(90);
    slide.setAuxInfo(m_stage.info());
    m_media->translation()->at(1)->changeKeyFrame(0, 10);
    m_media->addLeftEdgeModification(EdgeModification(m_media->translation()->at(1), slide));
    m_media->setLeftEdgeModificationLength(20);
    EXPECT_DOUBLE_EQ(265, m_media->transformAtTime(0).at(1, 3));
    EXPECT_DOUBLE_EQ(137.5, m_media->transformAtTime(10).at(1, 3));
    EXPECT_DOUBLE_EQ(10, m_media->transformAtTime(20).at(1, 3));
}

TEST_F(MixerYSlideTest, AVerticalSlideNeedsAMixerAndAMedia)
{
    EXPECT_THROW(MixerYSlideInFunc(90).execute(0.5, 10), boost::bad_weak_ptr);
    EXPECT_THROW(MixerYSlideOutFunc(90).execute(0.5, 10), boost::bad_weak_ptr);
}

TEST_F(MixerYSlideTest, ADeadMixerOrMediaIsNone)
{
    MixerYSlideInFunc in(90);
    MixerYSlideOutFunc out(90);
    in.setAuxInfo(m_stage.info());
    m_stage.mixer.reset();
    EXPECT_THROW(in.execute(0.5, 10), boost::bad_weak_ptr);
    m_stage.mixer.reset(new VisualMixer(640, 480, m_stage.project->weak()));
    out.setAuxInfo(m_stage.info());
    m_stage.media.reset();
    EXPECT_THROW(out.execute(0.5, 10), boost::bad_weak_ptr);
}

TEST_F(MixerYSlideTest, AClonesAngleAndMixerAreTheSame)
{
    MixerYSlideOutFunc slide(90);
    slide.setAuxInfo(m_stage.info());
    boost::shared_ptr<EdgeModFunc> const copy(slide.clone());
    EXPECT_DOUBLE_EQ(265, copy->execute(1, 10));
    EXPECT_EQ(m_media, copy->auxInfo()->visualMedia().lock());
    boost::shared_ptr<MixerYSlideInFunc> const in(MixerYSlideInFunc(30).clone());
    EXPECT_EQ(30, in->angle());
    EXPECT_THROW(in->execute(0.5, 10), boost::bad_weak_ptr);
}

TEST_F(MixerYSlideTest, WriteTheirAngle)
{
    EXPECT_EQ("<MixerYSlideIn id=\"#\"  angle=\"22.5\" >\n</MixerYSlideIn>\n",
              xmlOf(MixerYSlideInFunc(22.5)));
    EXPECT_EQ("<MixerYSlideOut id=\"#\"  angle=\"90\" >\n</MixerYSlideOut>\n",
              xmlOf(MixerYSlideOutFunc(90)));
    EXPECT_EQ("<MixerYSlideOut id=\"#\"  angle=\"0\" >\n</MixerYSlideOut>\n",
              xmlOf(MixerYSlideOutFunc()));
    EXPECT_EQ("MixerYSlideIn", MixerYSlideInFunc().ident());
    EXPECT_EQ("MixerYSlideOut", MixerYSlideOutFunc().ident());
}

TEST_F(MixerYSlideTest, AMediasHeightFollowsItsTransform)
{
    m_media->scale()->at(1)->addKeyFrame(100, 3);
    EXPECT_DOUBLE_EQ(50, MixerXSlideFuncUtil::calcMediaBeginHeight(m_media));
    EXPECT_DOUBLE_EQ(100, MixerXSlideFuncUtil::calcMediaHeight(m_media, 50));
    EXPECT_DOUBLE_EQ(150, MixerXSlideFuncUtil::calcMediaEndHeight(m_media));
}

TEST_F(MixerYSlideTest, AMediasHeightIsThatOfTheBoxAroundIt)
{
    // Turned by 90 degrees it is as high as it was wide, and the far crop takes off its width.
    m_media->rotation()->at(2)->changeKeyFrame(0, k_rightAngle);
    EXPECT_DOUBLE_EQ(100, MixerXSlideFuncUtil::calcMediaBeginHeight(m_media));
    m_media->geometryCropParam()->at(3)->changeKeyFrame(0, 10);
    EXPECT_DOUBLE_EQ(100, MixerXSlideFuncUtil::calcMediaBeginHeight(m_media));
    // Turned by 45 degrees: (100 + 40) / sqrt 2.
    m_media->rotation()->at(2)->changeKeyFrame(0, k_rightAngle / 2);
    EXPECT_DOUBLE_EQ(140 / std::sqrt(2.0), MixerXSlideFuncUtil::calcMediaBeginHeight(m_media));
}

}  // namespace
}  // namespace test
}  // namespace tarn
