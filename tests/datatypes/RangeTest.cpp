#include "datatypes/Range.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

namespace tarn {
namespace {

using Times = Range<long long>;

TEST(RangeTest, IsEmptyAtZeroByDefault)
{
    EXPECT_EQ(Times(0, 0), Times());
    EXPECT_EQ(Range<double>(0, 0), Range<double>());
}

TEST(RangeTest, EndLiesBehindTheLastMoment)
{
    EXPECT_EQ(15, Times(10, 5).end());
    EXPECT_EQ(2.75, Range<double>(2.5, 0.25).end());
}

TEST(RangeTest, EndStaysWithin64Bits)
{
    long long const k_max = std::numeric_limits<long long>::max();
    EXPECT_EQ(k_max, Times(k_max - 1, 5).end());
}

TEST(RangeTest, EndOfFractionsGoesToInfinity)
{
    double const k_largest = std::numeric_limits<double>::max();
    EXPECT_EQ(std::numeric_limits<double>::infinity(), Range<double>(k_largest, k_largest).end());
}

TEST(RangeTest, BothPartsCountForEquality)
{
    EXPECT_TRUE(Times(1, 2) == Times(1, 2));
    EXPECT_TRUE(Times(1, 2) != Times(1, 3));
    EXPECT_TRUE(Times(1, 2) != Times(0, 2));
}

TEST(RangeTest, PrintsStartAndDuration)
{
    std::ostringstream out;
    out << Times(-3, 12) << Range<double>(0.5, 1234567.0);
    EXPECT_EQ("(-3,12)(0.5,1.23457e+06)", out.str());
    EXPECT_EQ("(-3,12)", Times(-3, 12).description());
}

TEST(RangeTest, IntersectsWhereBothOverlap)
{
    EXPECT_EQ(Times(5, 5), Times(0, 10).intersection(Times(5, 10)));
    EXPECT_EQ(Times(5, 5), Times(5, 10).intersection(Times(0, 10)));
}

TEST(RangeTest, IntersectsWithWhatLiesInside)
{
    EXPECT_EQ(Times(3, 4), Times(0, 10).intersection(Times(3, 4)));
    EXPECT_EQ(Times(3, 4), Times(3, 4).intersection(Times(0, 10)));
}

TEST(RangeTest, IntersectsWithItself)
{
    EXPECT_EQ(Times(-7, 3), Times(-7, 3).intersection(Times(-7, 3)));
}

TEST(RangeTest, SharesOneSideWithAnother)
{
    EXPECT_EQ(Times(0, 4), Times(0, 10).intersection(Times(0, 4)));
    EXPECT_EQ(Times(6, 4), Times(0, 10).intersection(Times(6, 4)));
}

TEST(RangeTest, TouchingIsNoIntersection)
{
    EXPECT_EQ(Times(0, 0), Times(0, 10).intersection(Times(10, 5)));
    EXPECT_EQ(Times(0, 0), Times(10, 5).intersection(Times(0, 10)));
}

TEST(RangeTest, ApartIsNoIntersection)
{
    EXPECT_EQ(Times(0, 0), Times(20, 5).intersection(Times(2, 3)));
}

TEST(RangeTest, AnEmptyRangeInsideGivesNoDurationAboveZero)
{
    // The start 5 is common; the end 5 lies inside (0,10] of the other as well.
    EXPECT_EQ(Times(5, 0), Times(0, 10).intersection(Times(5, 0)));
}

TEST(RangeTest, AnEmptyRangeAtTheStartGivesNoDurationAboveZero)
{
    // The start 4 is common; no end is, so the end is 0.
    EXPECT_EQ(Times(4, -4), Times(4, 10).intersection(Times(4, 0)));
}

TEST(RangeTest, ANegativeRangeNeverOverlaps)
{
    // By starts and ends alone this would be 0 to 5: no start in common, but the end 5.
    EXPECT_EQ(Times(0, 0), Times(-5, 20).intersection(Times(40, -35)));
}

TEST(RangeTest, WhichOfTheTwoIsEmptyDoesNotMatter)
{
    EXPECT_EQ(Times(5, 0), Times(5, 0).intersection(Times(0, 10)));
    EXPECT_EQ(Times(0, 0), Times(40, -35).intersection(Times(-5, 20)));
}

TEST(RangeTest, IntersectsAtTheEndOf64Bits)
{
    long long const k_max = std::numeric_limits<long long>::max();
    EXPECT_EQ(Times(k_max - 5, 5), Times(0, k_max).intersection(Times(k_max - 5, 100)));
}

TEST(RangeTest, IntersectsInFractions)
{
    EXPECT_EQ(Range<double>(0.5, 0.25), Range<double>(0, 0.75).intersection(Range<double>(0.5, 9)));
}

}  // namespace
}  // namespace tarn
