#pragma once

#include "clipbin/ClipBinFwd.h"
#include "clipbin/MediaFileStats.h"
#include "clipbin/StatsLoader.h"
#include "datatypes/Export.h"

#include <boost/shared_ptr.hpp>

#include <optional>
#include <string>

namespace tarn {

/// The loader that every process has: reads movies, sounds and pictures through a movie framework.
/// Has no lock and no state but the framework.
class TARN_API QTStatsLoader : public StatsLoader
{
public:
    /// Reads through FFmpeg.
    QTStatsLoader();
    explicit QTStatsLoader(boost::shared_ptr<MovieFramework const> const& framework);

    bool canOpenFile(std::string const& file) override;
    /// The movie is released before this returns or throws: no file stays open.
    /// @throws IOException with one of the texts
    ///     "Unable to initialize file: ", "No track information read from ",
    ///     "Unable to get media sample description for file: ",
    ///     "Unable to get AudioStreamBasicDescription for file: ", each followed by the file
    void loadStats(std::string const& file, MediaFileStats* stats) override;

private:
    using TrackStats = MediaFileStats::TrackStats;

    boost::shared_ptr<Movie const> openMovie(std::string const& file) const;
    static Rect<int> readMovieNaturalSize(Movie const& movie);
    /// Empty for a track that is neither pictures nor sound.
    static std::optional<TrackStats> readStatsForTrack(MovieTrack const& track,
                                                       std::string const& file);
    static void setStatsForVideo(MovieTrack const& track, TrackStats& stats);
    static void setStatsForSound(MovieTrack const& track, TrackStats& stats,
                                 std::string const& file);

    boost::shared_ptr<MovieFramework const> m_framework;
};

}  // namespace tarn
