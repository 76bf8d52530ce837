// Hit tests, clones of a timeline, copy and paste.

#include "support/BareTrack.h"
#include "support/BenchProject.h"
#include "support/Workload.h"

#include "clipbin/ClipBoard.h"
#include "commands/CopyRangeClippingCmd.h"
#include "commands/PutClippingCmd.h"
#include "project/Project.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/HitTester.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"

#include <memory>

namespace tarn {
namespace bench {
namespace {

int const k_tracks = 20;
std::int64_t const k_medias = 50;

void hitTest(benchmark::State& state)
{
    BenchProject project;
    project.addPictureTracks(k_tracks - 1);
    boost::shared_ptr<VisualMixer> const mixer = project.visualMixer();
    for (unsigned int i = 0; i < k_tracks; ++i)
        project.placePictures(mixer->trackAtIndex(i), k_medias, BenchProject::k_length);
    NumberCycle times(k_medias * BenchProject::k_length);
    // Left of every picture, so that each track is asked.
    Point const nowhere(-319.5, 5000, 0);
    for (auto _ : state)
        benchmark::DoNotOptimize(HitTester::mediaAtLocation(mixer, nowhere, times.next()));
    countOperations(state, 1);
}

/// A search and the inverse of one matrix a track.
void hitTest_limit(benchmark::State& state)
{
    BareTrack const track = bareTrack(k_medias, BenchProject::k_length, BenchProject::k_length);
    NumberCycle times(k_medias * BenchProject::k_length);
    TransformMatrix matrix;
    for (auto _ : state) {
        for (int i = 0; i < k_tracks; ++i) {
            boost::shared_ptr<BareMedia> const media =
                std::prev(track.upper_bound(times.next()))->second;
            matrix.at(0, 3) = static_cast<double>(media->duration);
            benchmark::DoNotOptimize(matrix.inverse() * Point(1, 2, 3));
        }
    }
    countOperations(state, 1);
}

void cloneTimeline(benchmark::State& state)
{
    BenchProject project;
    project.placePictures(project.pictures(), state.range(0), BenchProject::k_length);
    boost::shared_ptr<Timeline const> const timeline = project.project()->timeline();
    for (auto _ : state) {
        boost::shared_ptr<Timeline> copy(timeline->clone());
        state.PauseTiming();
        copy.reset();
        state.ResumeTiming();
    }
    countOperations(state, state.range(0));
}

void copyBare(benchmark::State& state)
{
    BareTrack const track =
        bareTrack(state.range(0), BenchProject::k_length, BenchProject::k_length);
    for (auto _ : state) {
        BareTrack copy;
        for (auto const& entry : track)
            copy.emplace_hint(copy.end(), entry.first,
                              boost::make_shared<BareMedia>(*entry.second));
        state.PauseTiming();
        copy.clear();
        state.ResumeTiming();
    }
    countOperations(state, state.range(0));
}

void cloneTimeline_limit(benchmark::State& state)
{
    copyBare(state);
}

void copyAndPaste(benchmark::State& state)
{
    BenchProject project;
    project.placePictures(project.pictures(), state.range(0), BenchProject::k_length);
    long long const end = state.range(0) * BenchProject::k_length;
    for (auto _ : state) {
        auto const copy = CopyRangeClippingCmd::create(project.project()->timeline(),
                                                       Range<long long>(0, end), "copy");
        copy->addTrack(project.pictures());
        project.execute(copy);
        project.execute(PutClippingCmd::create(copy->clipping(), end));
        state.PauseTiming();
        project.project()->undo();
        project.project()->undo();
        state.ResumeTiming();
    }
    countOperations(state, state.range(0));
}

/// A media is copied twice: onto the board and from there.
void copyAndPaste_limit(benchmark::State& state)
{
    BareTrack const track =
        bareTrack(state.range(0), BenchProject::k_length, BenchProject::k_length);
    for (auto _ : state) {
        BareTrack board;
        for (auto const& entry : track)
            board.emplace_hint(board.end(), entry.first,
                               boost::make_shared<BareMedia>(*entry.second));
        BareTrack pasted;
        for (auto const& entry : board)
            pasted.emplace_hint(pasted.end(), entry.first,
                                boost::make_shared<BareMedia>(*entry.second));
        benchmark::DoNotOptimize(pasted);
    }
    countOperations(state, state.range(0));
}

BENCHMARK(hitTest)->Arg(k_tracks);
BENCHMARK(hitTest_limit)->Arg(k_tracks);
BENCHMARK(cloneTimeline)->RangeMultiplier(10)->Range(100, 10000);
BENCHMARK(cloneTimeline_limit)->RangeMultiplier(10)->Range(100, 10000);
BENCHMARK(copyAndPaste)->Arg(1000);
BENCHMARK(copyAndPaste_limit)->Arg(1000);

}  // namespace
}  // namespace bench
}  // namespace tarn
