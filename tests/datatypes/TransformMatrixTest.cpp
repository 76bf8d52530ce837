#include "datatypes/TransformMatrix.h"
#include "support/Geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

namespace tarn {
namespace {

using test::isNear;
using test::k_pi;
using test::matrix;

TransformMatrix counting()
{
    return matrix({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
}

TEST(TransformMatrixTest, IsTheIdentityByDefault)
{
    EXPECT_EQ(matrix({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}), TransformMatrix());
    EXPECT_EQ(Point(3, -4, 5), TransformMatrix() * Point(3, -4, 5));
}

TEST(TransformMatrixTest, TakesSixteenNumbersRowByRow)
{
    EXPECT_EQ(4, counting().at(0, 3));
    EXPECT_EQ(5, counting().at(1, 0));
    EXPECT_EQ(12, counting()(2, 3));
}

TEST(TransformMatrixTest, WritesElementsInPlace)
{
    TransformMatrix m;
    m.at(0, 3) = 7;
    m(3, 0) = 8;
    EXPECT_EQ(matrix({1, 0, 0, 7, 0, 1, 0, 0, 0, 0, 1, 0, 8, 0, 0, 1}), m);
}

TEST(TransformMatrixTest, OneElementDecidesEquality)
{
    TransformMatrix m = counting();
    EXPECT_TRUE(m == counting());
    m.at(3, 3) = 17;
    EXPECT_TRUE(m != counting());
}

TEST(TransformMatrixTest, MovesAPointByItsLastColumn)
{
    EXPECT_EQ(Point(11, 22, 33), TransformMatrix::translate(10, 20, 30) * Point(1, 2, 3));
}

TEST(TransformMatrixTest, DividesByTheHomogeneousCoordinate)
{
    // w = 13 + 28 + 45 + 16 = 102; x' = (1 + 4 + 9 + 4) / 102, y' = 46 / 102, z' = 74 / 102.
    Point const result = counting() * Point(1, 2, 3);
    EXPECT_EQ(Point(18.0 / 102, 46.0 / 102, 74.0 / 102), result);
}

TEST(TransformMatrixTest, MovesEachCornerOfAQuad)
{
    Quad const quad(Point(0, 0, 0), Point(0, 1, 0), Point(1, 1, 0), Point(1, 0, 0));
    Quad const wanted(Point(2, 3, 0), Point(2, 4, 0), Point(3, 4, 0), Point(3, 3, 0));
    EXPECT_EQ(wanted, TransformMatrix::translate(2, 3, 0) * quad);
}

TEST(TransformMatrixTest, ScalesAndAddsElementByElement)
{
    TransformMatrix m = counting() * 2;
    EXPECT_EQ(32, m.at(3, 3));
    EXPECT_EQ(counting() + counting(), m);
    m -= counting();
    EXPECT_EQ(counting(), m);
    m += counting();
    m *= 0.5;
    EXPECT_EQ(counting(), m);
}

TEST(TransformMatrixTest, AppendedActsFirst)
{
    TransformMatrix m;
    m.append(TransformMatrix::translate(10, 0, 0));
    m.append(TransformMatrix::scale(2, 2, 2));
    EXPECT_EQ(Point(12, 2, 2), m * Point(1, 1, 1));
}

TEST(TransformMatrixTest, PrependedActsLast)
{
    TransformMatrix m;
    m.prepend(TransformMatrix::translate(10, 0, 0));
    m.prepend(TransformMatrix::scale(2, 2, 2));
    EXPECT_EQ(Point(22, 2, 2), m * Point(1, 1, 1));
}

TEST(TransformMatrixTest, MultipliesRowsByColumns)
{
    TransformMatrix m = counting();
    m.append(matrix({0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 2, 0, 0, 1, 0}));
    EXPECT_EQ(matrix({2, 1, 4, 6, 6, 5, 8, 14, 10, 9, 12, 22, 14, 13, 16, 30}), m);
}

TEST(TransformMatrixTest, AppendsItself)
{
    TransformMatrix m = TransformMatrix::translate(1, 2, 3);
    m.append(m);
    EXPECT_EQ(TransformMatrix::translate(2, 4, 6), m);
}

TEST(TransformMatrixTest, KnowsItsDeterminant)
{
    EXPECT_EQ(24, TransformMatrix::scale(2, 3, 4).determinant());
    EXPECT_EQ(0, counting().determinant());
    // By the first row: 1 * |1 4 1; 0 1 2; 1 0 1| - 2 * |3 4 1; 0 1 2; 0 0 1| = 8 - 6.
    EXPECT_EQ(2, matrix({1, 2, 0, 0, 3, 1, 4, 1, 0, 0, 1, 2, 0, 1, 0, 1}).determinant());
}

TEST(TransformMatrixTest, InvertsScaleAndTranslationExactly)
{
    EXPECT_EQ(TransformMatrix::scale(0.5, 0.25, 8), TransformMatrix::scale(2, 4, 0.125).inverse());
    EXPECT_EQ(TransformMatrix::translate(-1, 2, -3),
              TransformMatrix::translate(1, -2, 3).inverse());
}

TEST(TransformMatrixTest, InvertsWhatNeedsItsRowsSwapped)
{
    TransformMatrix const swapping = matrix({0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 2, 0, 0, 4, 0});
    EXPECT_EQ(matrix({0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0.25, 0, 0, 0.5, 0}), swapping.inverse());
}

TEST(TransformMatrixTest, AMatrixTimesItsInverseIsTheIdentity)
{
    TransformMatrix m = matrix({1, 2, 0, 0, 3, 1, 4, 1, 0, 0, 1, 2, 0, 1, 0, 1});
    m.append(m.inverse());
    EXPECT_TRUE(isNear(m, TransformMatrix()));
}

TEST(TransformMatrixTest, InvertsVerySmallScales)
{
    TransformMatrix const inverse = TransformMatrix::scale(1e-200, 1e-200, 1e-200).inverse();
    EXPECT_NEAR(1, inverse.at(0, 0) / 1e200, 1e-9);
    EXPECT_EQ(1, inverse.at(3, 3));
}

TEST(TransformMatrixTest, InvertsVeryLargeScales)
{
    double const large = std::ldexp(1.0, 300);
    EXPECT_EQ(TransformMatrix::scale(1 / large, 0.5, 1),
              TransformMatrix::scale(large, 2, 1).inverse());
}

TEST(TransformMatrixTest, ASingularMatrixHasNoFiniteInverse)
{
    EXPECT_FALSE(std::isfinite(TransformMatrix::scale(1, 1, 0).inverse().at(0, 0)));
    EXPECT_FALSE(std::isfinite(TransformMatrix::scale(1, 1, 0).inverse().at(2, 2)));
    EXPECT_FALSE(std::isfinite(counting().inverse().at(0, 0)));
    EXPECT_FALSE(std::isfinite((TransformMatrix() * 0).inverse().at(3, 1)));
}

TEST(TransformMatrixTest, SplitsIntoLowerAndUpper)
{
    TransformMatrix lower;
    TransformMatrix upper;
    matrix({2, 1, 0, 0, 4, 5, 1, 0, 0, 6, 4, 0, 2, 1, 0, 1}).luDecomposition(lower, upper);
    // Row 1 loses 2 x row 0, row 3 loses row 0, row 2 loses 2 x the new row 1 (0, 3, 1, 0).
    EXPECT_EQ(matrix({1, 0, 0, 0, 2, 1, 0, 0, 0, 2, 1, 0, 1, 0, 0, 1}), lower);
    EXPECT_EQ(matrix({2, 1, 0, 0, 0, 3, 1, 0, 0, 0, 2, 0, 0, 0, 0, 1}), upper);
}

TEST(TransformMatrixTest, AZeroOnTheDiagonalSplitsIntoWhatIsNotFinite)
{
    TransformMatrix lower;
    TransformMatrix upper;
    // Rows 0 and 1 swapped would do; as it is, row 1 would have to lose endlessly much of row 0.
    matrix({0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}).luDecomposition(lower, upper);
    EXPECT_FALSE(std::isfinite(lower.at(1, 0)));
    EXPECT_FALSE(std::isfinite(upper.at(1, 1)));
}

TEST(TransformMatrixTest, SplitsIntoItself)
{
    TransformMatrix lower = matrix({2, 1, 0, 0, 4, 5, 1, 0, 0, 6, 4, 0, 2, 1, 0, 1});
    TransformMatrix upper;
    lower.luDecomposition(lower, upper);
    lower.append(upper);
    EXPECT_EQ(matrix({2, 1, 0, 0, 4, 5, 1, 0, 0, 6, 4, 0, 2, 1, 0, 1}), lower);
}

TEST(TransformMatrixTest, OperatesOnRows)
{
    TransformMatrix m = counting();
    m.rowOpMultiply(0, 3);
    m.rowOpAddRow(1, 0, -1);
    m.rowOpSwapRow(2, 3);
    EXPECT_EQ(matrix({3, 6, 9, 12, 2, 0, -2, -4, 13, 14, 15, 16, 9, 10, 11, 12}), m);
}

TEST(TransformMatrixTest, NormalizesColumnsByTheirBottom)
{
    TransformMatrix m = matrix({2, 3, 4, 5, 6, 9, 12, 15, 1, 1, 1, 1, 2, 1, 4, 5});
    m.normalizeColumnVectors();
    EXPECT_EQ(matrix({1, 3, 1, 1, 3, 9, 3, 3, 0.5, 1, 0.25, 0.2, 1, 1, 1, 1}), m);
}

TEST(TransformMatrixTest, RotatesAroundEachAxis)
{
    EXPECT_TRUE(isNear(TransformMatrix::rotateAroundX(k_pi / 2) * Point(1, 2, 3), Point(1, -3, 2)));
    EXPECT_TRUE(isNear(TransformMatrix::rotateAroundY(k_pi / 2) * Point(1, 2, 3), Point(3, 2, -1)));
    EXPECT_TRUE(isNear(TransformMatrix::rotateAroundZ(k_pi / 2) * Point(1, 2, 3), Point(-2, 1, 3)));
}

TEST(TransformMatrixTest, ShearsByTangents)
{
    // tan(45 degrees) is 1, and tan(atan(2)) is 2.
    EXPECT_TRUE(isNear(TransformMatrix::shear(k_pi / 4, std::atan(2.0)),
                       matrix({3, 1, 0, 0, 2, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1})));
}

TEST(TransformMatrixTest, ANegativeShearIsLikeAPositiveOne)
{
    EXPECT_EQ(TransformMatrix::shear(0.3, 0.4), TransformMatrix::shear(-0.3, 0.4));
    EXPECT_EQ(TransformMatrix::shear(0.3, 0.4), TransformMatrix::shear(0.3, -0.4));
}

TEST(TransformMatrixTest, ProjectsOntoAPlaneSeenFromAnEye)
{
    // k = 6 - 1 = 5.
    EXPECT_TRUE(isNear(TransformMatrix::perspectiveProjection(Point(2, 4, 6), 1),
                       matrix({1, 0, -0.4, 0.4, 0, 1, -0.8, 0.8, 0, 0, 1, 0, 0, 0, -0.2, 1.2})));
}

TEST(TransformMatrixTest, ProjectsWithAFieldOfView)
{
    // f = 1; m22 = 4 / -2, m23 = 1 * 2 * 3 / -2.
    EXPECT_TRUE(isNear(TransformMatrix::perspectiveProjection(k_pi / 2, 2, 1, 3),
                       matrix({0.5, 0, 0, 0, 0, 1, 0, 0, 0, 0, -2, -3, 0, 0, -1, 0})));
}

TEST(TransformMatrixTest, ProjectsLeftHandedForRows)
{
    // f = 1; m22 = 3 / 2, m32 = -3 / 2.
    EXPECT_TRUE(isNear(TransformMatrix::perspectiveProjectionLH(k_pi / 2, 2, 1, 3),
                       matrix({0.5, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1.5, 1, 0, 0, -1.5, 0})));
}

TEST(TransformMatrixTest, ACameraOnTheZAxisOnlyMoves)
{
    EXPECT_EQ(TransformMatrix::translate(0, 0, -3000),
              TransformMatrix::cameraLookAt(Point(0, 0, 3000), Point(0, 0, 0), Point(0, 2, 0)));
}

TEST(TransformMatrixTest, ACameraToTheSideKeepsItsEyeUnturned)
{
    // f = (-1,0,0), s = f x up = (0,0,-1), u = s x f = (0,1,0); turned, the eye would be at z = -5.
    EXPECT_EQ(matrix({0, 0, -1, -5, 0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 1}),
              TransformMatrix::cameraLookAt(Point(5, 0, 0), Point(0, 0, 0), Point(0, 1, 0)));
}

TEST(TransformMatrixTest, ACameraLeavesItsSideVectorsAsLongAsTheyAre)
{
    // up at 30 degrees from the line of sight (0,0,-1): |f x u0| = 0.5, so s and u are 0.5 long.
    double const k_root3 = std::sqrt(3.0);
    EXPECT_TRUE(
        isNear(TransformMatrix::cameraLookAt(Point(0, 0, 7), Point(0, 0, 0), Point(0, 1, -k_root3)),
               matrix({0.5, 0, 0, 0, 0, 0.5, 0, 0, 0, 0, 1, -7, 0, 0, 0, 1})));
}

TEST(TransformMatrixTest, ALeftHandedCameraHasItsAxesAsColumns)
{
    // z = (-1,0,0), x = up x z = (0,0,1), y = z x x = (0,1,0); -z . eye = 5.
    EXPECT_EQ(matrix({0, 0, -1, 0, 0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 5, 1}),
              TransformMatrix::cameraLookAtLH(Point(5, 0, 0), Point(0, 0, 0), Point(0, 3, 0)));
}

TEST(TransformMatrixTest, StandsFourPointsSideBySide)
{
    Point const points[4] = {Point(1, 2, 3), Point(4, 5, 6), Point(7, 8, 9), Point(10, 11, 12)};
    EXPECT_EQ(matrix({1, 4, 7, 10, 2, 5, 8, 11, 3, 6, 9, 12, 1, 1, 1, 1}),
              TransformMatrix::quad(points));
}

TEST(TransformMatrixTest, PrintsItsRowsInBraces)
{
    std::ostringstream out;
    out << counting() * 0.5;
    EXPECT_EQ("{{0.5,1,1.5,2},{2.5,3,3.5,4},{4.5,5,5.5,6},{6.5,7,7.5,8}}", out.str());
    EXPECT_EQ("{{1,0,0,0},{0,1,0,0},{0,0,1,0},{0,0,0,1}}", TransformMatrix().description());
}

TEST(TransformMatrixTest, ReadsWhatItPrints)
{
    std::istringstream in("{{1,2,3,4},{5,6,7,8},{9,10,11,12},{13,14,15,16}}");
    TransformMatrix read;
    in >> read;
    EXPECT_TRUE(in.good());
    EXPECT_EQ(counting(), read);
}

TEST(TransformMatrixTest, StaysAsItWasWhenReadingFails)
{
    std::istringstream in("{{1,2,3,4},{5,6,7,8}}");
    TransformMatrix read = counting();
    in >> read;
    EXPECT_TRUE(in.fail());
    EXPECT_EQ(counting(), read);
}

}  // namespace
}  // namespace tarn
