#pragma once

#include "clipbin/IsoSampleTable.h"
#include "clipbin/MovieSize.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tarn {

class Deadline;
class RegularFile;

/// The boxes of a QuickTime or MPEG-4 file, walked before FFmpeg does.
///
/// Finds what FFmpeg does not tell, the clean aperture, and the forgeries that would keep it busy
/// without reading, where no interruption reaches it: tables that claim more entries than they can
/// hold, and fragments for tracks without a number.
class IsoBoxes
{
public:
    IsoBoxes(RegularFile const& file, Deadline const& deadline);

    /// False for a forged file, and for one that could not be walked in time.
    bool isSane() const;
    bool isFragmented() const { return m_hasFragments; }
    /// The clean aperture of that track's first sample description, in its own pixels.
    std::optional<MovieSize> cleanAperture(int trackId) const;

private:
    struct Box
    {
        std::uint32_t type = 0;
        std::int64_t begin = 0;  ///< behind the header
        std::int64_t end = 0;
        std::int64_t size() const { return end - begin; }
    };

    struct Track
    {
        std::optional<std::uint32_t> id;
        std::optional<MovieSize> cleanAperture;
        IsoSampleTable samples;
    };

    bool nextBox(std::int64_t position, std::int64_t end, Box& box) const;
    void walk(std::int64_t begin, std::int64_t end, int depth);
    void visit(Box const& box, int depth);
    std::int64_t childrenBegin(Box const& box) const;
    void readTrackHeader(Box const& box, Track& track) const;
    void readSampleDescription(Box const& box, Track& track) const;
    void readCleanAperture(Box const& box, Track& track) const;
    void checkTable(Box const& box, std::int64_t countAt, std::int64_t entrySize);
    void readTrackBox(Box const& box, Track& track);
    void readChunkRuns(Box const& box, Track& track);
    void checkTrackRun(Box const& box);
    std::uint32_t number(Box const& box, std::int64_t offset) const;

    RegularFile const& m_file;
    Deadline const& m_deadline;
    std::vector<Track> m_tracks;
    std::int64_t m_samplesWithoutTable = 0;
    bool m_hasFragments = false;
    bool m_hasCompressedHeader = false;
    bool m_isForged = false;
};

}  // namespace tarn
