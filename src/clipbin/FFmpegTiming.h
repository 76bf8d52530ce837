#pragma once

#include "clipbin/MovieTrack.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tarn {

class FFmpegContainer;
class IsoBoxes;

/// Where the tracks of an open file lie, and how many samples they have.
///
/// The words of the containers on this are of very different worth; what none of them tells
/// reliably is found out from the packets.
class FFmpegTiming
{
public:
    /// @param streams the indices of the streams that are tracks
    /// @param boxes the file's boxes if it has any, else null
    FFmpegTiming(FFmpegContainer const& container, std::vector<unsigned int> const& streams,
                 IsoBoxes const* boxes);

    /// @param position in the list of streams that was given
    MovieTrack::TimeRange timeRange(std::size_t position) const;
    long long sampleCount(std::size_t position) const;

private:
    /// In units of the stream's time base.
    struct Timing
    {
        unsigned int stream = 0;
        std::int64_t start = 0;
        std::optional<std::int64_t> duration;
        long long samples = 0;
    };

    void readHead(Timing& timing) const;
    void readPackets();
    long long claimedSamples(unsigned int stream) const;
    std::int64_t start(unsigned int stream) const;
    std::optional<std::int64_t> claimedDuration(Timing const& timing) const;
    std::int64_t durationOfMovie(Timing const& timing) const;
    bool needsCount(Timing const& timing) const;
    bool needsEnd(Timing const& timing) const;

    FFmpegContainer const& m_container;
    bool m_isPicture;
    bool m_isMov;
    bool m_isMatroska;
    bool m_isFragmented;
    std::vector<Timing> m_timings;
};

}  // namespace tarn
