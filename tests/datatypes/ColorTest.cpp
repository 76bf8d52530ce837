#include "datatypes/Color.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

namespace tarn {
namespace {

TEST(ColorTest, IsAllZeroByDefault)
{
    EXPECT_EQ(Color(0, 0, 0, 0), Color());
}

TEST(ColorTest, BlackCovers)
{
    EXPECT_EQ(Color(0, 0, 0, 255), Color::black());
}

TEST(ColorTest, WhiteDoesNotCover)
{
    EXPECT_EQ(Color(255, 255, 255, 0), Color::white());
}

TEST(ColorTest, AllFourChannelsCountForEquality)
{
    Color const color(1, 2, 3, 4);
    EXPECT_TRUE(color == Color(1, 2, 3, 4));
    EXPECT_TRUE(color != Color(0, 2, 3, 4));
    EXPECT_TRUE(color != Color(1, 0, 3, 4));
    EXPECT_TRUE(color != Color(1, 2, 0, 4));
    EXPECT_TRUE(color != Color(1, 2, 3, 0));
}

TEST(ColorTest, MultiplyingCutsToWholeNumbers)
{
    // 127.5, 1.5, -1.5 and 0.5, each cut towards zero.
    EXPECT_EQ(Color(127, 1, -1, 0), Color(255, 3, -3, 1) * 0.5);
}

TEST(ColorTest, AddingDoesNotStopAt255)
{
    EXPECT_EQ(Color(400, 3, -5, 510), Color(200, 1, -10, 255) + Color(200, 2, 5, 255));
}

TEST(ColorTest, MultiplyingDoesNotStopAt255)
{
    EXPECT_EQ(Color(510, -20, 0, 2), Color(255, -10, 0, 1) * 2);
}

TEST(ColorTest, MultiplyingStaysWithinInt)
{
    int const k_max = std::numeric_limits<int>::max();
    EXPECT_EQ(Color(k_max, k_max, 0, 0), Color(255, 1, 0, 0) * 1e300);
}

TEST(ColorTest, PrintsItsChannels)
{
    std::ostringstream out;
    out << Color(255, 0, -7, 128);
    EXPECT_EQ("(255,0,-7,128)", out.str());
    EXPECT_EQ("(255,0,-7,128)", Color(255, 0, -7, 128).description());
}

TEST(ColorTest, ReadsWhatItPrints)
{
    std::istringstream in("(255,0,-7,128)");
    Color color;
    in >> color;
    EXPECT_EQ(Color(255, 0, -7, 128), color);
}

TEST(ColorTest, StaysAsItWasWhenReadingFails)
{
    std::istringstream in("(255,0,-7");
    Color color(1, 2, 3, 4);
    in >> color;
    EXPECT_TRUE(in.fail());
    EXPECT_EQ(Color(1, 2, 3, 4), color);
}

}  // namespace
}  // namespace tarn
