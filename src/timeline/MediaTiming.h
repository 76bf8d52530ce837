#pragma once

#include "datatypes/Range.h"

namespace tarn {

/// What the arithmetic of a media's two clocks needs, read together under one lock.
struct MediaTiming
{
    Range<long long> trackRange;  ///< edit units on the track
    Range<double> mediaRange;     ///< media units of the source
    double scalar;                ///< track duration over media duration
    double mediaStartLimit;       ///< media units: the first moment the source offers
    double mediaEndLimit;         ///< media units: the end of what the source offers
};

}  // namespace tarn
