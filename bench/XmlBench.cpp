// The XML of a whole project, into memory. One operation is a kilobyte.

#include "support/BenchProject.h"
#include "support/Workload.h"

#include "project/Project.h"
#include "timeline/Track.h"

#include <sstream>
#include <string>

namespace tarn {
namespace bench {
namespace {

std::string xmlOf(BenchProject const& project)
{
    std::ostringstream out;
    project.project()->toXML(out);
    return out.str();
}

void countKilobytes(benchmark::State& state, std::size_t bytes)
{
    countOperations(state, static_cast<std::int64_t>(bytes / 1024));
}

void xmlOfProject(benchmark::State& state)
{
    BenchProject project;
    project.placePictures(project.pictures(), state.range(0), BenchProject::k_length);
    std::size_t bytes = 0;
    for (auto _ : state)
        bytes = xmlOf(project).size();
    countKilobytes(state, bytes);
}

/// The same text, appended in pieces as short as the writers' own.
void xmlOfProject_limit(benchmark::State& state)
{
    BenchProject project;
    project.placePictures(project.pictures(), state.range(0), BenchProject::k_length);
    std::string const text = xmlOf(project);
    std::size_t const piece = 12;
    for (auto _ : state) {
        std::string out;
        for (std::size_t at = 0; at < text.size(); at += piece)
            out.append(text, at, piece);
        benchmark::DoNotOptimize(out);
    }
    countKilobytes(state, text.size());
}

BENCHMARK(xmlOfProject)->RangeMultiplier(10)->Range(100, 10000);
BENCHMARK(xmlOfProject_limit)->RangeMultiplier(10)->Range(100, 10000);

}  // namespace
}  // namespace bench
}  // namespace tarn
