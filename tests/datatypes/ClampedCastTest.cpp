#include "datatypes/ClampedCast.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tarn {
namespace {

double const k_infinity = std::numeric_limits<double>::infinity();
double const k_nan = std::numeric_limits<double>::quiet_NaN();

TEST(ClampedCastTest, CutsTowardsZero)
{
    EXPECT_EQ(2, clampedTruncate(2.999));
    EXPECT_EQ(-2, clampedTruncate(-2.999));
    EXPECT_EQ(0, clampedTruncate(-0.5));
    EXPECT_EQ(9007199254740993 - 1, clampedTruncate(9007199254740992.0));
}

TEST(ClampedCastTest, StaysAtTheEndsOf64Bits)
{
    EXPECT_EQ(std::numeric_limits<long long>::max(), clampedTruncate(9223372036854775808.0));
    EXPECT_EQ(std::numeric_limits<long long>::max(), clampedTruncate(k_infinity));
    EXPECT_EQ(std::numeric_limits<long long>::min(), clampedTruncate(-9223372036854775808.0));
    EXPECT_EQ(std::numeric_limits<long long>::min(), clampedTruncate(-k_infinity));
}

TEST(ClampedCastTest, KeepsTheLastDoubleBelowTheEnd)
{
    EXPECT_EQ(9223372036854774784, clampedTruncate(9223372036854774784.0));
    EXPECT_EQ(-9223372036854774784, clampedTruncate(-9223372036854774784.0));
}

TEST(ClampedCastTest, NotANumberIsZero)
{
    EXPECT_EQ(0, clampedTruncate(k_nan));
    EXPECT_EQ(0, clampedTruncateToInt(k_nan));
}

TEST(ClampedCastTest, StaysAtTheEndsOfInt)
{
    EXPECT_EQ(2147483647, clampedTruncateToInt(2147483648.0));
    EXPECT_EQ(2147483647, clampedTruncateToInt(1e300));
    EXPECT_EQ(std::numeric_limits<int>::min(), clampedTruncateToInt(-2147483649.0));
    EXPECT_EQ(std::numeric_limits<int>::min(), clampedTruncateToInt(-k_infinity));
}

TEST(ClampedCastTest, CutsFractionsAtTheEndsOfInt)
{
    EXPECT_EQ(2147483647, clampedTruncateToInt(2147483647.9));
    EXPECT_EQ(std::numeric_limits<int>::min(), clampedTruncateToInt(-2147483648.9));
    EXPECT_EQ(-2147483647, clampedTruncateToInt(-2147483647.9));
}

}  // namespace
}  // namespace tarn
