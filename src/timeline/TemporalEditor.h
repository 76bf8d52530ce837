#pragma once

#include "timeline/MediaEditor.h"

namespace tarn {

/// Edits medias with a real time axis: a trim uncovers or hides source material, and no more of it
/// can be uncovered than there is.
class TARN_API TemporalEditor : public MediaEditor
{
public:
    explicit TemporalEditor(MediaImpl* media);

    void move(long long offset, Range<long long>& track, Range<double>& media) override;
    /// @throws ValueException<long long> "invalid media trim start offset", with the offset
    void trimStart(long long offset, Range<long long>& track, Range<double>& media) override;
    bool validTrimStart(long long offset, Range<long long>& track, Range<double>& media) override;
    /// @throws ValueException<long long> "invalid media trim end offset", with the offset
    void trimEnd(long long offset, Range<long long>& track, Range<double>& media) override;
    bool validTrimEnd(long long offset, Range<long long>& track, Range<double>& media) override;
    long long trimEndLimit(Range<long long> const& track, Range<double> const& media,
                           double const& scalar, double const& mediaEndLimit) const override;
    long long trimStartLimit(Range<long long> const& track, Range<double> const& media,
                             double const& scalar, double const& mediaEndLimit) const override;
};

}  // namespace tarn
