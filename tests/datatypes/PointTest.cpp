#include "datatypes/Point.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

namespace tarn {
namespace {

TEST(PointTest, IsTheOriginByDefault)
{
    EXPECT_EQ(Point(0, 0, 0), Point());
}

TEST(PointTest, TakesThreeNumbersInARow)
{
    double const coordinates[3] = {1.5, -2, 3};
    EXPECT_EQ(Point(1.5, -2, 3), Point(coordinates));
}

TEST(PointTest, ComparesAllThreeExactly)
{
    EXPECT_TRUE(Point(1, 2, 3) == Point(1, 2, 3));
    EXPECT_TRUE(Point(1, 2, 3) != Point(1, 2, std::nextafter(3.0, 4.0)));
    EXPECT_TRUE(Point(1, 2, 3) != Point(1, 0, 3));
    EXPECT_TRUE(Point(1, 2, 3) != Point(0, 2, 3));
}

TEST(PointTest, AddsAndSubtractsByComponent)
{
    EXPECT_EQ(Point(5, 7, 9), Point(1, 2, 3) + Point(4, 5, 6));
    EXPECT_EQ(Point(-3, -3, -3), Point(1, 2, 3) - Point(4, 5, 6));
}

TEST(PointTest, ScalesByANumber)
{
    EXPECT_EQ(Point(2, -4, 1), Point(4, -8, 2) * 0.5);
    EXPECT_EQ(Point(2, -4, 1), Point(4, -8, 2) / 2);
}

TEST(PointTest, DividingByZeroIsNotReported)
{
    Point const result = Point(1, -1, 0) / 0;
    EXPECT_EQ(std::numeric_limits<double>::infinity(), result.x);
    EXPECT_EQ(-std::numeric_limits<double>::infinity(), result.y);
    EXPECT_TRUE(std::isnan(result.z));
}

TEST(PointTest, PrintsSixDigitsOfEach)
{
    std::ostringstream out;
    out << Point(1.0 / 3, -2, 1e10);
    EXPECT_EQ("(0.333333,-2,1e+10)", out.str());
    EXPECT_EQ("(1,2,3)", Point(1, 2, 3).description());
}

TEST(PointTest, ReadsWhatItPrints)
{
    std::istringstream in("(1.5,-2,1e3)");
    Point point;
    in >> point;
    EXPECT_TRUE(in.good());
    EXPECT_EQ(Point(1.5, -2, 1000), point);
}

TEST(PointTest, ReadsPastAnyDelimiter)
{
    std::istringstream in("[1;2;3]");
    Point point;
    in >> point;
    EXPECT_EQ(Point(1, 2, 3), point);
}

TEST(PointTest, StaysAsItWasWhenReadingFails)
{
    std::istringstream in("(1,two,3)");
    Point point(7, 8, 9);
    in >> point;
    EXPECT_TRUE(in.fail());
    EXPECT_EQ(Point(7, 8, 9), point);
}

}  // namespace
}  // namespace tarn
