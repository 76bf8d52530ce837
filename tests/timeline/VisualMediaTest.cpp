#include "timeline/VisualMedia.h"

#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "support/Clip.h"
#include "support/Geometry.h"
#include "support/MediaKindTest.h"

namespace tarn {
namespace test {
namespace {

/// A picture of 640 x 480 that shows its source from 100 on.
class VisualMediaTest : public MediaKindTest
{
protected:
    void crop(boost::shared_ptr<VectorParam> const& parameter) const
    {
        parameter->at(0)->changeKeyFrame(0, 10.0);
        parameter->at(1)->changeKeyFrame(0, 20.0);
        parameter->at(2)->changeKeyFrame(0, 30.0);
        parameter->at(3)->changeKeyFrame(0, 40.0);
    }
    /// Lets the value run from 0 at media time 0 to 200 at media time 200.
    void ramp(boost::shared_ptr<InterpolatingParam<double>> const& parameter) const
    {
        parameter->addKeyFrame(200, 200.0);
    }

    boost::shared_ptr<VisualMedia> const media{
        new Clip(Range<long long>(100, 200), 0, 1000, project->weak())};
    VisualMedia const& constMedia = *media;
};

TEST_F(VisualMediaTest, ListsCropsOpacityAndTransform)
{
    EXPECT_EQ(23, media->numParameters());
    EXPECT_EQ(visualParameterNames(), parameterNames(*media));
}

TEST_F(VisualMediaTest, FindsAParameterByItsName)
{
    EXPECT_EQ(media->opacity(), media->paramWithName("opacity"));
    EXPECT_EQ(media->geometryCropParam()->at(3), media->paramWithName("geometryCrop3"));
    EXPECT_EQ(media->translation()->at(1), media->paramWithName("translation1"));
    EXPECT_FALSE(media->paramWithName("translation"));
}

TEST_F(VisualMediaTest, IsOpaqueAtFirst)
{
    EXPECT_EQ(1, media->opacity()->numKeyFrames());
    EXPECT_EQ(0, media->opacity()->firstKeyFrameTime());
    EXPECT_EQ(1.0, media->opacity()->valueAtTime(-5));
    EXPECT_EQ(1.0, media->opacity()->valueAtTime(5000));
}

TEST_F(VisualMediaTest, IsNotCroppedAtFirst)
{
    EXPECT_EQ(4, media->sourceCropParam()->numDimensions());
    EXPECT_EQ(4, media->geometryCropParam()->numDimensions());
    EXPECT_EQ(0.0, media->sourceCropParam()->at(2)->valueAtTime(0));
    EXPECT_EQ(Rect<double>(0, 0, 640, 480), media->sourceCropRectAtTime(0));
    EXPECT_EQ(Rect<double>(0, 0, 640, 480), media->geometryCropRectAtTime(0));
}

TEST_F(VisualMediaTest, ConstFormsGiveTheSameParameters)
{
    EXPECT_EQ(media->opacity(), constMedia.opacity());
    EXPECT_EQ(media->sourceCropParam(), constMedia.sourceCropParam());
    EXPECT_EQ(media->geometryCropParam(), constMedia.geometryCropParam());
}

TEST_F(VisualMediaTest, ACropCutsOffAllFourSides)
{
    // 640 - 10 - 30 and 480 - 20 - 40
    crop(media->sourceCropParam());
    EXPECT_EQ(Rect<double>(10, 20, 600, 420), media->sourceCropRectAtTime(0));
    EXPECT_EQ(Rect<double>(0, 0, 640, 480), media->geometryCropRectAtTime(0));
}

TEST_F(VisualMediaTest, TheTwoCropsAreIndependent)
{
    crop(media->geometryCropParam());
    EXPECT_EQ(Rect<double>(10, 20, 600, 420), media->geometryCropRectAtTime(0));
    EXPECT_EQ(Rect<double>(0, 0, 640, 480), media->sourceCropRectAtTime(0));
}

TEST_F(VisualMediaTest, ACropIsReadAtTheSourcesMoment)
{
    // Local time 50 is media time 150.
    ramp(media->sourceCropParam()->at(2));
    ramp(media->geometryCropParam()->at(0));
    EXPECT_EQ(Rect<double>(0, 0, 490, 480), media->sourceCropRectAtTime(50));
    EXPECT_EQ(Rect<double>(150, 0, 490, 480), media->geometryCropRectAtTime(50));
}

TEST_F(VisualMediaTest, ACropIsBentByAnEdge)
{
    // Half way into the edge, half of the crop of 30 on the far side remains.
    crop(media->geometryCropParam());
    media->setLeftEdgeModificationLength(100);
    media->addLeftEdgeModification(
        EdgeModification(media->geometryCropParam()->at(2), FadeInFunc()));
    EXPECT_EQ(Rect<double>(10, 20, 615, 420), media->geometryCropRectAtTime(50));
    EXPECT_EQ(Rect<double>(10, 20, 600, 420), media->geometryCropRectAtTime(100));
}

TEST_F(VisualMediaTest, IsNotPlacedAnywhereAtFirst)
{
    EXPECT_EQ(TransformMatrix(), media->transformAtTime(0));
}

TEST_F(VisualMediaTest, ItsTransformIsReadAtTheSourcesMoment)
{
    ramp(media->translation()->at(0));
    EXPECT_TRUE(isNear(media->transformAtTime(50), TransformMatrix::translate(150, 0, 0)));
    EXPECT_TRUE(isNear(media->transformAtTime(0), TransformMatrix::translate(100, 0, 0)));
}

TEST_F(VisualMediaTest, ItsTransformIsReadLessOftenWhenStretched)
{
    // 50 / 2 + 100 = 125
    ramp(media->translation()->at(1));
    media->stretch(2.0);
    EXPECT_TRUE(isNear(media->transformAtTime(50), TransformMatrix::translate(0, 125, 0)));
}

TEST_F(VisualMediaTest, ItsTransformIsBentByAnEdge)
{
    // 150 at half of the fade
    ramp(media->translation()->at(0));
    media->setLeftEdgeModificationLength(100);
    media->addLeftEdgeModification(EdgeModification(media->translation()->at(0), FadeInFunc()));
    EXPECT_TRUE(isNear(media->transformAtTime(50), TransformMatrix::translate(75, 0, 0)));
}

TEST_F(VisualMediaTest, ItsShownOpacityIsBentByAnEdge)
{
    media->setLeftEdgeModificationLength(100);
    media->addLeftEdgeModification(EdgeModification(media->opacity(), FadeInFunc()));
    EXPECT_EQ(0.25, media->transformedDoubleParameterValueAtTime(media->opacity(), 25));
    EXPECT_EQ(1.0, media->transformedDoubleParameterValueAtTime(media->opacity(), 100));
    EXPECT_EQ(1.0, media->opacity()->valueAtTime(25));
}

TEST_F(VisualMediaTest, AMovingPictureNamesItsClass)
{
    EXPECT_EQ("VideoMedia", media->description());
}

}  // namespace
}  // namespace test
}  // namespace tarn
