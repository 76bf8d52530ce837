#include "fuzz/Generator.h"
#include "fuzz/Session.h"
#include "fuzz/Stage.h"
#include "support/ProgramOptions.h"
#include "threads/Judge.h"
#include "threads/ModelReader.h"
#include "threads/WriterCount.h"

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <list>
#include <stdexcept>
#include <string>
#include <thread>

namespace {

using tarn::LockPolicy;
using tarn::test::Figures;
using tarn::test::Fingerprint;
using tarn::test::Judge;
using tarn::test::ModelReader;
using tarn::test::ReaderFigures;
using tarn::test::Session;
using tarn::test::WriterCount;

struct Options
{
    std::uint64_t seed = 1;
    std::size_t commands = 1000;
    int sessionLength = 150;
    int readers = 8;
    LockPolicy policy = LockPolicy::Strict;
};

LockPolicy policyOf(std::string const& name)
{
    if (name == "strict")
        return LockPolicy::Strict;
    if (name == "counted")
        return LockPolicy::Counted;
    throw std::invalid_argument("no lock policy: " + name);
}

Options parse(int argc, char** argv)
{
    Options options;
    tarn::test::ProgramOptions known;
    known.add("--seed", options.seed);
    known.add("--commands", options.commands);
    known.add("--session-length", options.sessionLength);
    known.add("--readers", options.readers);
    known.add("--policy", [&options](std::string const& name) { options.policy = policyOf(name); });
    known.read(argc, argv);
    return options;
}

/// What came out, over all sessions.
struct Sums
{
    Figures session;
    ReaderFigures readers;
    std::size_t sessions = 0;
    std::size_t modelsLeft = 0;
    std::size_t modelsSeen = 0;
    std::size_t bareRequests = 0;
    std::size_t readersAfterWriter = 0;
    std::size_t overtaken = 0;
    std::size_t faults = 0;

    void add(Judge const& judge, WriterCount const& writers)
    {
        ++sessions;
        modelsLeft += judge.numLeft();
        modelsSeen += judge.numSeen();
        bareRequests += writers.numAsked();
        readersAfterWriter += writers.numReadersAfterWriter();
        overtaken += writers.numOvertaken();
        faults += judge.faults().size();
    }
};

/// One session on this thread, with readers beside it.
void runSession(Options const& options, std::uint64_t seed, Sums& sums)
{
    Session session(tarn::test::generate(seed, options.sessionLength), options.policy);
    session.begin();
    Judge judge;
    WriterCount writers(session.stage().project->mutex());
    judge.addLeft(Fingerprint(session.stage()).number());
    session.setListener([&](Fingerprint const& model) {
        judge.addLeft(model.number());
        writers.ask();
    });
    std::atomic<bool> isOver{false};
    std::list<ModelReader> readers;
    std::list<std::thread> threads;
    for (int i = 0; i < options.readers; ++i) {
        readers.emplace_back(session.stage(), i, judge, writers, sums.readers);
        ModelReader& reader = readers.back();
        threads.emplace_back([&reader, &isOver] { reader.readUntil(isOver); });
    }
    if (!session.run())
        judge.addFault("the session: " + session.fault() + '\n' + session.details());
    isOver = true;
    for (std::thread& thread : threads)
        thread.join();
    judge.judge(!session.figures().limits.empty());
    for (std::string const& fault : judge.faults())
        std::cout << "FAULT at seed " << seed << ": " << fault << '\n' << std::flush;
    sums.add(judge, writers);
    sums.session.add(session.figures());
}

bool run(Options const& options)
{
    Sums sums;
    auto const begin = std::chrono::steady_clock::now();
    for (std::uint64_t seed = options.seed; sums.session.commands < options.commands; ++seed)
        runSession(options, seed, sums);
    std::chrono::duration<double> const seconds = std::chrono::steady_clock::now() - begin;
    std::cout << options.readers << " readers beside " << sums.session.commands << " commands ("
              << sums.session.refused << " of them refused) and " << sums.session.historySteps
              << " other history steps in " << sums.sessions << " sessions, " << seconds.count()
              << " s\n"
              << sums.readers.values << " parameters evaluated, " << sums.readers.medias
              << " medias iterated over, " << sums.readers.prints << " prints, "
              << sums.readers.hitTests << " hit tests, up to " << sums.readers.mostInside
              << " readers checking at the same time\n"
              << sums.modelsSeen << " models checked by readers against " << sums.modelsLeft
              << " that edits left\n"
              << sums.bareRequests << " counted requests of the writer, " << sums.readersAfterWriter
              << " readers came while one waited, " << sums.overtaken
              << " of them got in before it\n"
              << sums.faults << " faults\n";
    return sums.faults == 0 && sums.overtaken == 0;
}

}  // namespace

int main(int argc, char** argv)
{
    try {
        return run(parse(argc, argv)) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (std::exception const& error) {
        std::cerr << "many_readers: " << error.what()
                  << "\nusage: many_readers [--seed N] [--commands M] [--readers R]"
                     " [--policy strict|counted] [--session-length L]\n";
        return 2;
    }
}
