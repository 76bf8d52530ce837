// Cuts a media in the middle of a track in two, and takes that back.

#include "support/BareTrack.h"
#include "support/BenchProject.h"
#include "support/Workload.h"

#include "commands/SplitCmd.h"
#include "project/Project.h"
#include "timeline/Track.h"

namespace tarn {
namespace bench {
namespace {

void splitAndUndo(benchmark::State& state, BenchProject const& project,
                  boost::shared_ptr<Track> const& track)
{
    long long const time = state.range(0) / 2 * BenchProject::k_length + 4;
    for (auto _ : state) {
        project.execute(SplitCmd::create(track, time));
        project.project()->undo();
    }
    countOperations(state, 1);
}

void splitPicture(benchmark::State& state)
{
    BenchProject project;
    project.placePictures(project.pictures(), state.range(0), BenchProject::k_length);
    splitAndUndo(state, project, project.pictures());
}

void splitSound(benchmark::State& state)
{
    BenchProject project;
    project.placeSounds(state.range(0), BenchProject::k_length);
    splitAndUndo(state, project, project.sounds());
}

/// A search, a new entry of a map, and both away again.
void split_limit(benchmark::State& state)
{
    BareTrack track = bareTrack(state.range(0), BenchProject::k_length, BenchProject::k_length);
    long long const time = state.range(0) / 2 * BenchProject::k_length + 4;
    for (auto _ : state) {
        auto const left = std::prev(track.upper_bound(time));
        auto const right = boost::make_shared<BareMedia>(*left->second);
        right->start = time;
        left->second->duration = time - left->first;
        track.erase(track.emplace_hint(std::next(left), time, right));
        left->second->duration = BenchProject::k_length;
    }
    countOperations(state, 1);
}

void splitPicture_limit(benchmark::State& state)
{
    split_limit(state);
}

void splitSound_limit(benchmark::State& state)
{
    split_limit(state);
}

BENCHMARK(splitPicture)->RangeMultiplier(10)->Range(100, 10000);
BENCHMARK(splitPicture_limit)->RangeMultiplier(10)->Range(100, 10000);
BENCHMARK(splitSound)->RangeMultiplier(10)->Range(100, 100000);
BENCHMARK(splitSound_limit)->RangeMultiplier(10)->Range(100, 100000);

}  // namespace
}  // namespace bench
}  // namespace tarn
