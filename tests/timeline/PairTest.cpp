#include "timeline/Pair.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tarn {
namespace test {

TEST(PairTest, BothMembersCountForEquality)
{
    EXPECT_TRUE(Pair<int>(1, 2) == Pair<int>(1, 2));
    EXPECT_TRUE(Pair<int>(1, 2) != Pair<int>(3, 2));
    EXPECT_TRUE(Pair<int>(1, 2) != Pair<int>(1, 3));
}

TEST(PairTest, StartsWithTheValuesOfNothing)
{
    EXPECT_EQ(Pair<int>(0, 0), Pair<int>());
}

TEST(PairTest, PrintsBothInParentheses)
{
    std::ostringstream out;
    out << Pair<int>(1, 2);
    EXPECT_EQ("(1,2)", out.str());
}

}  // namespace test
}  // namespace tarn
