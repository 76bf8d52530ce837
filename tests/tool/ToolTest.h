#pragma once

#include <gtest/gtest.h>

#include <string>

namespace tarn {
namespace test {

/// What a run of the tool left behind.
struct ToolRun
{
    int status;
    std::string out;
    std::string err;
};

/// Runs the tool with the arguments of a shell's line, in the folder of the sample media, with
/// `input` on its standard input.
ToolRun tarnTool(std::string const& arguments, std::string const& input = "");

/// For tests that run scripts. They lie beside the sample media as script.tarn, and so name them
/// without a folder.
class ToolTest : public testing::Test
{
protected:
    /// film.mov, two seconds of picture and sound; still.png; tone.wav, three seconds.
    static void SetUpTestSuite();

    static ToolRun run(std::string const& script);
    /// The same after tracks V1, V2, A1 and A2, with the film on V1 and A1 as `film`, from 0 to 60.
    /// Its lines are counted from 1 again.
    static ToolRun edit(std::string const& script);
};

/// Runs whole, and says nothing but `out`.
testing::AssertionResult succeeds(ToolRun const& run, std::string const& out = "");
/// Stops with status 1, having printed `out`, with that line on the standard error.
testing::AssertionResult stops(ToolRun const& run, std::string const& line,
                               std::string const& out = "");
/// The same of a script, whose line begins with `script.tarn:`.
testing::AssertionResult fails(ToolRun const& run, std::string const& complaint,
                               std::string const& out = "");

}  // namespace test
}  // namespace tarn
