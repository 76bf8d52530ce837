#include "datatypes/AudioPosition.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tarn {
namespace {

TEST(AudioPositionTest, IsTheOriginByDefault)
{
    EXPECT_EQ(AudioPosition(0, 0, 0), AudioPosition());
}

TEST(AudioPositionTest, AddsByComponent)
{
    EXPECT_EQ(AudioPosition(5, 0, 9.5f), AudioPosition(1, 2, 3.5f) + AudioPosition(4, -2, 6));
}

TEST(AudioPositionTest, MultipliesAsDoubleAndRoundsOnce)
{
    // 16777216 * 1.00000005 is 16777216.8 as a double and rounds to the even float 16777216, while
    // 1.00000005 as a float would be 1 + 2^-23 or 1. Times 3 it is 50331648 + 2.5, whose nearest
    // float (they are 4 apart there) is 50331652.
    AudioPosition const position = AudioPosition(16777216.0f, 50331648.0f, 1) * 1.00000005;
    EXPECT_EQ(16777216.0f, position.x);
    EXPECT_EQ(50331652.0f, position.y);
    EXPECT_EQ(1.0f, position.z);
}

TEST(AudioPositionTest, AllThreeCountForEquality)
{
    AudioPosition const position(1, 2, 3);
    EXPECT_TRUE(position == AudioPosition(1, 2, 3));
    EXPECT_TRUE(position != AudioPosition(0, 2, 3));
    EXPECT_TRUE(position != AudioPosition(1, 0, 3));
    EXPECT_TRUE(position != AudioPosition(1, 2, 0));
}

TEST(AudioPositionTest, PrintsAndReadsTheSameShape)
{
    std::stringstream stream;
    stream << AudioPosition(0.5f, -1, 2);
    EXPECT_EQ("(0.5,-1,2)", stream.str());
    AudioPosition read;
    stream >> read;
    EXPECT_EQ(AudioPosition(0.5f, -1, 2), read);
}

TEST(AudioPositionTest, StaysAsItWasWhenReadingFails)
{
    std::istringstream in("(0.5)");
    AudioPosition position(7, 8, 9);
    in >> position;
    EXPECT_EQ(AudioPosition(7, 8, 9), position);
}

TEST(AudioPositionTest, DescribesItselfAsItPrints)
{
    EXPECT_EQ("(1,2,3)", AudioPosition(1, 2, 3).description());
}

}  // namespace
}  // namespace tarn
