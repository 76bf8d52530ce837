#include "datatypes/Rect.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tarn {
namespace {

TEST(RectTest, IsAllZeroByDefault)
{
    EXPECT_EQ(Rect<int>(0, 0, 0, 0), Rect<int>());
    EXPECT_EQ(Rect<double>(0, 0, 0, 0), Rect<double>());
}

TEST(RectTest, AllFourNumbersCountForEquality)
{
    Rect<int> const rect(1, 2, 3, 4);
    EXPECT_TRUE(rect == Rect<int>(1, 2, 3, 4));
    EXPECT_TRUE(rect != Rect<int>(0, 2, 3, 4));
    EXPECT_TRUE(rect != Rect<int>(1, 0, 3, 4));
    EXPECT_TRUE(rect != Rect<int>(1, 2, 0, 4));
    EXPECT_TRUE(rect != Rect<int>(1, 2, 3, 0));
}

TEST(RectTest, PrintsPositionThenSize)
{
    std::ostringstream out;
    out << Rect<int>(-1, 2, 3, 4) << Rect<float>(0.5f, 0, 1.25f, 2) << Rect<double>(1, 2, 3, 4.5);
    EXPECT_EQ("(-1,2,3,4)(0.5,0,1.25,2)(1,2,3,4.5)", out.str());
    EXPECT_EQ("(-1,2,3,4)", Rect<int>(-1, 2, 3, 4).description());
}

}  // namespace
}  // namespace tarn
