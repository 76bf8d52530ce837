#pragma once

#include "clipbin/Movie.h"

#include <boost/shared_ptr.hpp>

#include <optional>
#include <string>
#include <vector>

namespace tarn {

class FFmpegContainer;
class IsoBoxes;

/// A movie as FFmpeg tells it. Everything is read when it is made, so it holds nothing open.
class FFmpegMovie : public Movie
{
public:
    /// @param boxes the file's boxes if it has any, else null
    FFmpegMovie(FFmpegContainer const& container, IsoBoxes const* boxes);

    MovieSize naturalSize() const override;
    std::size_t numTracks() const override;
    MovieTrack const& track(std::size_t index) const override;

private:
    /// What was read of one stream.
    class Track : public MovieTrack
    {
    public:
        TimeRange timeRange() const override { return range; }
        MovieSize cleanApertureSize() const override { return size; }
        std::string mediaType() const override { return type; }
        long long sampleCount() const override { return samples; }
        bool hasSampleDescription() const override { return isDescribed; }
        std::optional<SoundFormat> soundFormat() const override { return format; }

        TimeRange range;
        MovieSize size;
        std::string type;
        long long samples = 0;
        bool isDescribed = false;
        std::optional<SoundFormat> format;
    };

    std::vector<Track> m_tracks;
};

}  // namespace tarn
