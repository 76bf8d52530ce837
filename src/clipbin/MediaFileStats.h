#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/Export.h"
#include "datatypes/Range.h"
#include "datatypes/Rect.h"
#include "datatypes/TarnObject.h"

#include <boost/rational.hpp>

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace tarn {

/// What is in a media file: its size on screen, and for each track its kind, range and format.
///
/// A plain value filled once, by a StatsLoader or by hand; it has no lock of its own. The loaders
/// are kept in a registry of the process, which has none either: the host makes the first calls on
/// one thread.
///
/// Every operation with a track index throws IndexException with the index when it is not below
/// numTracks().
class TARN_API MediaFileStats : public TarnObject
{
public:
    /// A still is a picture track with at most one sample. The type is fixed so that a number of
    /// another kind of track can be stored as well.
    enum TrackType : int
    {
        Video = 0,
        Image = 1,
        Audio = 2
    };

    /// One track, on the file's own clock.
    struct TrackStats
    {
        Range<long long> range;                        ///< in units of `rangeEditRate`
        boost::rational<unsigned long> rangeEditRate;  ///< units a second
        TrackType type = Video;
        Rect<int> rect;
        boost::rational<unsigned long> sampleRate;  ///< samples a second; sound only
        std::uint32_t bitDepth = 0;                 ///< sound only; 0 for lossy compression
        std::uint32_t numChannels = 0;              ///< sound only
        std::string filename;                       ///< the component file of a bundle, else empty
        std::vector<std::string> metaData;          ///< paths of the track's side files
    };

    /// Empty statistics, which the caller fills. The caller owns them.
    static MediaFileStats* create();
    /// The statistics of that file. The caller owns them.
    /// @throws IOException no loader claims the file, or the one that does cannot read it
    static MediaFileStats* create(std::string const& file);

    /// Whether some loader claims the file; reads no more of it than the loaders' canOpenFile.
    static bool isFileOpenable(std::string const& file);
    /// Registers a loader for the rest of the process, which never frees it. An empty pointer is
    /// ignored.
    static void addStatsLoader(StatsLoader* loader);

    virtual ~MediaFileStats();

    MediaFileStats(MediaFileStats const&) = delete;
    MediaFileStats& operator=(MediaFileStats const&) = delete;

    /// The file that was read.
    std::string filename() const;
    /// Changes the name alone; nothing is read again.
    void setFilename(std::string const& filename);
    /// The movie's natural size, at (0, 0).
    Rect<int> rect() const;
    /// In pixels.
    void setRect(Rect<int> const& rect);
    /// Pictures and sounds together; tracks of other kinds are not counted.
    unsigned int numTracks() const;

    /// Appends a track.
    void addTrackStats(TrackStats const& stats);
    /// The track itself; a reference into these statistics.
    TrackStats const& trackStats(unsigned int track) const;
    TrackStats& trackStats(unsigned int track);

    /// In units of rangeEditRate().
    Range<long long> trackRange(unsigned int track) const;
    /// The units a second of trackRange().
    boost::rational<unsigned long> rangeEditRate(unsigned int track) const;
    /// Picture, still or sound.
    TrackType trackType(unsigned int track) const;
    /// In pixels, on the movie's plane; empty for a sound.
    Rect<int> trackRect(unsigned int track) const;
    /// Samples a second; sound only.
    boost::rational<unsigned long> sampleRate(unsigned int track) const;
    /// Bits a sample; 0 for lossy compression. Sound only.
    std::uint32_t bitDepth(unsigned int track) const;
    /// Sound only.
    std::uint32_t numChannels(unsigned int track) const;
    /// The component file of a bundle, else empty.
    std::string filename(unsigned int track) const;
    /// Paths of the track's side files, in the order in which they were added.
    std::vector<std::string> metaData(unsigned int track) const;

    /// The number that a track has inside its own component file. Reads that file for a bundle; for
    /// a plain file it is the number itself, whether or not the file can be read now.
    /// @throws IOException the component file cannot be read
    unsigned int fileTrackNumberForTrackNumber(unsigned int track) const;

    std::string description() const override;

protected:
    MediaFileStats();
    explicit MediaFileStats(std::string const& file);

private:
    using StatsLoaders = std::set<StatsLoader*>;

    static StatsLoaders& statsLoaders();
    static void setupStatsLoaders();
    static StatsLoader* findAppropriateStatsLoader(std::string const& file,
                                                   StatsLoaders const& loaders);
    bool isBundle() const;

    std::string m_filename;
    std::vector<TrackStats> m_trackStats;
    Rect<int> m_rect;
};

}  // namespace tarn
