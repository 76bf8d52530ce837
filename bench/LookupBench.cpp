// What lies at a time: both neighbours of a cut, owned, under the lock.

#include "support/BareTrack.h"
#include "support/BenchProject.h"
#include "support/Workload.h"

#include "timeline/Media.h"
#include "timeline/Track.h"

#include <mutex>
#include <utility>

namespace tarn {
namespace bench {
namespace {

void mediaAtTime(benchmark::State& state)
{
    BenchProject project;
    project.placeSounds(state.range(0), BenchProject::k_length);
    Track const& track = *project.sounds();
    NumberCycle times(state.range(0) * BenchProject::k_length);
    for (auto _ : state)
        benchmark::DoNotOptimize(track.mediaAtTime(times.next()));
    countOperations(state, 1);
}

/// One search in a map under a mutex, and two owners.
void mediaAtTime_limit(benchmark::State& state)
{
    BareTrack const track =
        bareTrack(state.range(0), BenchProject::k_length, BenchProject::k_length);
    std::mutex mutex;
    NumberCycle times(state.range(0) * BenchProject::k_length);
    for (auto _ : state) {
        std::lock_guard<std::mutex> const guard(mutex);
        auto const entry = std::prev(track.upper_bound(times.next()));
        benchmark::DoNotOptimize(std::make_pair(entry->second, entry->second));
    }
    countOperations(state, 1);
}

BENCHMARK(mediaAtTime)->RangeMultiplier(10)->Range(100, 100000);
BENCHMARK(mediaAtTime_limit)->RangeMultiplier(10)->Range(100, 100000);

}  // namespace
}  // namespace bench
}  // namespace tarn
