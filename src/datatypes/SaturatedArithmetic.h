#pragma once

#include <limits>

namespace tarn {

/// Sums and differences of times that stay at the nearest 64-bit value where the true result has
/// none, so that a wild offset is refused or kept, and never wraps to the other end of time.
inline long long saturatedSum(long long a, long long b)
{
    long long result = 0;
    if (!__builtin_add_overflow(a, b, &result))
        return result;
    return b < 0 ? std::numeric_limits<long long>::min() : std::numeric_limits<long long>::max();
}

/// a - b, staying at the ends of the 64-bit range instead of wrapping.
inline long long saturatedDifference(long long a, long long b)
{
    long long result = 0;
    if (!__builtin_sub_overflow(a, b, &result))
        return result;
    return b > 0 ? std::numeric_limits<long long>::min() : std::numeric_limits<long long>::max();
}

}  // namespace tarn
