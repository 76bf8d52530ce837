#include "datatypes/VectorUtil.h"
#include "datatypes/Point.h"
#include "datatypes/Quad.h"
#include "datatypes/Rect.h"
#include "support/Geometry.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarn {
namespace {

using test::isNear;

/// Turns clockwise, with y upwards.
Quad square()
{
    return Quad(Rect<double>(0, 0, 10, 10));
}

Quad counterClockwiseSquare()
{
    return Quad(Point(0, 0, 0), Point(10, 0, 0), Point(10, 10, 0), Point(0, 10, 0));
}

TEST(VectorUtilTest, AVectorGoesFromItsFirstPointToItsSecond)
{
    EXPECT_EQ(Point(3, 1, -4), VectorUtil::createVector(Point(1, 1, 1), Point(4, 2, -3)));
}

TEST(VectorUtilTest, MeasuresLengthInSpace)
{
    EXPECT_EQ(7, VectorUtil::length(Point(2, -3, 6)));
}

TEST(VectorUtilTest, NormalizesToOne)
{
    Point vector(0, 3, -4);
    VectorUtil::normalize(vector);
    EXPECT_EQ(Point(0, 0.6, -0.8), vector);
}

TEST(VectorUtilTest, NormalizingNothingIsNotReported)
{
    Point vector;
    VectorUtil::normalize(vector);
    EXPECT_TRUE(std::isnan(vector.x));
}

TEST(VectorUtilTest, FindsTheMiddle)
{
    EXPECT_EQ(Point(2, -1, 4.5), VectorUtil::midPoint(Point(1, -3, 4), Point(3, 1, 5)));
}

TEST(VectorUtilTest, MultipliesCrosswise)
{
    EXPECT_EQ(Point(0, 0, 1), VectorUtil::crossProduct(Point(1, 0, 0), Point(0, 1, 0)));
    // (2*6 - 3*5, 3*4 - 1*6, 1*5 - 2*4)
    EXPECT_EQ(Point(-3, 6, -3), VectorUtil::crossProduct(Point(1, 2, 3), Point(4, 5, 6)));
}

TEST(VectorUtilTest, MultipliesToANumber)
{
    EXPECT_EQ(32, VectorUtil::dotProduct(Point(1, 2, 3), Point(4, 5, 6)));
}

TEST(VectorUtilTest, TheNormalOfTwoVectorsIsOneLong)
{
    EXPECT_EQ(Point(0, 0, 1), VectorUtil::computeNormal(Point(2, 0, 0), Point(5, 3, 0)));
}

TEST(VectorUtilTest, TheNormalOfARectangleLooksAway)
{
    // (0,10,0) x (10,0,0) = (0,0,-100)
    EXPECT_EQ(Point(0, 0, -1), VectorUtil::computeNormal(square()));
}

TEST(VectorUtilTest, CrossingLinesIntersect)
{
    EXPECT_TRUE(VectorUtil::linesIntersect2D(Point(0, 0, 0), Point(10, 10, 5), Point(0, 10, 0),
                                             Point(10, 0, -5)));
}

TEST(VectorUtilTest, LinesThatEndBeforeEachOtherDoNotIntersect)
{
    EXPECT_FALSE(VectorUtil::linesIntersect2D(Point(0, 0, 0), Point(4, 4, 0), Point(0, 10, 0),
                                              Point(10, 0, 0)));
    EXPECT_FALSE(VectorUtil::linesIntersect2D(Point(0, 0, 0), Point(10, 0, 0), Point(0, 1, 0),
                                              Point(10, 1, 0)));
}

TEST(VectorUtilTest, ALineThroughAnEdgeIntersectsTheQuad)
{
    EXPECT_TRUE(VectorUtil::lineIntersectsQuad2D(Point(5, 5, 0), Point(5, 15, 0), square()));
    EXPECT_TRUE(VectorUtil::lineIntersectsQuad2D(Point(-5, 5, 0), Point(15, 5, 0), square()));
}

TEST(VectorUtilTest, ALineInsideOrOutsideDoesNotIntersectTheQuad)
{
    EXPECT_FALSE(VectorUtil::lineIntersectsQuad2D(Point(2, 2, 0), Point(8, 8, 0), square()));
    EXPECT_FALSE(VectorUtil::lineIntersectsQuad2D(Point(20, 2, 0), Point(20, 8, 0), square()));
}

TEST(VectorUtilTest, AQuadContainsItsInsideWhicheverWayItTurns)
{
    EXPECT_TRUE(VectorUtil::quadContainsPoint(square(), Point(5, 5, 99)));
    EXPECT_TRUE(VectorUtil::quadContainsPoint(counterClockwiseSquare(), Point(5, 5, 0)));
}

TEST(VectorUtilTest, AQuadDoesNotContainItsOutside)
{
    EXPECT_FALSE(VectorUtil::quadContainsPoint(square(), Point(11, 5, 0)));
    EXPECT_FALSE(VectorUtil::quadContainsPoint(square(), Point(-1, 5, 0)));
    EXPECT_FALSE(VectorUtil::quadContainsPoint(counterClockwiseSquare(), Point(5, 11, 0)));
    EXPECT_FALSE(VectorUtil::quadContainsPoint(counterClockwiseSquare(), Point(5, -1, 0)));
}

TEST(VectorUtilTest, APointOnTheFirstEdgeCountsAsOnItsNegativeSide)
{
    // All other edges of the clockwise square have it on their negative side as well, those of the
    // other on their positive side.
    EXPECT_TRUE(VectorUtil::quadContainsPoint(square(), Point(0, 5, 0)));
    EXPECT_FALSE(VectorUtil::quadContainsPoint(counterClockwiseSquare(), Point(5, 0, 0)));
}

TEST(VectorUtilTest, APointOnALaterEdgeIsOutside)
{
    EXPECT_FALSE(VectorUtil::quadContainsPoint(square(), Point(5, 10, 0)));
    EXPECT_FALSE(VectorUtil::quadContainsPoint(square(), Point(10, 5, 0)));
    EXPECT_FALSE(VectorUtil::quadContainsPoint(square(), Point(5, 0, 0)));
}

TEST(VectorUtilTest, OneCornerInsideIsEnoughForInsideOf)
{
    EXPECT_TRUE(VectorUtil::quadInsideOfQuad(Quad(Rect<double>(5, 5, 10, 10)), square()));
    EXPECT_FALSE(VectorUtil::quadInsideOfQuad(Quad(Rect<double>(15, 5, 10, 10)), square()));
}

TEST(VectorUtilTest, AnyCornerWillDoForInsideOf)
{
    // The corners of a rectangle go (x, y), (x, y + h), (x + w, y + h), (x + w, y).
    EXPECT_TRUE(VectorUtil::quadInsideOfQuad(Quad(Rect<double>(5, -5, 10, 10)), square()));
    EXPECT_TRUE(VectorUtil::quadInsideOfQuad(Quad(Rect<double>(-5, -5, 10, 10)), square()));
    EXPECT_TRUE(VectorUtil::quadInsideOfQuad(Quad(Rect<double>(-5, 5, 10, 10)), square()));
}

TEST(VectorUtilTest, AQuadAroundAnotherIsNotInsideOfIt)
{
    EXPECT_FALSE(VectorUtil::quadInsideOfQuad(Quad(Rect<double>(-5, -5, 20, 20)), square()));
}

TEST(VectorUtilTest, QuadsIntersectByEdgesAlone)
{
    // A cross of two bars: no corner lies in the other.
    EXPECT_TRUE(VectorUtil::quadsIntersect2D(Quad(Rect<double>(4, -5, 2, 20)), square()));
}

TEST(VectorUtilTest, QuadsIntersectByContainment)
{
    EXPECT_TRUE(VectorUtil::quadsIntersect2D(Quad(Rect<double>(4, 4, 2, 2)), square()));
    EXPECT_TRUE(VectorUtil::quadsIntersect2D(square(), Quad(Rect<double>(4, 4, 2, 2))));
}

TEST(VectorUtilTest, QuadsApartDoNotIntersect)
{
    EXPECT_FALSE(VectorUtil::quadsIntersect2D(Quad(Rect<double>(20, 20, 5, 5)), square()));
}

TEST(VectorUtilTest, TouchingAtACornerNeedNotBeAnIntersection)
{
    Quad const touching(Point(20, -10, 0), Point(20, 0, 0), Point(10, 0, 0), Point(10, -10, 0));
    EXPECT_FALSE(VectorUtil::quadsIntersect2D(square(), touching));
}

TEST(VectorUtilTest, ARayMeetsThePlane)
{
    EXPECT_TRUE(
        isNear(VectorUtil::intersectionOfRayWithPlane(Point(0, 0, 10), Point(1, 1, 8), square()),
               Point(5, 5, 0)));
}

TEST(VectorUtilTest, ARayMeetsThePlaneBehindItsStartAndOutsideTheQuad)
{
    EXPECT_TRUE(
        isNear(VectorUtil::intersectionOfRayWithPlane(Point(0, 0, 10), Point(10, 0, 11), square()),
               Point(-100, 0, 0)));
}

TEST(VectorUtilTest, AParallelRayMeetsNothingFinite)
{
    Point const met =
        VectorUtil::intersectionOfRayWithPlane(Point(0, 0, 10), Point(1, 0, 10), square());
    EXPECT_FALSE(std::isfinite(met.x));
}

}  // namespace
}  // namespace tarn
