// The XML of a whole project, into memory. One operation is a kilobyte.

#include "support/BenchProject.h"
#include "support/Workload.h"

#include "project/Project.h"
#include "timeline/Track.h"

#include <ostream>
#include <sstream>
#include <streambuf>
#include <string>

namespace tarn {
namespace bench {
namespace {

/// Appends to a string, as the limit does. Both have its memory from before the first round: what
/// the system takes for fresh pages would hide the rest.
class StringSink : public std::streambuf
{
public:
    std::string const& text() const { return m_text; }
    void clear() { m_text.clear(); }

protected:
    int_type overflow(int_type c) override
    {
        m_text += traits_type::to_char_type(c);
        return c;
    }
    std::streamsize xsputn(char const* text, std::streamsize length) override
    {
        m_text.append(text, static_cast<std::size_t>(length));
        return length;
    }

private:
    std::string m_text;
};

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
    StringSink sink;
    std::ostream out(&sink);
    project.project()->toXML(out);
    for (auto _ : state) {
        sink.clear();
        project.project()->toXML(out);
    }
    countKilobytes(state, sink.text().size());
}

/// The same into a string stream, in fresh memory each time, and the text out of it.
void xmlInStringStream(benchmark::State& state)
{
    BenchProject project;
    project.placePictures(project.pictures(), state.range(0), BenchProject::k_length);
    std::size_t bytes = 0;
    for (auto _ : state)
        bytes = xmlOf(project).size();
    countKilobytes(state, bytes);
}

/// The same text, appended in pieces as short as the writers' own.
void appendPieces(benchmark::State& state)
{
    BenchProject project;
    project.placePictures(project.pictures(), state.range(0), BenchProject::k_length);
    std::string const text = xmlOf(project);
    std::size_t const piece = 12;
    std::string out(text);
    for (auto _ : state) {
        out.clear();
        for (std::size_t at = 0; at < text.size(); at += piece)
            out.append(text, at, piece);
        benchmark::DoNotOptimize(out);
    }
    countKilobytes(state, text.size());
}

void xmlOfProject_limit(benchmark::State& state)
{
    appendPieces(state);
}

void xmlInStringStream_limit(benchmark::State& state)
{
    appendPieces(state);
}

BENCHMARK(xmlOfProject)->RangeMultiplier(10)->Range(100, 10000);
BENCHMARK(xmlOfProject_limit)->RangeMultiplier(10)->Range(100, 10000);
BENCHMARK(xmlInStringStream)->RangeMultiplier(10)->Range(100, 10000);
BENCHMARK(xmlInStringStream_limit)->RangeMultiplier(10)->Range(100, 10000);

}  // namespace
}  // namespace bench
}  // namespace tarn
