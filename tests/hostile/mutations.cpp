// Reads mutated media files one after another and counts what becomes of them:
//     hostile_mutations SEEDS [--seed N] [--files M]
// A fault ends the run, and leaves its file behind. A signal to end lets it tell how far it came.

#include "hostile/Mutator.h"
#include "hostile/Scratch.h"
#include "hostile/SourceMaker.h"
#include "hostile/Tally.h"
#include "hostile/Watch.h"

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>

namespace {

using namespace tarn::test;

struct Options
{
    std::string seeds;
    std::uint64_t seed = 1;
    std::uint64_t files = 3000;
};

Options parse(int argc, char** argv)
{
    Options options;
    for (int i = 1; i < argc; ++i) {
        std::string const option = argv[i];
        bool const hasValue = i + 1 < argc;
        if (option == "--seed" && hasValue) {
            options.seed = std::stoull(argv[++i]);
        } else if (option == "--files" && hasValue) {
            options.files = std::stoull(argv[++i]);
        } else if (options.seeds.empty() && option.compare(0, 2, "--") != 0) {
            options.seeds = option;
        } else {
            throw std::invalid_argument(option);
        }
    }
    return options;
}

void keep(FileImage const& file)
{
    std::string const path = "hostile-fault" + file.extension;
    std::ofstream(path, std::ios::binary) << file.content;
    std::cout << "kept as " << path << '\n';
}

volatile std::sig_atomic_t s_isToEnd = 0;

/// @return whether there was no fault
bool run(Options const& options)
{
    Mutator mutator(filesOf(options.seeds), options.seed);
    Scratch const scratch;
    Tally tally;
    limitMemory();
    while (tally.files() < options.files && !s_isToEnd) {
        FileImage const file = mutator.next();
        std::string const path = scratch.write(file);
        auto const begin = std::chrono::steady_clock::now();
        Verdict const verdict = judge(path, &makeSource);
        tally.add(verdict, std::chrono::steady_clock::now() - begin);
        if (!verdict.fault.empty()) {
            std::cout << "FAULT at file " << tally.files() << " of seed " << options.seed << ": "
                      << verdict.fault << '\n';
            keep(file);
            return false;
        }
    }
    std::cout << tally;
    return true;
}

}  // namespace

int main(int argc, char** argv)
{
    std::signal(SIGTERM, [](int) { s_isToEnd = 1; });
    try {
        return run(parse(argc, argv)) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (std::exception const& error) {
        std::cerr << "hostile_mutations: " << error.what()
                  << "\nusage: hostile_mutations SEEDS [--seed N] [--files M]\n";
        return 2;
    }
}
