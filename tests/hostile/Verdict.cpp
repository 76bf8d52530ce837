#include "hostile/Verdict.h"

#include "hostile/Watch.h"

#include "clipbin/MediaFileStats.h"
#include "exceptions/IOException.h"

#include <algorithm>
#include <memory>

namespace tarn {
namespace test {

namespace {

std::string const k_unclaimed = "No appropriate stats loader for file: ";
std::string const k_failures[] = {k_unclaimed,
                                  "Unable to initialize file: ", "No track information read from ",
                                  "Unable to get media sample description for file: ",
                                  "Unable to get AudioStreamBasicDescription for file: "};

bool isSensible(Rect<int> const& rect)
{
    return rect.x == 0 && rect.y == 0 && rect.width >= 0 && rect.height >= 0;
}

bool isSensible(MediaFileStats::TrackStats const& track)
{
    bool const isSound = track.type == MediaFileStats::Audio;
    bool const hasFormat = track.sampleRate > 0UL && track.numChannels > 0;
    bool const hasTime = track.range.start >= 0 && track.range.duration >= 0;
    return hasTime && track.rangeEditRate >= 1UL && isSensible(track.rect) &&
           isSound == hasFormat &&
           (track.type != MediaFileStats::Image || track.range.duration == 1);
}

std::string faultOf(MediaFileStats const& stats)
{
    if (stats.numTracks() == 0 || !isSensible(stats.rect())) {
        return "statistics without tracks or of no size";
    }
    for (unsigned int i = 0; i < stats.numTracks(); ++i) {
        if (!isSensible(stats.trackStats(i))) {
            return "statistics that make no sense: " + stats.description();
        }
    }
    return std::string();
}

/// The text without the file's name; empty if it is none of the reader's.
std::string failureOf(std::string const& text, std::string const& path)
{
    auto const* const found =
        std::find_if(std::begin(k_failures), std::end(k_failures), [&](std::string const& failure) {
            // As a C string, which is what an exception tells: a name may hold a zero byte.
            return text == ("IOException: " + failure + path).c_str();
        });
    return found == std::end(k_failures) ? std::string() : *found;
}

void read(std::string const& path, StatsUse const& use, Verdict& verdict)
{
    bool const isClaimed = MediaFileStats::isFileOpenable(path);
    try {
        boost::shared_ptr<MediaFileStats> const stats(MediaFileStats::create(path));
        verdict.isLoaded = true;
        verdict.fault = faultOf(*stats);
        if (use) {
            use(stats);
        }
    } catch (IOException const& thrown) {
        verdict.failure = failureOf(thrown.what(), path);
        if (verdict.failure.empty()) {
            verdict.fault = std::string("an unknown text: ") + thrown.what();
        }
    } catch (std::exception const& thrown) {
        verdict.fault = std::string("another exception: ") + thrown.what();
    }
    if (isClaimed == (verdict.failure == k_unclaimed)) {
        verdict.fault += " claimed is not what is read";
    }
}

std::string faultOf(Watch const& watch, std::string const& path)
{
    bool const hasOpenedOthers = std::any_of(watch.openedFiles().begin(), watch.openedFiles().end(),
                                             [&](std::string const& file) { return file != path; });
    std::string fault;
    fault += hasOpenedOthers ? " opened another file" : "";
    fault += watch.networkCalls() != 0 ? " reached for the network" : "";
    fault += watch.hasLeftDescriptor() ? " left a descriptor open" : "";
    fault += watch.printed().empty() ? "" : " printed: " + watch.printed();
    return fault;
}

}  // namespace

Verdict judge(std::string const& path, StatsUse const& use)
{
    Verdict verdict;
    Watch watch;
    read(path, use, verdict);
    watch.end();
    verdict.fault += faultOf(watch, path);
    return verdict;
}

}  // namespace test
}  // namespace tarn
