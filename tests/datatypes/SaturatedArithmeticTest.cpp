#include "datatypes/SaturatedArithmetic.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

long long const k_max = std::numeric_limits<long long>::max();
long long const k_min = std::numeric_limits<long long>::min();

TEST(SaturatedArithmeticTest, AddsAndSubtractsLikeNumbersInRange)
{
    EXPECT_EQ(5, saturatedSum(2, 3));
    EXPECT_EQ(-1, saturatedDifference(2, 3));
}

TEST(SaturatedArithmeticTest, SumsStayAtTheEnds)
{
    EXPECT_EQ(k_max, saturatedSum(k_max, 1));
    EXPECT_EQ(k_min, saturatedSum(k_min, -1));
}

TEST(SaturatedArithmeticTest, DifferencesStayAtTheEnds)
{
    EXPECT_EQ(k_max, saturatedDifference(k_max, -1));
    EXPECT_EQ(k_max, saturatedDifference(0, k_min));
    EXPECT_EQ(k_min, saturatedDifference(k_min, 1));
}

}  // namespace
}  // namespace tarn
