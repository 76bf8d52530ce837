#include "clipbin/MovieClock.h"

#include <algorithm>
#include <optional>

namespace tarn {

namespace {

using MovieClock::Fraction;
using MovieClock::Ticks;
__extension__ typedef __int128 Wide;

// Larger scales would bring products of a conversion near the end of 64 bits.
long long const k_greatestTimeScale = 1000000;
// What claims to be longer than these seconds, nearly four months, claims nonsense.
long long const k_greatestTime = 10000000;

bool isKnown(Fraction const& fraction)
{
    return fraction.numerator > 0 && fraction.denominator > 0;
}

/// Negative times and nonsense become 0.
long long sensible(long long ticks, Fraction const& tick)
{
    bool const isSensible =
        ticks >= 0 && Wide(ticks) * tick.numerator <= Wide(k_greatestTime) * tick.denominator;
    return isSensible ? ticks : 0;
}

Ticks sensible(Ticks const& ticks)
{
    if (!isKnown(ticks.tick)) {
        return Ticks{0, 0, {1, 1}};
    }
    return Ticks{sensible(ticks.start, ticks.tick), sensible(ticks.duration, ticks.tick),
                 ticks.tick};
}

/// The nearest number of units of 1 / scale seconds.
long long rescaled(long long ticks, Fraction const& tick, long long scale)
{
    Wide const dividend = Wide(ticks) * tick.numerator * scale;
    return static_cast<long long>((2 * dividend + tick.denominator) / (2 * Wide(tick.denominator)));
}

/// A time in frames, `frames` / `one` of them.
struct FrameTime
{
    Wide frames;
    Wide one;

    long long nearest() const { return static_cast<long long>((2 * frames + one) / (2 * one)); }
    long long whole() const { return static_cast<long long>(frames / one); }
    Wide distance() const
    {
        Wide const difference = frames - nearest() * one;
        return difference < 0 ? -difference : difference;
    }
};

FrameTime frameTime(long long ticks, Fraction const& tick, Fraction const& rate)
{
    return FrameTime{Wide(ticks) * tick.numerator * rate.numerator,
                     Wide(tick.denominator) * rate.denominator};
}

MovieTrack::TimeRange rangeInScale(Ticks const& ticks, long long scale)
{
    return {rescaled(ticks.start, ticks.tick, scale), rescaled(ticks.duration, ticks.tick, scale),
            static_cast<std::uint32_t>(scale)};
}

MovieTrack::TimeRange rangeInTicks(Ticks const& ticks)
{
    if (ticks.tick.denominator > k_greatestTimeScale) {
        return rangeInScale(ticks, k_greatestTimeScale);
    }
    return {ticks.start * ticks.tick.numerator, ticks.duration * ticks.tick.numerator,
            static_cast<std::uint32_t>(ticks.tick.denominator)};
}

/// The range in frames, if its duration is a whole number of them to within one tick.
std::optional<MovieTrack::TimeRange> rangeInFrames(Ticks const& ticks, Fraction const& rate)
{
    Wide const oneTick = Wide(ticks.tick.numerator) * rate.numerator;
    FrameTime const duration = frameTime(ticks.duration, ticks.tick, rate);
    if (duration.nearest() < 1 || duration.distance() > oneTick) {
        return std::nullopt;
    }
    FrameTime const start = frameTime(ticks.start, ticks.tick, rate);
    long long const startFrames = start.distance() <= oneTick ? start.nearest() : start.whole();
    return MovieTrack::TimeRange{startFrames * rate.denominator,
                                 duration.nearest() * rate.denominator,
                                 static_cast<std::uint32_t>(rate.numerator)};
}

bool isExact(Ticks const& ticks, Fraction const& rate)
{
    return frameTime(ticks.duration, ticks.tick, rate).distance() == 0 &&
           ticks.tick.denominator <= k_greatestTimeScale;
}

}  // namespace

namespace MovieClock {

MovieTrack::TimeRange pictureRange(Ticks const& given, Fraction const& frameRate)
{
    Ticks const ticks = sensible(given);
    bool const hasRate = isKnown(frameRate) && frameRate.numerator <= k_greatestTimeScale;
    if (hasRate && !isExact(ticks, frameRate)) {
        if (auto const range = rangeInFrames(ticks, frameRate)) {
            return *range;
        }
    }
    return rangeInTicks(ticks);
}

MovieTrack::TimeRange soundRange(Ticks const& given, long long sampleRate)
{
    Ticks const ticks = sensible(given);
    if (sampleRate <= 0) {
        return rangeInTicks(ticks);
    }
    return rangeInScale(ticks, std::min(sampleRate, k_greatestTimeScale));
}

}  // namespace MovieClock

}  // namespace tarn
