#include "support/FakeStatsLoader.h"

#include "exceptions/IOException.h"

namespace tarn {
namespace test {

FakeStatsLoader& FakeStatsLoader::instance()
{
    static FakeStatsLoader& s_instance = *[] {
        auto* const loader = new FakeStatsLoader;
        MediaFileStats::addStatsLoader(loader);
        return loader;
    }();
    return s_instance;
}

void FakeStatsLoader::set(std::string const& file, std::vector<TrackStats> const& tracks,
                          Rect<int> const& rect)
{
    m_files[file] = File{tracks, rect};
}

void FakeStatsLoader::forget(std::string const& file)
{
    m_files.erase(file);
}

int FakeStatsLoader::numLoads(std::string const& file) const
{
    auto const count = m_numLoads.find(file);
    return count == m_numLoads.end() ? 0 : count->second;
}

FakeStatsLoader::TrackStats FakeStatsLoader::picture(long long duration, unsigned long rate)
{
    TrackStats stats;
    stats.type = MediaFileStats::Video;
    stats.range = Range<long long>(0, duration);
    stats.rangeEditRate = boost::rational<unsigned long>(rate, 1);
    stats.rect = Rect<int>(0, 0, 640, 480);
    return stats;
}

FakeStatsLoader::TrackStats FakeStatsLoader::still()
{
    TrackStats stats = picture(1);
    stats.type = MediaFileStats::Image;
    return stats;
}

FakeStatsLoader::TrackStats FakeStatsLoader::sound(long long duration, unsigned long rate)
{
    TrackStats stats;
    stats.type = MediaFileStats::Audio;
    stats.range = Range<long long>(0, duration);
    stats.rangeEditRate = boost::rational<unsigned long>(rate, 1);
    stats.sampleRate = boost::rational<unsigned long>(44100, 1);
    stats.bitDepth = 16;
    stats.numChannels = 2;
    return stats;
}

bool FakeStatsLoader::canOpenFile(std::string const& file)
{
    return file.compare(0, 5, "fake:") == 0;
}

void FakeStatsLoader::loadStats(std::string const& file, MediaFileStats* stats)
{
    auto const known = m_files.find(file);
    if (known == m_files.end()) {
        throw IOException("Unable to initialize file: " + file);
    }
    ++m_numLoads[file];
    stats->setFilename(file);
    stats->setRect(known->second.rect);
    for (TrackStats const& track : known->second.tracks) {
        stats->addTrackStats(track);
    }
    if (stats->numTracks() == 0) {
        throw IOException("No track information read from " + file);
    }
}

}  // namespace test
}  // namespace tarn
