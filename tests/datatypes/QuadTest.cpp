#include "datatypes/Quad.h"
#include "datatypes/Rect.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tarn {
namespace {

Quad sample()
{
    return Quad(Rect<double>(1, 2, 10, 20));
}

TEST(QuadTest, GoesAroundARectangleFromItsOrigin)
{
    Quad const quad = sample();
    EXPECT_EQ(Point(1, 2, 0), quad.at(0));
    EXPECT_EQ(Point(1, 22, 0), quad.at(1));
    EXPECT_EQ(Point(11, 22, 0), quad.at(2));
    EXPECT_EQ(Point(11, 2, 0), quad.at(3));
}

TEST(QuadTest, SetsOneCorner)
{
    Quad quad = sample();
    quad.setAt(2, Point(5, 6, 7));
    EXPECT_EQ(Point(5, 6, 7), quad.at(2));
    EXPECT_EQ(Point(11, 2, 0), quad.at(3));
    EXPECT_NE(sample(), quad);
}

TEST(QuadTest, EveryCornerDecidesEquality)
{
    Quad changed[4] = {sample(), sample(), sample(), sample()};
    for (int i = 0; i < 4; ++i) {
        changed[i].setAt(i, Point(5, 6, 7));
        EXPECT_NE(sample(), changed[i]);
    }
    EXPECT_EQ(sample(), sample());
}

TEST(QuadTest, FindsExtremesInAllCorners)
{
    Quad const quad(Point(3, -1, 0), Point(0, 4, 0), Point(-2, 2, 0), Point(9, 8, 0));
    EXPECT_EQ(-2, quad.minX());
    EXPECT_EQ(9, quad.maxX());
    EXPECT_EQ(-1, quad.minY());
    EXPECT_EQ(8, quad.maxY());
}

TEST(QuadTest, MidPointsLieBetweenNeighbours)
{
    EXPECT_EQ(Point(1, 12, 0), sample().leftMid());
    EXPECT_EQ(Point(6, 22, 0), sample().topMid());
    EXPECT_EQ(Point(11, 12, 0), sample().rightMid());
    EXPECT_EQ(Point(6, 2, 0), sample().bottomMid());
}

TEST(QuadTest, PrintsEachCornerWithABlank)
{
    std::ostringstream out;
    out << Quad(Rect<double>(0, 0, 1, 2));
    EXPECT_EQ("(0,0,0) (0,2,0) (1,2,0) (1,0,0) ", out.str());
    EXPECT_EQ(out.str(), Quad(Rect<double>(0, 0, 1, 2)).description());
}

}  // namespace
}  // namespace tarn
