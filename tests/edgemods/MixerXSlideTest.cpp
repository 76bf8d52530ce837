#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/MixerXSlideFuncUtil.h"
#include "edgemods/MixerXSlideInFunc.h"
#include "edgemods/MixerXSlideOutFunc.h"
#include "parameters/Attribute.h"
#include "support/Geometry.h"
#include "support/SlideStage.h"
#include "support/Xml.h"
#include "timeline/VMFile.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <gtest/gtest.h>

#include <cmath>

namespace tarn {
namespace test {
namespace {

class MixerXSlideTest : public ::testing::Test
{
protected:
    double slideIn(double position, double value) const
    {
        MixerXSlideInFunc slide;
        slide.setAuxInfo(m_stage.info());
        return slide.execute(position, value);
    }
    double slideOut(double position, double value) const
    {
        MixerXSlideOutFunc slide;
        slide.setAuxInfo(m_stage.info());
        return slide.execute(position, value);
    }
    void cropRight(double amount)
    {
        m_stage.media->geometryCropParam()->at(2)->changeKeyFrame(0, amount);
    }

    SlideStage m_stage;
    boost::shared_ptr<IMFile> const& m_media = m_stage.media;
};

TEST_F(MixerXSlideTest, SlidesInFromBeyondTheLeftSide)
{
    // Starts at -640 / 2 - 100 / 2 = -370.
    EXPECT_DOUBLE_EQ(-370, slideIn(0, 10));
    EXPECT_DOUBLE_EQ(-275, slideIn(0.25, 10));
    EXPECT_DOUBLE_EQ(-180, slideIn(0.5, 10));
    EXPECT_DOUBLE_EQ(10, slideIn(1, 10));
}

TEST_F(MixerXSlideTest, SlidesOutTheSameWay)
{
    EXPECT_DOUBLE_EQ(10, slideOut(0, 10));
    EXPECT_DOUBLE_EQ(-85, slideOut(0.25, 10));
    EXPECT_DOUBLE_EQ(-370, slideOut(1, 10));
}

TEST_F(MixerXSlideTest, TheMixersWidthCounts)
{
    boost::const_pointer_cast<Attribute<float>>(m_stage.mixer->attributeWidth())->setValue(1000);
    EXPECT_DOUBLE_EQ(-550, slideIn(0, 10));
}

TEST_F(MixerXSlideTest, ACropAndAScaleMoveTheStart)
{
    // 80 are left, twice as wide: -320 - 80 + 20 * 2 / 2 = -380. Half way: (-380 + 10) / 2.
    cropRight(20);
    m_media->scale()->at(0)->changeKeyFrame(0, 2);
    EXPECT_DOUBLE_EQ(-380, slideIn(0, 10));
    EXPECT_DOUBLE_EQ(-185, slideIn(0.5, 10));
}

TEST_F(MixerXSlideTest, TheOtherCropsDoNotCount)
{
    m_media->geometryCropParam()->at(0)->changeKeyFrame(0, 30);
    m_media->geometryCropParam()->at(1)->changeKeyFrame(0, 30);
    m_media->geometryCropParam()->at(3)->changeKeyFrame(0, 30);
    m_media->sourceCropParam()->at(2)->changeKeyFrame(0, 30);
    EXPECT_DOUBLE_EQ(-370, slideIn(0, 10));
}

TEST_F(MixerXSlideTest, ATurnedPictureIsAsWideAsItWasHigh)
{
    // -320 - 50 / 2
    m_media->rotation()->at(2)->changeKeyFrame(0, k_rightAngle);
    EXPECT_DOUBLE_EQ(-345, slideIn(0, 10));
}

TEST_F(MixerXSlideTest, CropAndScaleAreReadAtThePositionAsIfItWereATime)
{
    // The movie shows its source from 100, where the crop is 20; at 101 it is 40, at 100.5 30.
    // Width at the start: 80. (1 - 0.5) * (-320 - 40 - 0 + 30 / 2) = -172.5.
    boost::shared_ptr<VMFile> const movie(new VMFile(
        Range<long long>(100, 100), m_stage.project->weak(), Rect<float>(0, 0, 100, 50), "movie"));
    movie->geometryCropParam()->at(2)->addKeyFrame(100, 20);
    movie->geometryCropParam()->at(2)->addKeyFrame(101, 40);
    AuxEdgeModInfo info = m_stage.info();
    info.setVisualMedia(movie);
    MixerXSlideInFunc slide;
    slide.setAuxInfo(info);
    EXPECT_DOUBLE_EQ(-172.5, slide.execute(0.5, 0));
}

TEST_F(MixerXSlideTest, BendsTheTranslationOfTheMediaItMeasures)
{
    MixerXSlideInFunc in;
    MixerXSlideOutFunc out;
    in.setAuxInfo(m_stage.info());
    out.setAuxInfo(m_stage.info());
    m_media->translation()->at(0)->changeKeyFrame(0, 10);
    m_media->addLeftEdgeModification(EdgeModification(m_media->translation()->at(0), in));
    m_media->addRightEdgeModification(EdgeModification(m_media->translation()->at(0), out));
    m_media->setLeftEdgeModificationLength(20);
    m_media->setRightEdgeModificationLength(40);
    EXPECT_DOUBLE_EQ(-370, m_media->transformAtTime(0).at(0, 3));
    EXPECT_DOUBLE_EQ(-180, m_media->transformAtTime(10).at(0, 3));
    EXPECT_DOUBLE_EQ(10, m_media->transformAtTime(50).at(0, 3));
    EXPECT_DOUBLE_EQ(-85, m_media->transformAtTime(70).at(0, 3));
    EXPECT_DOUBLE_EQ(-370, m_media->transformAtTime(100).at(0, 3));
}

TEST_F(MixerXSlideTest, NeedsAMixerAndAMedia)
{
    EXPECT_THROW(MixerXSlideInFunc().execute(0.5, 10), boost::bad_weak_ptr);
    EXPECT_THROW(MixerXSlideOutFunc().execute(0.5, 10), boost::bad_weak_ptr);
}

TEST_F(MixerXSlideTest, KeepsNeitherMixerNorMediaAlive)
{
    MixerXSlideInFunc in;
    MixerXSlideOutFunc out;
    in.setAuxInfo(m_stage.info());
    out.setAuxInfo(m_stage.info());
    m_stage.media.reset();
    EXPECT_THROW(in.execute(0.5, 10), boost::bad_weak_ptr);
    EXPECT_THROW(out.execute(0.5, 10), boost::bad_weak_ptr);
    EXPECT_FALSE(in.auxInfo()->visualMedia().lock());
    EXPECT_TRUE(in.auxInfo()->visualMixer().lock());
    m_stage.mixer.reset();
    EXPECT_FALSE(out.auxInfo()->visualMixer().lock());
}

TEST_F(MixerXSlideTest, ADeadMixerIsNoMixer)
{
    MixerXSlideInFunc slide;
    slide.setAuxInfo(m_stage.info());
    m_stage.mixer.reset();
    EXPECT_THROW(slide.execute(1, 10), boost::bad_weak_ptr);
}

TEST_F(MixerXSlideTest, ACloneMeasuresTheSameUntilItIsToldOtherwise)
{
    MixerXSlideOutFunc slide;
    slide.setAuxInfo(m_stage.info());
    boost::shared_ptr<EdgeModFunc> const copy(slide.clone());
    EXPECT_DOUBLE_EQ(-370, copy->execute(1, 10));
    copy->setAuxInfo(AuxEdgeModInfo());
    EXPECT_THROW(copy->execute(1, 10), boost::bad_weak_ptr);
    EXPECT_DOUBLE_EQ(-370, slide.execute(1, 10));
}

TEST_F(MixerXSlideTest, AreCalledWithoutFunc)
{
    EXPECT_EQ("MixerXSlideIn", MixerXSlideInFunc().ident());
    EXPECT_EQ("MixerXSlideOut", MixerXSlideOutFunc().ident());
    EXPECT_EQ("<MixerXSlideIn id=\"#\"  >\n</MixerXSlideIn>\n", xmlOf(MixerXSlideInFunc()));
    EXPECT_EQ("<MixerXSlideOut id=\"#\"  >\n</MixerXSlideOut>\n", xmlOf(MixerXSlideOutFunc()));
}

TEST_F(MixerXSlideTest, AMediasWidthFollowsItsTransform)
{
    // Scale grows from 1 at the start to 3 at the end.
    m_media->scale()->at(0)->addKeyFrame(100, 3);
    EXPECT_DOUBLE_EQ(100, MixerXSlideFuncUtil::calcMediaBeginWidth(m_media));
    EXPECT_DOUBLE_EQ(200, MixerXSlideFuncUtil::calcMediaWidth(m_media, 50));
    EXPECT_DOUBLE_EQ(300, MixerXSlideFuncUtil::calcMediaEndWidth(m_media));
}

TEST_F(MixerXSlideTest, AMediasWidthIsThatOfTheBoxAroundIt)
{
    // Turned by 45 degrees: from -50 / sqrt 2 to 100 / sqrt 2.
    m_media->rotation()->at(2)->changeKeyFrame(0, k_rightAngle / 2);
    EXPECT_DOUBLE_EQ(150 / std::sqrt(2.0), MixerXSlideFuncUtil::calcMediaBeginWidth(m_media));
    // The crop shortens the long side to 60.
    cropRight(40);
    EXPECT_DOUBLE_EQ(110 / std::sqrt(2.0), MixerXSlideFuncUtil::calcMediaBeginWidth(m_media));
}

TEST_F(MixerXSlideTest, AMediasWidthTakesTheCropAsItIsStored)
{
    // At the start of a fade-in of the crop nothing is cropped, but 80 is told.
    cropRight(20);
    m_media->addLeftEdgeModification(
        EdgeModification(m_media->geometryCropParam()->at(2), FadeInFunc()));
    m_media->setLeftEdgeModificationLength(20);
    EXPECT_EQ(100, m_media->geometryCropRectAtTime(0).width);
    EXPECT_DOUBLE_EQ(80, MixerXSlideFuncUtil::calcMediaBeginWidth(m_media));
}

TEST_F(MixerXSlideTest, TheWidthAtTheEndIsThatAfterTheWholeDuration)
{
    // The crop falls from 40 at 0 to 0 at 100; the trimmed media ends at 75, with 10.
    cropRight(40);
    m_media->geometryCropParam()->at(2)->addKeyFrame(100, 0);
    m_media->trimEnd(25);
    EXPECT_DOUBLE_EQ(60, MixerXSlideFuncUtil::calcMediaBeginWidth(m_media));
    EXPECT_DOUBLE_EQ(90, MixerXSlideFuncUtil::calcMediaEndWidth(m_media));
}

}  // namespace
}  // namespace test
}  // namespace tarn
