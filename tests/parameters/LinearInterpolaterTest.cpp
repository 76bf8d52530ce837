#include "parameters/LinearInterpolater.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

template <class T>
T blend(T const& left, T const& right, double position)
{
    return LinearInterpolater<T>::instance()->interpolate(left, right, position);
}

TEST(LinearInterpolaterTest, ThereIsOneForEachType)
{
    EXPECT_EQ(LinearInterpolater<double>::instance(), LinearInterpolater<double>::s_instance);
    EXPECT_EQ(&LinearInterpolater<double>::instance(), &LinearInterpolater<double>::s_instance);
    EXPECT_EQ("linr", LinearInterpolater<Point>::instance()->id());
}

TEST(LinearInterpolaterTest, BlendsDoubles)
{
    EXPECT_EQ(15.0, blend(10.0, 20.0, 0.5));
    EXPECT_EQ(12.5, blend(10.0, 20.0, 0.25));
}

TEST(LinearInterpolaterTest, BlendsDoublesByTwoProducts)
{
    // 0 * 1e16 + 1 * 1. As left + (right - left) * position it would be 0: 1 - 1e16 rounds to
    // -1e16.
    EXPECT_EQ(1.0, blend(1e16, 1.0, 1.0));
}

TEST(LinearInterpolaterTest, BlendsFloatsAsDoublesAndRoundsOnce)
{
    // 2^24 * (1 - p) + (2^24 + 2) * p with p = 0.75 is 2^24 + 1.5, which rounds to 2^24 + 2. Each
    // product rounded to float would give 4194304 + 12582914 (12582913.5 rounds up).
    EXPECT_EQ(16777218.0f, blend(16777216.0f, 16777218.0f, 0.75));
    // A third, rounded once.
    EXPECT_EQ(static_cast<float>(1.0 / 3), blend(0.0f, 1.0f, 1.0 / 3));
}

TEST(LinearInterpolaterTest, BlendsPointsByComponent)
{
    EXPECT_EQ(Point(2.5, -1, 4), blend(Point(0, -2, 4), Point(10, 2, 4), 0.25));
}

TEST(LinearInterpolaterTest, BlendsMatricesByElement)
{
    TransformMatrix const wanted = TransformMatrix::translate(5, 10, 15);
    EXPECT_EQ(wanted, blend(TransformMatrix(), TransformMatrix::translate(10, 20, 30), 0.5));
}

TEST(LinearInterpolaterTest, BlendsAudioPositions)
{
    EXPECT_EQ(AudioPosition(1.5f, 0, -1.5f),
              blend(AudioPosition(1, 0, -1), AudioPosition(2, 0, -2), 0.5));
}

TEST(LinearInterpolaterTest, DoesNotClampThePosition)
{
    EXPECT_EQ(30.0, blend(10.0, 20.0, 2.0));
    EXPECT_EQ(5.0, blend(10.0, 20.0, -0.5));
}

}  // namespace
}  // namespace tarn
