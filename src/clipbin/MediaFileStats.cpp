#include "clipbin/MediaFileStats.h"

#include "clipbin/MediaFileStatsMac.h"
#include "clipbin/QTStatsLoader.h"
#include "clipbin/StatsLoader.h"
#include "exceptions/IOException.h"
#include "exceptions/IndexException.h"

#include <memory>
#include <sstream>

namespace tarn {

namespace {

bool s_addedDefaultStatsLoaders = false;

unsigned int countNumPreviousTracksOfTypeInComponent(MediaFileStats const& stats,
                                                     unsigned int track)
{
    unsigned int count = 0;
    for (unsigned int i = 0; i < track; ++i) {
        if (stats.trackType(i) == stats.trackType(track) &&
            stats.filename(i) == stats.filename(track)) {
            ++count;
        }
    }
    return count;
}

/// The index of the component's track with `position` tracks of its type before it; the number of
/// tracks if there is none.
unsigned int calcBundleFileTrackNumber(MediaFileStats const& component,
                                       MediaFileStats::TrackType type, unsigned int position)
{
    unsigned int track = 0;
    for (; track < component.numTracks(); ++track) {
        if (component.trackType(track) == type && position-- == 0) {
            break;
        }
    }
    return track;
}

void writeRect(std::ostream& stream, Rect<int> const& rect)
{
    stream << "rect: (" << rect.x << ", " << rect.y << ", " << rect.width << ", " << rect.height
           << ")\n";
}

void writeRational(std::ostream& stream, char const* name, boost::rational<unsigned long> value)
{
    stream << "  " << name << ": " << value.numerator() << "/" << value.denominator() << "\n";
}

void writeTrack(std::ostream& stream, MediaFileStats::TrackStats const& track)
{
    stream << "  range: (" << track.range.start << ", " << track.range.duration << ")\n";
    writeRational(stream, "rangeEditRate", track.rangeEditRate);
    stream << "  type: " << static_cast<int>(track.type) << "\n  ";
    writeRect(stream, track.rect);
    writeRational(stream, "sampleRate", track.sampleRate);
    stream << "  bitDepth: " << track.bitDepth << "\n";
    stream << "  numChannels: " << track.numChannels << "\n";
}

}  // namespace

MediaFileStats* MediaFileStats::create()
{
    return new MediaFileStatsMac;
}

MediaFileStats* MediaFileStats::create(std::string const& file)
{
    return new MediaFileStatsMac(file);
}

MediaFileStats::MediaFileStats()
{
    setupStatsLoaders();
}

MediaFileStats::MediaFileStats(std::string const& file) : m_filename(file)
{
    setupStatsLoaders();
    StatsLoader* const loader = findAppropriateStatsLoader(file, statsLoaders());
    if (!loader) {
        throw IOException("No appropriate stats loader for file: " + file);
    }
    loader->loadStats(file, this);
}

MediaFileStats::~MediaFileStats() = default;

MediaFileStats::StatsLoaders& MediaFileStats::statsLoaders()
{
    // Never freed, as the loaders in it: the statics of a host may still load when others are gone.
    static StatsLoaders& s_statsLoaders = *new StatsLoaders;
    return s_statsLoaders;
}

void MediaFileStats::setupStatsLoaders()
{
    if (s_addedDefaultStatsLoaders) {
        return;
    }
    auto loader = std::make_unique<QTStatsLoader>();
    statsLoaders().insert(loader.get());
    static_cast<void>(loader.release());
    s_addedDefaultStatsLoaders = true;
}

StatsLoader* MediaFileStats::findAppropriateStatsLoader(std::string const& file,
                                                        StatsLoaders const& loaders)
{
    // Kept so: every loader is asked and the last willing one wins, so a loader may rely on being
    // asked about each file.
    StatsLoader* appropriate = nullptr;
    for (StatsLoader* const loader : loaders) {
        if (loader->canOpenFile(file)) {
            appropriate = loader;
        }
    }
    return appropriate;
}

bool MediaFileStats::isFileOpenable(std::string const& file)
{
    std::unique_ptr<MediaFileStats> const setsUpTheLoaders(create());
    return findAppropriateStatsLoader(file, statsLoaders()) != nullptr;
}

void MediaFileStats::addStatsLoader(StatsLoader* loader)
{
    if (loader) {
        statsLoaders().insert(loader);
    }
}

std::string MediaFileStats::filename() const
{
    return m_filename;
}

void MediaFileStats::setFilename(std::string const& filename)
{
    m_filename = filename;
}

Rect<int> MediaFileStats::rect() const
{
    return m_rect;
}

void MediaFileStats::setRect(Rect<int> const& rect)
{
    m_rect = rect;
}

unsigned int MediaFileStats::numTracks() const
{
    return static_cast<unsigned int>(m_trackStats.size());
}

void MediaFileStats::addTrackStats(TrackStats const& stats)
{
    m_trackStats.push_back(stats);
}

MediaFileStats::TrackStats const& MediaFileStats::trackStats(unsigned int track) const
{
    if (track >= numTracks()) {
        throw IndexException(track);
    }
    return m_trackStats[track];
}

MediaFileStats::TrackStats& MediaFileStats::trackStats(unsigned int track)
{
    if (track >= numTracks()) {
        throw IndexException(track);
    }
    return m_trackStats[track];
}

Range<long long> MediaFileStats::trackRange(unsigned int track) const
{
    return trackStats(track).range;
}

boost::rational<unsigned long> MediaFileStats::rangeEditRate(unsigned int track) const
{
    return trackStats(track).rangeEditRate;
}

MediaFileStats::TrackType MediaFileStats::trackType(unsigned int track) const
{
    return trackStats(track).type;
}

Rect<int> MediaFileStats::trackRect(unsigned int track) const
{
    return trackStats(track).rect;
}

boost::rational<unsigned long> MediaFileStats::sampleRate(unsigned int track) const
{
    return trackStats(track).sampleRate;
}

std::uint32_t MediaFileStats::bitDepth(unsigned int track) const
{
    return trackStats(track).bitDepth;
}

std::uint32_t MediaFileStats::numChannels(unsigned int track) const
{
    return trackStats(track).numChannels;
}

std::string MediaFileStats::filename(unsigned int track) const
{
    return trackStats(track).filename;
}

std::vector<std::string> MediaFileStats::metaData(unsigned int track) const
{
    return trackStats(track).metaData;
}

bool MediaFileStats::isBundle() const
{
    return !filename(0).empty();
}

unsigned int MediaFileStats::fileTrackNumberForTrackNumber(unsigned int track) const
{
    std::string const componentFile = filename(track);
    if (!isBundle()) {
        return track;
    }
    unsigned int const position = countNumPreviousTracksOfTypeInComponent(*this, track);
    std::unique_ptr<MediaFileStats> const component(create(componentFile));
    return calcBundleFileTrackNumber(*component, trackType(track), position);
}

std::string MediaFileStats::description() const
{
    std::ostringstream stream;
    stream << "MediaFileStats at " << static_cast<void const*>(this) << "\n";
    stream << "filename: " << m_filename << "\n";
    writeRect(stream, m_rect);
    stream << "num tracks: " << numTracks() << "\n";
    for (unsigned int track = 0; track < numTracks(); ++track) {
        stream << "track" << track << ":\n";
        writeTrack(stream, m_trackStats[track]);
    }
    return stream.str();
}

}  // namespace tarn
