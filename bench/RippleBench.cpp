// Shifts a whole track from its head by one command, and takes that back.

#include "support/BareTrack.h"
#include "support/BenchProject.h"
#include "support/Workload.h"

#include "commands/RippleMoveCmd.h"
#include "project/Project.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

namespace tarn {
namespace bench {
namespace {

void ripple(benchmark::State& state)
{
    BenchProject project;
    project.placeSounds(state.range(0), BenchProject::k_length);
    boost::shared_ptr<Media const> const first = project.sounds()->mediaBegin()->second;
    for (auto _ : state) {
        project.execute(RippleMoveCmd::create(project.sounds(), first, 3));
        project.project()->undo();
    }
    countOperations(state, 2 * state.range(0));
}

void rekeyAll(BareTrack& track, long long offset)
{
    BareTrack moved;
    while (!track.empty()) {
        auto node = track.extract(track.begin());
        node.key() += offset;
        node.mapped()->start += offset;
        moved.insert(moved.end(), std::move(node));
    }
    track.swap(moved);
}

/// Every key of a map anew.
void ripple_limit(benchmark::State& state)
{
    BareTrack track = bareTrack(state.range(0), BenchProject::k_length, BenchProject::k_length);
    for (auto _ : state) {
        rekeyAll(track, 3);
        rekeyAll(track, -3);
    }
    countOperations(state, 2 * state.range(0));
}

BENCHMARK(ripple)->RangeMultiplier(10)->Range(100, 100000);
BENCHMARK(ripple_limit)->RangeMultiplier(10)->Range(100, 100000);

}  // namespace
}  // namespace bench
}  // namespace tarn
