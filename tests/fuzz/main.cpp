#include "fuzz/Generator.h"
#include "fuzz/KnownLimits.h"
#include "fuzz/ScatteredHeap.h"
#include "fuzz/Session.h"
#include "fuzz/Shrinker.h"
#include "fuzz/Stage.h"
#include "support/ProgramOptions.h"

#include <boost/filesystem.hpp>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <map>
#include <string>
#include <vector>

namespace {

using tarn::test::Figures;
using tarn::test::Script;
using tarn::test::Session;

struct Options
{
    std::uint64_t seed = 1;
    std::size_t commands = 20000;
    double seconds = 1e9;
    int sessionLength = 150;
    std::size_t maxFaults = 5;
    std::string xmlFile;
    bool showsOps = false;
    bool isOneProject = false;
};

Options parse(int argc, char** argv)
{
    Options options;
    tarn::test::ProgramOptions known;
    known.add("--seed", options.seed);
    known.add("--commands", options.commands);
    known.add("--session-length", options.sessionLength);
    known.add("--max-faults", options.maxFaults);
    known.add("--seconds", options.seconds);
    known.add("--xml", options.xmlFile);
    known.add("--scatter",
              [](std::string const& seed) { tarn::test::scatterHeap(std::stoull(seed)); });
    known.addFlag("--ops", options.showsOps);
    known.addFlag("--one-project", options.isOneProject);
    known.read(argc, argv);
    return options;
}

/// Of this process, in KiB.
long residentSize()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.compare(0, 6, "VmRSS:") == 0)
            return std::atol(line.c_str() + 6);
    return 0;
}

std::size_t openDescriptors()
{
    boost::filesystem::directory_iterator const files("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(files, boost::filesystem::directory_iterator()));
}

struct Sizes
{
    long resident;        ///< KiB
    std::size_t heap;     ///< bytes in use
    std::size_t numOpen;  ///< descriptors
};

Sizes sizesNow()
{
    return {residentSize(), tarn::test::heapInUse(), openDescriptors()};
}

void print(std::string const& when, Sizes const& sizes)
{
    std::cout << when << ": " << sizes.resident / 1024 << " MiB resident, " << sizes.heap / 1024
              << " KiB of heap in use, " << sizes.numOpen << " descriptors\n";
}

/// Whether nothing has grown since the second tenth; in the first one the library's own lists still
/// find their size. A leak of a few bytes a command would show.
bool areFlat(std::vector<Sizes> const& sizes, std::size_t commands)
{
    if (sizes.size() < 3)
        return true;
    std::size_t const allowed = 64 * 1024 + commands * 8;
    bool const isFlat =
        sizes.back().heap < sizes[1].heap + allowed && sizes.back().numOpen == sizes[1].numOpen;
    if (!isFlat)
        std::cout << "FAULT memory or descriptors have grown\n";
    return isFlat;
}

void printFault(Session const& session, Script const& script)
{
    std::cout << "\nFAULT at seed " << script.seed << ": " << session.fault() << '\n'
              << session.details() << "shrinking ...\n"
              << std::flush;
    Session last(tarn::test::shrunk(script, session.fault()));
    last.run();
    std::cout << last.asTest() << last.details() << std::flush;
}

void printOps(Figures const& figures)
{
    for (std::size_t i = 0; i < figures.done.size(); ++i) {
        tarn::test::Op const op = static_cast<tarn::test::Op>(i);
        if (isCommand(op))
            std::cout << "  " << std::setw(20) << std::left << name(op) << std::right
                      << std::setw(9) << figures.done[i] << " done" << std::setw(9)
                      << figures.refusedOf[i] << " refused\n";
    }
}

void printLimits(Figures const& figures)
{
    std::cout << "sessions ended by a known limit:\n";
    for (tarn::test::KnownLimit const& limit : tarn::test::knownLimits()) {
        auto const found = figures.limits.find(limit.name);
        std::cout << std::setw(9) << (found == figures.limits.end() ? 0 : found->second) << "  "
                  << limit.name << '\n';
    }
}

/// On that project, which is emptied before and after, or, without one, on a project of its own.
void runSession(Script const& script, boost::shared_ptr<tarn::InternalProject> const& project,
                Figures& figures, std::map<std::string, std::size_t>& faults, std::ofstream& xml)
{
    {
        Session session(script, project);
        bool const isFine = session.run();
        figures.add(session.figures());
        if (!isFine && faults[session.fault()]++ == 0)
            printFault(session, script);
        if (xml.is_open())
            xml << "seed " << script.seed << ": " << session.figures().commands << " commands, "
                << session.figures().refused << " refused\n"
                << session.xml();
    }
    if (project)
        tarn::test::Stage::empty(*project);
}

/// @return whether there was no fault
bool run(Options const& options)
{
    std::ofstream xml(options.xmlFile);
    Figures figures;
    std::map<std::string, std::size_t> faults;
    std::size_t sessions = 0;
    boost::shared_ptr<tarn::InternalProject> project;
    if (options.isOneProject)
        project = tarn::InternalProject::create(boost::rational<unsigned long>(30, 1));
    std::vector<Sizes> sizes;
    auto const begin = std::chrono::steady_clock::now();
    std::size_t nextReport = options.commands / 10;
    auto const isInTime = [&] {
        std::chrono::duration<double> const used = std::chrono::steady_clock::now() - begin;
        return used.count() < options.seconds;
    };
    for (std::uint64_t seed = options.seed; figures.commands < options.commands && isInTime();
         ++seed) {
        runSession(tarn::test::generate(seed, options.sessionLength), project, figures, faults,
                   xml);
        ++sessions;
        if (faults.size() >= options.maxFaults)
            break;
        if (figures.commands >= nextReport) {
            sizes.push_back(sizesNow());
            print(std::to_string(figures.commands) + " commands", sizes.back());
            nextReport += options.commands / 10;
        }
    }
    std::chrono::duration<double> const seconds = std::chrono::steady_clock::now() - begin;
    std::size_t numFaults = 0;
    for (auto const& fault : faults)
        numFaults += fault.second;
    std::cout << figures.commands << " commands (" << figures.refused << " of them refused) and "
              << figures.historySteps << " other history steps in " << sessions << " sessions, "
              << figures.comparisons << " comparisons of models, " << figures.naiveAnswers
              << " answers of the naive model, " << seconds.count() << " s\n";
    printLimits(figures);
    if (options.showsOps)
        printOps(figures);
    for (auto const& fault : faults)
        std::cout << std::setw(9) << fault.second << "  FAULT " << fault.first << '\n';
    std::cout << numFaults << " unlisted differences\n";
    return numFaults == 0 && (!options.isOneProject || areFlat(sizes, options.commands));
}

}  // namespace

int main(int argc, char** argv)
{
    try {
        return run(parse(argc, argv)) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (std::exception const& error) {
        std::cerr
            << "fuzz_edits: " << error.what()
            << "\nusage: fuzz_edits [--seed N] [--commands M] [--session-length L] [--seconds T]"
               " [--max-faults F] [--xml FILE] [--ops] [--scatter N] [--one-project]\n";
        return 2;
    }
}
