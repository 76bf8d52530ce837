#include "timeline/TemporalEditor.h"

#include "datatypes/ClampedCast.h"
#include "datatypes/SaturatedArithmetic.h"
#include "exceptions/ValueException.h"
#include "timeline/MediaImpl.h"

#include <cmath>

namespace tarn {

TemporalEditor::TemporalEditor(MediaImpl* media) : MediaEditor(media) {}

void TemporalEditor::move(long long offset, Range<long long>& track, Range<double>&)
{
    track.start = saturatedSum(track.start, offset);
}

void TemporalEditor::trimStart(long long offset, Range<long long>& track, Range<double>& media)
{
    if (!validTrimStart(offset, track, media))
        throw ValueException<long long>("invalid media trim start offset", offset);
    MediaTiming const timing = this->media()->timing();
    track.start = saturatedSum(track.start, offset);
    track.duration = saturatedDifference(track.duration, offset);
    double const oldDuration = media.duration;
    media.duration = roundIfClose(timing.mediaEndLimit,
                                  static_cast<double>(track.duration) / timing.scalar, k_close);
    media.start += oldDuration - media.duration;
    // Kept so: a start within the first whole unit becomes the very start.
    if (almostNumber(0.0, media.start, k_close))
        media.start = 0.0;
}

bool TemporalEditor::validTrimStart(long long offset, Range<long long>&, Range<double>&)
{
    MediaTiming const timing = media()->timing();
    return isValidStart(timing, offset) && isValidDuration(timing, offset);
}

void TemporalEditor::trimEnd(long long offset, Range<long long>& track, Range<double>& media)
{
    MediaTiming const timing = this->media()->timing();
    if (!isValidDuration(timing, offset))
        throw ValueException<long long>("invalid media trim end offset", offset);
    track.duration = saturatedDifference(track.duration, offset);
    media.duration = roundIfClose(timing.mediaEndLimit,
                                  static_cast<double>(track.duration) / timing.scalar, k_close);
}

bool TemporalEditor::validTrimEnd(long long offset, Range<long long>&, Range<double>&)
{
    return validMediaDurationWithTrimOffset(offset);
}

long long TemporalEditor::trimEndLimit(Range<long long> const&, Range<double> const& media,
                                       double const& scalar, double const& mediaEndLimit) const
{
    // Kept so: the limit is scaled to the track's clock and the media's end is not.
    return clampedTruncate(-std::floor(mediaEndLimit * scalar - (media.start + media.duration)));
}

long long TemporalEditor::trimStartLimit(Range<long long> const&, Range<double> const& media,
                                         double const& scalar, double const&) const
{
    return clampedTruncate(-std::floor(media.start * scalar));
}

}  // namespace tarn
