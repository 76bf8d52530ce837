#include "timeline/MediaEditor.h"

#include "datatypes/SaturatedArithmetic.h"
#include "exceptions/ValueException.h"
#include "timeline/MediaImpl.h"
#include "timeline/WholeDuration.h"

#include <cmath>
#include <limits>

namespace tarn {

namespace {

double const k_beyondInt = 2147483648.0;

/// The difference in whole units. What no 32-bit integer holds, and NaN, is far apart.
double wholeDifference(double a, double b)
{
    double const difference = std::fabs(a - b);
    if (!(difference < k_beyondInt))
        return std::numeric_limits<double>::infinity();
    return std::trunc(difference);
}

}  // namespace

MediaEditor::MediaEditor(MediaImpl* media) : m_media(media) {}

std::string MediaEditor::description() const
{
    return std::string();
}

double MediaEditor::stretch(double requested, Range<long long>& track, Range<double>&,
                            double& scalar)
{
    double const newScalar = m_media->findScalar(requested);
    double const duration =
        roundToWhole((static_cast<double>(track.duration) / scalar) * newScalar);
    if (!(duration > 0.0) || !isWholeDuration(duration)) {
        throw ValueException<double>("invalid duration after media stretch (<=0)", requested);
    }
    track.duration = static_cast<long long>(duration);
    scalar = requested == 1.0 ? 1.0 : newScalar;
    return scalar;
}

bool MediaEditor::almostNumber(double a, double b, double eps) const
{
    return eps > wholeDifference(a, b);
}

double MediaEditor::roundIfClose(double a, double b, double eps) const
{
    return wholeDifference(a, b) < eps ? a : b;
}

double MediaEditor::stretchOffset(long long offset, double a, double b) const
{
    return a - static_cast<double>(offset) / b;
}

bool MediaEditor::validMediaStartWithTrimOffset(long long offset) const
{
    return isValidStart(m_media->timing(), offset);
}

bool MediaEditor::validMediaDurationWithTrimOffset(long long offset) const
{
    return isValidDuration(m_media->timing(), offset);
}

bool MediaEditor::isValidStart(MediaTiming const& timing, long long offset) const
{
    if (saturatedSum(timing.trackRange.start, offset) < 0)
        return false;
    double const delta = stretchOffset(saturatedDifference(timing.trackRange.duration, offset),
                                       timing.mediaRange.duration, timing.scalar);
    double const newStart = delta + timing.mediaRange.start;
    if (timing.mediaStartLimit > roundIfClose(timing.mediaStartLimit, newStart, k_close))
        return false;
    return roundIfClose(timing.mediaEndLimit, newStart, k_close) < timing.mediaEndLimit;
}

bool MediaEditor::isValidDuration(MediaTiming const& timing, long long offset) const
{
    long long const trackDuration = saturatedDifference(timing.trackRange.duration, offset);
    if (trackDuration < 0)
        return false;
    double const delta = stretchOffset(trackDuration, timing.mediaRange.duration, timing.scalar);
    double const newDuration = timing.mediaRange.duration - delta;
    if (almostNumber(0.0, newDuration, k_close) || newDuration <= 0)
        return false;
    // Kept so: this sets a duration against a limit on time; what uncovers too much at the end is
    // refused only once the whole length exceeds the limit.
    return !(roundIfClose(timing.mediaEndLimit, newDuration, k_close) > timing.mediaEndLimit);
}

}  // namespace tarn
