#pragma once

#include "datatypes/Export.h"
#include "datatypes/Range.h"
#include "datatypes/TarnObject.h"
#include "timeline/MediaTiming.h"
#include "timeline/TimelineFwd.h"

#include <string>

namespace tarn {

/// The timing arithmetic of one kind of media: how moves, trims and stretches change its two
/// ranges.
///
/// Belongs to its media, which hands in its own ranges to be changed. Track ranges and offsets are
/// edit units on the track's clock, media ranges are media units on the source's. A positive trim
/// offset shortens. What throws has changed nothing. Write lock for edits.
class TARN_API MediaEditor : public TarnObject
{
public:
    explicit MediaEditor(MediaImpl* media);
    virtual ~MediaEditor() = default;
    MediaEditor(MediaEditor const&) = delete;
    MediaEditor& operator=(MediaEditor const&) = delete;

    std::string description() const override;

    /// Shifts the track range.
    virtual void move(long long offset, Range<long long>& track, Range<double>& media) = 0;
    /// Takes `offset` off the start, or gives it back when negative; the end stays.
    /// @throws ValueException<long long> "invalid media trim start offset", with the offset, unless
    ///         validTrimStart()
    virtual void trimStart(long long offset, Range<long long>& track, Range<double>& media) = 0;
    /// Whether the source offers that much, and something is left.
    virtual bool validTrimStart(long long offset, Range<long long>& track,
                                Range<double>& media) = 0;
    /// Takes `offset` off the end; the start stays.
    /// @throws ValueException<long long> "invalid media trim end offset", with the offset, unless
    ///         validTrimEnd()
    virtual void trimEnd(long long offset, Range<long long>& track, Range<double>& media) = 0;
    /// Whether the source offers that much, and something is left.
    virtual bool validTrimEnd(long long offset, Range<long long>& track, Range<double>& media) = 0;

    /// Gives the media the duration nearest to `requested` times its natural one; the media range
    /// stays. A request of exactly 1.0 ends at exactly 1.0, cut to what the source still offers.
    /// @return the new scalar
    /// @throws ValueException<double> "invalid duration after media stretch (<=0)", with
    /// `requested`
    virtual double stretch(double requested, Range<long long>& track, Range<double>& media,
                           double& scalar);

    /// The most negative offset that a trim of the end may take.
    virtual long long trimEndLimit(Range<long long> const& track, Range<double> const& media,
                                   double const& scalar, double const& mediaEndLimit) const = 0;
    /// The most negative offset that a trim of the start may take.
    virtual long long trimStartLimit(Range<long long> const& track, Range<double> const& media,
                                     double const& scalar, double const& mediaEndLimit) const = 0;

    /// Whether `a` and `b` differ by less than one whole unit (with an `eps` of up to 1).
    /// Kept so: the difference is cut to whole units first, which decides what trims are accepted.
    bool almostNumber(double a, double b, double eps) const;
    /// `a` where almostNumber() holds, otherwise `b`.
    double roundIfClose(double a, double b, double eps) const;
    /// a - offset / b: what is left of `a` media units once `offset` edit units at the scalar `b`
    /// are gone.
    double stretchOffset(long long offset, double a, double b) const;
    /// Whether a start trimmed by `offset` edit units still lies in what the source offers.
    bool validMediaStartWithTrimOffset(long long offset) const;
    /// Whether a length trimmed by `offset` edit units is more than nothing and no more than the
    /// source offers.
    bool validMediaDurationWithTrimOffset(long long offset) const;

protected:
    /// The nearness that every test of the arithmetic uses.
    static constexpr double k_close = 1e-8;

    MediaImpl* media() const { return m_media; }

    /// The two questions about trims, of a timing that has been read.
    bool isValidStart(MediaTiming const& timing, long long offset) const;
    bool isValidDuration(MediaTiming const& timing, long long offset) const;

private:
    MediaImpl* m_media;
};

}  // namespace tarn
