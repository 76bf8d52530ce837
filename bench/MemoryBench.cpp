// What a thing costs on the heap, the allocator's own share included: the counter "bytes".

#include "support/BareTrack.h"
#include "support/BenchProject.h"
#include "support/Workload.h"

#include "commands/MoveCmd.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "timeline/Track.h"
#include "timeline/VMFile.h"

#include <vector>

namespace tarn {
namespace bench {
namespace {

template <class Make>
void bytesOf(benchmark::State& state, Make make)
{
    std::int64_t const n = state.range(0);
    for (auto _ : state) {
        std::vector<decltype(make())> kept;
        kept.reserve(static_cast<std::size_t>(n));
        std::size_t const before = heapInUse();
        for (std::int64_t i = 0; i < n; ++i)
            kept.push_back(make());
        countBytes(state, before, n);
    }
    countOperations(state, n);
}

void bytesOfPicture(benchmark::State& state)
{
    BenchProject const project;
    bytesOf(state, [&project] { return project.newPicture(); });
}

void bytesOfSound(benchmark::State& state)
{
    BenchProject const project;
    bytesOf(state, [&project] { return project.newSound(); });
}

/// With all of its parameters asked for.
void bytesOfPictureWithParameters(benchmark::State& state)
{
    BenchProject const project;
    bytesOf(state, [&project] {
        boost::shared_ptr<VMFile> const picture = project.newPicture();
        picture->parameterVector();
        return picture;
    });
}

void bytesOfPicture_limit(benchmark::State& state)
{
    bytesOf(state, [] { return boost::make_shared<BareMedia>(); });
}

void bytesOfParameter(benchmark::State& state)
{
    BenchProject const project;
    bytesOf(state, [&project] {
        boost::shared_ptr<InterpolatingParam<double>> const parameter(
            new InterpolatingParam<double>(project.lock(), "value"));
        parameter->addKeyFrame(0, 1.0);
        return parameter;
    });
}

void bytesOfKeyFrame(benchmark::State& state)
{
    BenchProject const project;
    InterpolatingParam<double> parameter(project.lock(), "value");
    std::int64_t const n = state.range(0);
    for (auto _ : state) {
        std::size_t const before = heapInUse();
        for (std::int64_t i = 0; i < n; ++i)
            parameter.addKeyFrame(i, 1.0);
        countBytes(state, before, n);
    }
    countOperations(state, n);
}

void bytesOfUndoEntry(benchmark::State& state)
{
    BenchProject project;
    project.placePictures(project.pictures(), 1, 10);
    boost::shared_ptr<Media const> const media = project.pictures()->mediaBegin()->second;
    std::int64_t const n = state.range(0);
    for (auto _ : state) {
        std::size_t const before = heapInUse();
        for (std::int64_t i = 0; i < n; ++i)
            project.execute(MoveCmd::create(project.pictures(), media, 1));
        countBytes(state, before, n);
    }
    countOperations(state, n);
}

BENCHMARK(bytesOfPicture)->Arg(1000)->Iterations(1);
BENCHMARK(bytesOfPictureWithParameters)->Arg(1000)->Iterations(1);
BENCHMARK(bytesOfPicture_limit)->Arg(1000)->Iterations(1);
BENCHMARK(bytesOfSound)->Arg(1000)->Iterations(1);
BENCHMARK(bytesOfParameter)->Arg(1000)->Iterations(1);
BENCHMARK(bytesOfKeyFrame)->Arg(1000)->Iterations(1);
BENCHMARK(bytesOfUndoEntry)->Arg(1000)->Iterations(1);

}  // namespace
}  // namespace bench
}  // namespace tarn
