#pragma once

#include "timeline/MediaEditor.h"

namespace tarn {

/// Edits still pictures, which have no time axis: any trim is valid, even to no or negative length,
/// and the media range never changes. Key frames are kept in place by the sum of all start trims.
class TARN_API StaticEditor : public MediaEditor
{
public:
    /// `trimStartSum` (edit units) belongs to the media and may be null.
    StaticEditor(MediaImpl* media, long long* trimStartSum);

    void move(long long offset, Range<long long>& track, Range<double>& media) override;
    void trimStart(long long offset, Range<long long>& track, Range<double>& media) override;
    bool validTrimStart(long long offset, Range<long long>& track, Range<double>& media) override;
    void trimEnd(long long offset, Range<long long>& track, Range<double>& media) override;
    bool validTrimEnd(long long offset, Range<long long>& track, Range<double>& media) override;
    /// The smallest 64-bit value: a still has no bound.
    long long trimEndLimit(Range<long long> const& track, Range<double> const& media,
                           double const& scalar, double const& mediaEndLimit) const override;
    long long trimStartLimit(Range<long long> const& track, Range<double> const& media,
                             double const& scalar, double const& mediaEndLimit) const override;

private:
    long long* m_trimStartSum;
};

}  // namespace tarn
