// Fills a track: n medias are made and placed, each by an undoable command that checks collisions.

#include "support/BareTrack.h"
#include "support/BenchProject.h"
#include "support/Workload.h"

#include "commands/AddMediaCmd.h"
#include "timeline/Track.h"
#include "timeline/VMFile.h"

#include <memory>

namespace tarn {
namespace bench {
namespace {

template <class Place>
void placeMedias(benchmark::State& state, Place place)
{
    for (auto _ : state) {
        state.PauseTiming();
        std::unique_ptr<BenchProject> project(new BenchProject);
        state.ResumeTiming();
        for (std::int64_t i = 0; i < state.range(0); ++i)
            place(*project, i * BenchProject::k_length);
        state.PauseTiming();
        project.reset();
        state.ResumeTiming();
    }
    countOperations(state, state.range(0));
}

void placePictures(benchmark::State& state)
{
    placeMedias(state, [](BenchProject const& project, long long time) {
        project.execute(AddMediaCmd::create(project.pictures(), project.newPicture(), time));
    });
}

void placeSounds(benchmark::State& state)
{
    placeMedias(state, [](BenchProject const& project, long long time) {
        project.execute(AddMediaCmd::create(project.sounds(), project.newSound(), time));
    });
}

/// A block of numbers a media, into a map.
void place_limit(benchmark::State& state)
{
    for (auto _ : state) {
        BareTrack track = bareTrack(state.range(0), BenchProject::k_length, BenchProject::k_length);
        state.PauseTiming();
        track.clear();
        state.ResumeTiming();
    }
    countOperations(state, state.range(0));
}

void placePictures_limit(benchmark::State& state)
{
    place_limit(state);
}

void placeSounds_limit(benchmark::State& state)
{
    place_limit(state);
}

BENCHMARK(placePictures)->RangeMultiplier(10)->Range(100, 100000);
BENCHMARK(placePictures_limit)->RangeMultiplier(10)->Range(100, 100000);
BENCHMARK(placeSounds)->RangeMultiplier(10)->Range(100, 100000);
BENCHMARK(placeSounds_limit)->RangeMultiplier(10)->Range(100, 100000);

}  // namespace
}  // namespace bench
}  // namespace tarn
