// The value of a double parameter between its key frames: what a renderer asks for most.

#include "support/BenchProject.h"
#include "support/Workload.h"

#include "parameters/InterpolatingParam.h"
#include "project/ReadWriteMutex.h"
#include "timeline/Track.h"

#include <algorithm>
#include <mutex>
#include <vector>

namespace tarn {
namespace bench {
namespace {

std::int64_t const k_spacing = 10;

double between(std::int64_t time)
{
    return static_cast<double>(time) + 0.5;
}

boost::shared_ptr<InterpolatingParam<double>> parameterWith(std::int64_t frames,
                                                            BenchProject const& project)
{
    boost::shared_ptr<InterpolatingParam<double>> const parameter(
        new InterpolatingParam<double>(project.lock(), "value"));
    for (std::int64_t i = 0; i < frames; ++i)
        parameter->addKeyFrame(i * k_spacing, static_cast<double>(i % 7));
    return parameter;
}

void valueAtRandomTime(benchmark::State& state)
{
    BenchProject const project;
    auto const parameter = parameterWith(state.range(0), project);
    NumberCycle times(k_spacing * (state.range(0) - 1));
    for (auto _ : state)
        benchmark::DoNotOptimize(parameter->valueAtTime(between(times.next())));
    countOperations(state, 1);
}

void valueAtNextTime(benchmark::State& state)
{
    BenchProject const project;
    auto const parameter = parameterWith(state.range(0), project);
    std::int64_t const end = k_spacing * (state.range(0) - 1);
    std::int64_t time = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(parameter->valueAtTime(between(time)));
        time = time + 1 == end ? 0 : time + 1;
    }
    countOperations(state, 1);
}

/// A sorted vector of times beside one of values, and no lock.
struct BareCurve
{
    explicit BareCurve(std::int64_t frames)
    {
        for (std::int64_t i = 0; i < frames; ++i) {
            times.push_back(static_cast<double>(i * k_spacing));
            values.push_back(static_cast<double>(i % 7));
        }
    }

    double at(double time) const
    {
        std::size_t const right = static_cast<std::size_t>(
            std::upper_bound(times.begin(), times.end(), time) - times.begin());
        std::size_t const left = right - 1;
        double const position = (time - times[left]) / (times[right] - times[left]);
        return (1.0 - position) * values[left] + position * values[right];
    }

    std::vector<double> times;
    std::vector<double> values;
};

void valueAtRandomTime_limit(benchmark::State& state)
{
    BareCurve const curve(state.range(0));
    NumberCycle times(k_spacing * (state.range(0) - 1));
    for (auto _ : state)
        benchmark::DoNotOptimize(curve.at(between(times.next())));
    countOperations(state, 1);
}

void valueAtNextTime_limit(benchmark::State& state)
{
    BareCurve const curve(state.range(0));
    std::int64_t const end = k_spacing * (state.range(0) - 1);
    std::int64_t time = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(curve.at(between(time)));
        time = time + 1 == end ? 0 : time + 1;
    }
    countOperations(state, 1);
}

void readAgainAndAgain(benchmark::State& state, BenchProject const& project)
{
    ThreadSafe const& owner = *project.pictures();
    for (auto _ : state) {
        ReadWriteMutex::ScopedReadLock lock(owner.mutex());
        benchmark::ClobberMemory();
    }
    countOperations(state, 1);
}

void readLock(benchmark::State& state)
{
    BenchProject const project;
    readAgainAndAgain(state, project);
}

void strictReadLock(benchmark::State& state)
{
    BenchProject const project(LockPolicy::Strict);
    readAgainAndAgain(state, project);
}

/// Within another one, as an accessor's is below a const iterator.
void strictReadLockWithin(benchmark::State& state)
{
    BenchProject const project(LockPolicy::Strict);
    ReadWriteMutex::ScopedReadLock lock(project.pictures()->mutex());
    readAgainAndAgain(state, project);
}

/// One plain mutex, locked and unlocked.
void readLock_limit(benchmark::State& state)
{
    std::mutex mutex;
    for (auto _ : state) {
        std::lock_guard<std::mutex> const lock(mutex);
        benchmark::ClobberMemory();
    }
    countOperations(state, 1);
}

BENCHMARK(valueAtRandomTime)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000);
BENCHMARK(valueAtRandomTime_limit)->Arg(10)->Arg(100)->Arg(1000)->Arg(10000);
BENCHMARK(valueAtNextTime)->Arg(10)->Arg(1000);
BENCHMARK(valueAtNextTime_limit)->Arg(10)->Arg(1000);
BENCHMARK(readLock)->Arg(1);
BENCHMARK(strictReadLock)->Arg(1);
BENCHMARK(strictReadLockWithin)->Arg(1);
BENCHMARK(readLock_limit)->Arg(1);

}  // namespace
}  // namespace bench
}  // namespace tarn
