#pragma once

#include "datatypes/Point.h"
#include "datatypes/TransformMatrix.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarn {
namespace test {

inline double const k_pi = std::acos(-1.0);
inline double const k_rightAngle = k_pi / 2;

/// Equal up to rounding.
inline ::testing::AssertionResult isNear(Point const& got, Point const& wanted)
{
    double const k_rounding = 1e-9;
    if (std::fabs(got.x - wanted.x) < k_rounding && std::fabs(got.y - wanted.y) < k_rounding &&
        std::fabs(got.z - wanted.z) < k_rounding)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << got << " instead of " << wanted;
}

/// A matrix written as its rows.
inline TransformMatrix matrix(double const (&elements)[16])
{
    return TransformMatrix(elements);
}

/// Equal up to rounding.
inline ::testing::AssertionResult isNear(TransformMatrix const& got, TransformMatrix const& wanted)
{
    for (int i = 0; i < 16; ++i) {
        if (!(std::fabs(got.at(i / 4, i % 4) - wanted.at(i / 4, i % 4)) < 1e-9))
            return ::testing::AssertionFailure() << got << " instead of " << wanted;
    }
    return ::testing::AssertionSuccess();
}

}  // namespace test
}  // namespace tarn
