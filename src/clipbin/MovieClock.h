#pragma once

#include "clipbin/MovieTrack.h"

#include <cstdint>

namespace tarn {

/// The time range of a track, brought from its container's clock to one that a project can use.
namespace MovieClock {

/// `numerator` / `denominator`; unknown if either is not positive.
struct Fraction
{
    long long numerator = 0;
    long long denominator = 1;
};

/// A start and a duration in ticks of `tick` seconds.
struct Ticks
{
    long long start = 0;
    long long duration = 0;
    Fraction tick;
};

/// A picture track keeps its container's clock where that tells its frames exactly. A clock that is
/// coarser than a frame does not: 100 frames of 1/30 second are 3,333 ticks of a millisecond, and a
/// later conversion, which cuts, would make 99 frames of them. So what lies within one tick of a
/// whole number of frames is told in frames.
MovieTrack::TimeRange pictureRange(Ticks const& ticks, Fraction const& frameRate);

/// A sound track is told in samples.
MovieTrack::TimeRange soundRange(Ticks const& ticks, long long sampleRate);

}  // namespace MovieClock

}  // namespace tarn
