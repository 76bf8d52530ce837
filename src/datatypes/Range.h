#pragma once

#include "datatypes/Export.h"
#include "datatypes/SaturatedArithmetic.h"
#include "datatypes/TarnObject.h"

#include <iosfwd>
#include <string>
#include <type_traits>

namespace tarn {

/// A stretch of time: half-open, from `start` up to but not including `start + duration`.
///
/// In edit units on some track's clock (`long long`), or in media units (`double`). A duration may
/// be zero or negative; such a range holds nothing.
template <class T>
class TARN_API Range : public TarnObject
{
public:
    Range() : start(), duration() {}
    Range(T startTime, T length) : start(startTime), duration(length) {}
    Range(Range const& other) = default;
    Range& operator=(Range const& other) = default;

    /// Stays at the ends of the 64-bit range instead of wrapping.
    T end() const
    {
        if constexpr (std::is_integral_v<T>)
            return saturatedSum(start, duration);
        else
            return start + duration;
    }

    /// What both have in common. Ranges that only touch, like those apart, give (0, 0). A range
    /// that holds nothing may give a negative duration, but never one above zero.
    Range intersection(Range const& other) const;

    std::string description() const override;

    friend bool operator==(Range const& a, Range const& b)
    {
        return a.start == b.start && a.duration == b.duration;
    }
    friend bool operator!=(Range const& a, Range const& b) { return !(a == b); }

    T start;
    T duration;
};

/// Written as `(start,duration)`.
template <class T>
TARN_API std::ostream& operator<<(std::ostream& out, Range<T> const& range);

extern template class Range<long long>;
extern template class Range<double>;
extern template std::ostream& operator<<(std::ostream&, Range<long long> const&);
extern template std::ostream& operator<<(std::ostream&, Range<double> const&);

}  // namespace tarn
