#pragma once

#include <limits>

namespace tarn {

/// Cuts towards zero, like a cast, where the result has a place in 64 bits; otherwise gives the
/// nearest end of the range, and 0 for not-a-number.
inline long long clampedTruncate(double value)
{
    if (value >= 9223372036854775808.0)
        return std::numeric_limits<long long>::max();
    if (value <= -9223372036854775808.0)
        return std::numeric_limits<long long>::min();
    return value == value ? static_cast<long long>(value) : 0;
}

/// The same for int.
inline int clampedTruncateToInt(double value)
{
    if (value >= 2147483648.0)
        return std::numeric_limits<int>::max();
    if (value <= -2147483648.0)
        return std::numeric_limits<int>::min();
    return value == value ? static_cast<int>(value) : 0;
}

}  // namespace tarn
