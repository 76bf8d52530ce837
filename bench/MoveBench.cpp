// Moves a media there and back by checked commands; and the undo of a move.

#include "support/BareTrack.h"
#include "support/BenchProject.h"
#include "support/Workload.h"

#include "commands/CommandHistory.h"
#include "commands/MoveCmd.h"
#include "project/Project.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

namespace tarn {
namespace bench {
namespace {

long long const k_step = 2 * BenchProject::k_length;

boost::shared_ptr<Media const> middle(BenchProject const& project, std::int64_t n)
{
    return project.sounds()->mediaAtTime(n / 2 * k_step + 1).first;
}

void moveThereAndBack(benchmark::State& state)
{
    BenchProject project;
    project.placeSounds(state.range(0), k_step);
    project.project()->commandHistory()->setUndoLimit(1000);
    auto const media = middle(project, state.range(0));
    for (auto _ : state) {
        project.execute(MoveCmd::create(project.sounds(), media, 3));
        project.execute(MoveCmd::create(project.sounds(), media, -3));
    }
    countOperations(state, 2);
}

void undoMove(benchmark::State& state)
{
    BenchProject project;
    project.placeSounds(state.range(0), k_step);
    auto const media = middle(project, state.range(0));
    project.execute(MoveCmd::create(project.sounds(), media, 3));
    for (auto _ : state) {
        project.project()->undo();
        project.project()->redo();
    }
    countOperations(state, 2);
}

void move_limit(benchmark::State& state)
{
    BareTrack track = bareTrack(state.range(0), BenchProject::k_length, k_step);
    long long const start = state.range(0) / 2 * k_step;
    for (auto _ : state) {
        benchmark::DoNotOptimize(moveBare(track, start, 3));
        benchmark::DoNotOptimize(moveBare(track, start + 3, -3));
    }
    countOperations(state, 2);
}

void moveThereAndBack_limit(benchmark::State& state)
{
    move_limit(state);
}

void undoMove_limit(benchmark::State& state)
{
    move_limit(state);
}

BENCHMARK(moveThereAndBack)->RangeMultiplier(10)->Range(100, 100000);
BENCHMARK(moveThereAndBack_limit)->RangeMultiplier(10)->Range(100, 100000);
BENCHMARK(undoMove)->RangeMultiplier(10)->Range(100, 100000);
BENCHMARK(undoMove_limit)->RangeMultiplier(10)->Range(100, 100000);

}  // namespace
}  // namespace bench
}  // namespace tarn
