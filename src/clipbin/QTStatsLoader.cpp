#include "clipbin/QTStatsLoader.h"

#include "clipbin/FFmpegFramework.h"
#include "clipbin/Movie.h"
#include "datatypes/ClampedCast.h"
#include "exceptions/IOException.h"

#include <boost/make_shared.hpp>

#include <algorithm>

namespace tarn {

namespace {

long long const k_greatestSampleRate = 4294967295;

Rect<int> rectOfSize(MovieSize const& size)
{
    return Rect<int>(0, 0, clampedTruncateToInt(size.width), clampedTruncateToInt(size.height));
}

}  // namespace

QTStatsLoader::QTStatsLoader() : m_framework(boost::make_shared<FFmpegFramework>()) {}

QTStatsLoader::QTStatsLoader(boost::shared_ptr<MovieFramework const> const& framework)
    : m_framework(framework)
{}

bool QTStatsLoader::canOpenFile(std::string const& file)
{
    return m_framework->canOpenFile(file);
}

void QTStatsLoader::loadStats(std::string const& file, MediaFileStats* stats)
{
    boost::shared_ptr<Movie const> const movie = openMovie(file);
    stats->setFilename(file);
    stats->setRect(readMovieNaturalSize(*movie));
    for (std::size_t i = 0; i < movie->numTracks(); ++i) {
        if (auto const track = readStatsForTrack(movie->track(i), file)) {
            stats->addTrackStats(*track);
        }
    }
    if (stats->numTracks() == 0) {
        throw IOException("No track information read from " + file);
    }
}

boost::shared_ptr<Movie const> QTStatsLoader::openMovie(std::string const& file) const
{
    boost::shared_ptr<Movie const> movie = m_framework->openMovie(file);
    if (!movie) {
        throw IOException("Unable to initialize file: " + file);
    }
    return movie;
}

Rect<int> QTStatsLoader::readMovieNaturalSize(Movie const& movie)
{
    return rectOfSize(movie.naturalSize());
}

std::optional<MediaFileStats::TrackStats> QTStatsLoader::readStatsForTrack(MovieTrack const& track,
                                                                           std::string const& file)
{
    TrackStats stats;
    MovieTrack::TimeRange const timeRange = track.timeRange();
    stats.range = Range<long long>(timeRange.time, timeRange.duration);
    stats.rangeEditRate = boost::rational<unsigned long>(timeRange.timeScale, 1);
    // Kept so: a sound track has a rectangle too, whatever the framework says of it.
    stats.rect = rectOfSize(track.cleanApertureSize());

    std::string const mediaType = track.mediaType();
    if (mediaType == "vide") {
        setStatsForVideo(track, stats);
    } else if (mediaType == "soun") {
        setStatsForSound(track, stats, file);
    } else {
        return std::nullopt;
    }
    return stats;
}

void QTStatsLoader::setStatsForVideo(MovieTrack const& track, TrackStats& stats)
{
    if (track.sampleCount() > 1) {
        stats.type = MediaFileStats::Video;
        return;
    }
    stats.type = MediaFileStats::Image;
    stats.range.duration = 1;
}

void QTStatsLoader::setStatsForSound(MovieTrack const& track, TrackStats& stats,
                                     std::string const& file)
{
    stats.type = MediaFileStats::Audio;
    if (!track.hasSampleDescription()) {
        throw IOException("Unable to get media sample description for file: " + file);
    }
    std::optional<MovieTrack::SoundFormat> const format = track.soundFormat();
    if (!format) {
        throw IOException("Unable to get AudioStreamBasicDescription for file: " + file);
    }
    long long const sampleRate =
        std::clamp(clampedTruncate(format->sampleRate), 0LL, k_greatestSampleRate);
    stats.sampleRate = boost::rational<unsigned long>(static_cast<unsigned long>(sampleRate), 1);
    stats.bitDepth = format->bitsPerChannel;
    stats.numChannels = format->channelsPerFrame;
}

}  // namespace tarn
