#include "datatypes/GraphicsUtil.h"
#include "datatypes/Rect.h"
#include "support/Geometry.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

using test::isNear;
using test::k_pi;

double const k_zero[3] = {0, 0, 0};
double const k_one[3] = {1, 1, 1};
Rect<int> const k_viewport(10, 20, 100, 50);

TEST(GraphicsUtilTest, NoComponentsGiveTheIdentity)
{
    EXPECT_EQ(TransformMatrix(),
              GraphicsUtil::calcTransformFromComponents(k_one, k_zero, k_zero, k_zero, k_zero));
}

TEST(GraphicsUtilTest, TheAnchorIsTakenOffFirst)
{
    double const scale[3] = {2, 2, 2};
    double const anchor[3] = {10, 0, 0};
    TransformMatrix const m =
        GraphicsUtil::calcTransformFromComponents(scale, k_zero, k_zero, k_zero, anchor);
    EXPECT_EQ(Point(0, 0, 0), m * Point(10, 0, 0));
    EXPECT_EQ(Point(2, 4, 6), m * Point(11, 2, 3));
}

TEST(GraphicsUtilTest, TheTranslationComesLast)
{
    double const scale[3] = {2, 2, 2};
    double const translation[3] = {5, 6, 7};
    double const anchor[3] = {10, 0, 0};
    TransformMatrix const m =
        GraphicsUtil::calcTransformFromComponents(scale, translation, k_zero, k_zero, anchor);
    EXPECT_EQ(Point(5, 6, 7), m * Point(10, 0, 0));
}

TEST(GraphicsUtilTest, RotatesAroundZThenYThenX)
{
    // (1,0,0) by z: (0,1,0); by y: the same; by x: (0,0,1).
    double const rotation[3] = {k_pi / 2, k_pi / 2, k_pi / 2};
    TransformMatrix const m =
        GraphicsUtil::calcTransformFromComponents(k_one, k_zero, rotation, k_zero, k_zero);
    EXPECT_TRUE(isNear(m * Point(1, 0, 0), Point(0, 0, 1)));
    // (0,0,1) by z: the same; by y: (1,0,0); by x: the same.
    EXPECT_TRUE(isNear(m * Point(0, 0, 1), Point(1, 0, 0)));
}

TEST(GraphicsUtilTest, ScalesBeforeItShears)
{
    // Scaled: (2,3,0). Sheared by 45 degrees along x: (2 + 3, 3, 0).
    double const scale[3] = {2, 3, 1};
    double const shear[2] = {k_pi / 4, 0};
    TransformMatrix const m =
        GraphicsUtil::calcTransformFromComponents(scale, k_zero, k_zero, shear, k_zero);
    EXPECT_TRUE(isNear(m * Point(1, 1, 0), Point(5, 3, 0)));
}

TEST(GraphicsUtilTest, RotatesBeforeItShears)
{
    // Turned by 90 degrees: (0,1,0). Sheared: (1,1,0). The other way round it would be (0,1,0).
    double const rotation[3] = {0, 0, k_pi / 2};
    double const shear[2] = {k_pi / 4, 0};
    TransformMatrix const m =
        GraphicsUtil::calcTransformFromComponents(k_one, k_zero, rotation, shear, k_zero);
    EXPECT_TRUE(isNear(m * Point(1, 0, 0), Point(1, 1, 0)));
}

TEST(GraphicsUtilTest, IsTheProductOfSevenMatricesToTheLastBit)
{
    double const scale[3] = {1.7, -0.3, 1e-5};
    double const translation[3] = {-123.456, 1e7, 0.1};
    double const rotation[3] = {0.3, -2.9, 11.1};
    double const shear[2] = {0.7, -0.2};
    double const anchor[3] = {640.5, -0.001, 3};
    for (double const part : {0.0, 1.0, -0.37}) {
        double const turned[3] = {part * rotation[0], rotation[1], part * rotation[2]};
        TransformMatrix product = TransformMatrix::translate(-123.456, 1e7, 0.1);
        product.append(TransformMatrix::shear(0.7, -0.2));
        product.append(TransformMatrix::rotateAroundX(part * 0.3));
        product.append(TransformMatrix::rotateAroundY(-2.9));
        product.append(TransformMatrix::rotateAroundZ(part * 11.1));
        product.append(TransformMatrix::scale(1.7, -0.3, 1e-5));
        product.append(TransformMatrix::translate(-640.5, 0.001, -3));
        EXPECT_EQ(product, GraphicsUtil::calcTransformFromComponents(scale, translation, turned,
                                                                     shear, anchor));
    }
}

TEST(GraphicsUtilTest, ProjectsTheCentreToTheMiddleOfTheViewport)
{
    EXPECT_EQ(Point(60, 45, 0.5),
              GraphicsUtil::project(Point(), TransformMatrix(), TransformMatrix(), k_viewport));
    EXPECT_EQ(Point(110, 20, 1), GraphicsUtil::project(Point(1, -1, 1), TransformMatrix(),
                                                       TransformMatrix(), k_viewport));
}

TEST(GraphicsUtilTest, ProjectsThroughTheModelThenTheProjection)
{
    // Model: (1,1,-2). Projection with f = 1, near 1, far 3: w = 2, z = (-2 * -2 - 3) / 2 = 0.5,
    // so n = (0.5,0.5,0.5).
    TransformMatrix const model = TransformMatrix::translate(0, 0, -2);
    TransformMatrix const projection = TransformMatrix::perspectiveProjection(k_pi / 2, 1, 1, 3);
    EXPECT_TRUE(isNear(GraphicsUtil::project(Point(1, 1, 0), model, projection, k_viewport),
                       Point(85, 57.5, 0.75)));
}

TEST(GraphicsUtilTest, UnProjectsWhatWasProjected)
{
    TransformMatrix const model = TransformMatrix::translate(0, 0, -2);
    TransformMatrix const projection = TransformMatrix::perspectiveProjection(k_pi / 2, 1, 1, 3);
    EXPECT_TRUE(
        isNear(GraphicsUtil::unProject(Point(85, 57.5, 0.75), model, projection, k_viewport),
               Point(1, 1, 0)));
}

TEST(GraphicsUtilTest, UnProjectsAViewportToTheCube)
{
    EXPECT_EQ(Point(-1, 1, -1), GraphicsUtil::unProject(Point(10, 70, 0), TransformMatrix(),
                                                        TransformMatrix(), k_viewport));
}

}  // namespace
}  // namespace tarn
