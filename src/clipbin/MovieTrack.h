#pragma once

#include "clipbin/MovieSize.h"
#include "datatypes/Export.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tarn {

/// One track of an open movie, as the movie framework tells it.
class TARN_API MovieTrack
{
public:
    /// Where the track lies in the movie, in units of 1 / timeScale seconds.
    struct TimeRange
    {
        long long time = 0;
        long long duration = 0;
        std::uint32_t timeScale = 0;
    };

    /// The sound that a sample description describes.
    struct SoundFormat
    {
        double sampleRate = 0;
        std::uint32_t bitsPerChannel = 0;  ///< 0 for compressed sound
        std::uint32_t channelsPerFrame = 0;
    };

    virtual ~MovieTrack();

    /// Where the track lies in the movie.
    virtual TimeRange timeRange() const = 0;
    /// The size that is meant to be seen, whatever the kind of the track.
    virtual MovieSize cleanApertureSize() const = 0;
    /// Four characters: "vide" and "soun" are pictures and sound, anything else is neither.
    virtual std::string mediaType() const = 0;
    /// How many samples there are, or 2 where more than one is all that is known.
    virtual long long sampleCount() const = 0;
    /// Whether the first sample description can be had.
    virtual bool hasSampleDescription() const = 0;
    /// The sound format of the first sample description; empty if it tells none.
    virtual std::optional<SoundFormat> soundFormat() const = 0;
};

}  // namespace tarn
