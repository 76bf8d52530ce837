#pragma once

#include <cmath>

namespace tarn {

/// Rounds to a whole number; halves of positive numbers go up.
/// Kept so: a negative number goes down, as the remainder then is never above 0.
inline double roundToWhole(double value)
{
    return std::fmod(value, 1.0) >= 0.5 ? std::ceil(value) : std::floor(value);
}

/// Whether a 64-bit integer can hold this whole number; false for NaN.
inline bool isWholeDuration(double value)
{
    return value >= -9223372036854775808.0 && value < 9223372036854775808.0;
}

}  // namespace tarn
