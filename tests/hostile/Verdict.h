#pragma once

#include "clipbin/ClipBinFwd.h"

#include <boost/shared_ptr.hpp>

#include <functional>
#include <string>

namespace tarn {
namespace test {

/// What the library makes of a file: its statistics or one of its own failures, and nothing else.
struct Verdict
{
    bool isLoaded = false;
    /// The text of the failure without the file's name; empty for a loaded file.
    std::string failure;
    /// What may never happen, in words: another exception, something printed, another file opened
    /// and so on. Empty if nothing of it did.
    std::string fault;
};

/// What is done with statistics that could be read, as a part of the judgement.
using StatsUse = std::function<void(boost::shared_ptr<MediaFileStats> const&)>;

/// Reads the file's statistics under a Watch, and uses them.
Verdict judge(std::string const& path, StatsUse const& use = StatsUse());

}  // namespace test
}  // namespace tarn
