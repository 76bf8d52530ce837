// Reads every regular file below some folders, links not followed:
//     hostile_sweep FOLDER...
// Prints the path of each file that loads, and on the standard error what became of all of them.

#include "hostile/SourceMaker.h"
#include "hostile/Tally.h"
#include "hostile/Watch.h"

#include <boost/filesystem.hpp>

#include <cstdlib>
#include <iostream>

namespace {

namespace fs = boost::filesystem;
using namespace tarn::test;

/// @return whether there was no fault
bool sweep(fs::path const& folder, Tally& tally)
{
    bool isFine = true;
    boost::system::error_code unreadable;
    fs::recursive_directory_iterator const end;
    fs::recursive_directory_iterator entry(folder, fs::directory_options::skip_permission_denied);
    for (; entry != end; entry.increment(unreadable)) {
        if (entry->symlink_status().type() != fs::regular_file) {
            continue;
        }
        std::string const path = entry->path().string();
        auto const begin = std::chrono::steady_clock::now();
        Verdict const verdict = judge(path, &makeSource);
        tally.add(verdict, std::chrono::steady_clock::now() - begin);
        if (!verdict.fault.empty()) {
            std::cerr << "FAULT: " << path << ": " << verdict.fault << '\n';
            isFine = false;
        }
        if (verdict.isLoaded) {
            std::cout << path << '\n';
        }
    }
    return isFine;
}

}  // namespace

int main(int argc, char** argv)
{
    limitMemory();
    Tally tally;
    bool isFine = argc > 1;
    for (int i = 1; i < argc; ++i) {
        isFine = sweep(argv[i], tally) && isFine;
    }
    std::cerr << tally;
    return isFine ? EXIT_SUCCESS : EXIT_FAILURE;
}
