#include "parameters/KeyFrames.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace test {

namespace {

class KeyFramesTest : public ::testing::Test
{
protected:
    void insert(std::size_t index, long long time)
    {
        frames.insert(index, time, boost::make_shared<KeyFrame<double>>(time, 0.5 * time));
    }
    /// "time=value " for each.
    std::string line() const
    {
        std::string text;
        for (std::size_t i = 0; i < frames.size(); ++i) {
            text += std::to_string(frames.time(i)) + "=" +
                    std::to_string(static_cast<int>(frames.frame(i)->value())) + " ";
        }
        return text;
    }

    KeyFrames<double> frames;
};

}  // namespace

TEST_F(KeyFramesTest, StartsEmpty)
{
    EXPECT_TRUE(frames.empty());
    EXPECT_EQ(nullptr, frames.only());
}

TEST_F(KeyFramesTest, OneAloneIsTheOnlyOne)
{
    insert(0, 20);
    ASSERT_NE(nullptr, frames.only());
    EXPECT_EQ(10.0, (*frames.only())->value());
    EXPECT_EQ("20=10 ", line());
}

TEST_F(KeyFramesTest, SeveralKeepTheirOrder)
{
    insert(0, 20);
    insert(1, 40);
    insert(0, 2);
    insert(2, 30);
    EXPECT_EQ("2=1 20=10 30=15 40=20 ", line());
    EXPECT_EQ(nullptr, frames.only());
}

TEST_F(KeyFramesTest, TheLastOfSeveralIsTheOnlyOneAgain)
{
    insert(0, 20);
    insert(1, 40);
    frames.erase(0);
    ASSERT_NE(nullptr, frames.only());
    EXPECT_EQ("40=20 ", line());
    frames.erase(0);
    EXPECT_TRUE(frames.empty());
    insert(0, 6);
    EXPECT_EQ("6=3 ", line());
}

TEST_F(KeyFramesTest, TheOnlyOneCanBeTakenOutAndReplaced)
{
    insert(0, 20);
    frames.replace(0, boost::make_shared<KeyFrame<double>>(20, 7.0));
    EXPECT_EQ("20=7 ", line());
    frames.erase(0);
    EXPECT_EQ("", line());
}

TEST_F(KeyFramesTest, ReservingKeepsWhatThereIs)
{
    insert(0, 20);
    frames.reserve(50);
    EXPECT_EQ("20=10 ", line());
    frames.reserve(100);
    insert(1, 40);
    EXPECT_EQ("20=10 40=20 ", line());
}

TEST_F(KeyFramesTest, ReservingLessThanThereIsKeepsAllOfThem)
{
    insert(0, 20);
    insert(1, 40);
    frames.reserve(1);
    EXPECT_EQ("20=10 40=20 ", line());
}

TEST_F(KeyFramesTest, OneOfSeveralCanBeReplaced)
{
    insert(0, 20);
    insert(1, 40);
    frames.replace(1, boost::make_shared<KeyFrame<double>>(40, 7.0));
    EXPECT_EQ("20=10 40=7 ", line());
}

TEST_F(KeyFramesTest, SwapsOneWithSeveral)
{
    insert(0, 20);
    insert(1, 40);
    KeyFrames<double> other;
    other.insert(0, 2, boost::make_shared<KeyFrame<double>>(2, 1.0));
    frames.swap(other);
    EXPECT_EQ("2=1 ", line());
    EXPECT_EQ(2u, other.size());
}

}  // namespace test
}  // namespace tarn
