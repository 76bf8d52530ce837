#pragma once

#include "clipbin/MediaFileStats.h"
#include "clipbin/StatsLoader.h"

#include <map>
#include <string>
#include <vector>

namespace tarn {
namespace test {

/// Serves files that exist only by name. It claims every name that begins with "fake:" and reads
/// those that a test has set; for the others it throws as the library's own loader does.
///
///     FakeStatsLoader::instance().set("fake:movie", {FakeStatsLoader::picture(100), ...});
///     Source::create(project, project, "fake:movie");
class FakeStatsLoader : public StatsLoader
{
public:
    using TrackStats = MediaFileStats::TrackStats;

    /// The one of the process, registered with the library at the first call.
    static FakeStatsLoader& instance();

    /// From now on the file has these tracks.
    void set(std::string const& file, std::vector<TrackStats> const& tracks,
             Rect<int> const& rect = Rect<int>(0, 0, 640, 480));
    /// From now on the file cannot be opened.
    void forget(std::string const& file);
    /// How often the file has been read.
    int numLoads(std::string const& file) const;

    /// A moving picture of 640 x 480, at that many units a second.
    static TrackStats picture(long long duration, unsigned long rate = 30);
    static TrackStats still();
    /// Two channels of 16 bits at 44,100 Hz; the range in units of `rate`.
    static TrackStats sound(long long duration, unsigned long rate = 30);

    bool canOpenFile(std::string const& file) override;
    void loadStats(std::string const& file, MediaFileStats* stats) override;

private:
    struct File
    {
        std::vector<TrackStats> tracks;
        Rect<int> rect;
    };

    FakeStatsLoader() = default;

    std::map<std::string, File> m_files;
    std::map<std::string, int> m_numLoads;
};

}  // namespace test
}  // namespace tarn
