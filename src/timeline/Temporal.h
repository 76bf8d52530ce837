#pragma once

#include "datatypes/Export.h"
#include "datatypes/Range.h"

namespace tarn {

/// Anything that starts and ends: edit units on the clock of whatever it lies on.
class TARN_API Temporal
{
public:
    virtual ~Temporal() = default;

    /// The first edit unit that belongs to it.
    virtual long long startTime() const = 0;
    /// The first edit unit that no longer belongs to it.
    virtual long long endTime() const = 0;
    /// The number of edit units between both.
    virtual long long duration() const = 0;

    /// Half-open: from startTime(), duration() long.
    Range<long long> timeRange() const;
};

}  // namespace tarn
