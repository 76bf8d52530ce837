#include "parameters/KeyFrame.h"

#include <gtest/gtest.h>

#include <memory>

namespace tarn {
namespace {

TEST(KeyFrameTest, HoldsATimeAndAValue)
{
    KeyFrame<double> const frame(-5, 2.5);
    EXPECT_EQ(-5, frame.time());
    EXPECT_EQ(2.5, frame.value());
}

TEST(KeyFrameTest, TakesAnotherValue)
{
    KeyFrame<std::string> frame(1, "before");
    frame.setValue("after");
    EXPECT_EQ("after", frame.value());
}

TEST(KeyFrameTest, ACloneIsIndependent)
{
    KeyFrame<Point> const frame(7, Point(1, 2, 3));
    std::unique_ptr<KeyFrame<Point>> const clone(frame.clone());
    clone->setValue(Point());
    EXPECT_EQ(7, clone->time());
    EXPECT_EQ(Point(1, 2, 3), frame.value());
}

TEST(KeyFrameTest, HasNothingToTellOfItself)
{
    EXPECT_EQ("", KeyFrame<Color>(3, Color::black()).description());
}

}  // namespace
}  // namespace tarn
