#pragma once

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

/// Reads the file's statistics under a Watch, and where they can be read makes a source of them and
/// prints its XML.
Verdict judge(std::string const& path);

}  // namespace test
}  // namespace tarn
