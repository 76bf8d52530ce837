#include "tool/ToolTest.h"

#include "support/MediaFiles.h"

#include <cstdlib>
#include <sys/wait.h>

namespace tarn {
namespace test {

namespace {

testing::AssertionResult isRun(ToolRun const& run, int status, std::string const& out,
                               std::string const& err)
{
    if (run.status == status && run.out == out && run.err == err)
        return testing::AssertionSuccess();
    return testing::AssertionFailure()
           << "status " << run.status << ", expected " << status << "\nprinted:  " << run.out
           << "\nexpected: " << out << "\nsaid:     " << run.err << "\nexpected: " << err;
}

// What most scripts begin with.
std::string const k_stage = "add-track visual\nadd-track visual\nadd-track audio\nadd-track audio\n"
                            "place film.mov as film on V1 A1 at 0\n";
int const k_stageLines = 5;

}  // namespace

ToolRun tarnTool(std::string const& arguments, std::string const& input)
{
    std::string const& folder = MediaFiles::folder();
    std::string const in = MediaFiles::written("stdin", input);
    std::string const line =
        "cd '" + folder + "' && { '" TARN_TOOL "' " + arguments + "; } <stdin >stdout 2>stderr";
    int const status = std::system(line.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, MediaFiles::content(folder + "/stdout"),
            MediaFiles::content(folder + "/stderr")};
}

void ToolTest::SetUpTestSuite()
{
    MediaFiles::made("film.mov", MediaFiles::tone(2) +
                                     " -f lavfi -i testsrc2=s=64x48:r=30:d=2 -pix_fmt yuv420p"
                                     " -c:v mpeg4 -c:a pcm_s16le");
    MediaFiles::made("still.png", MediaFiles::picture(1, "30") + " -pix_fmt rgb24");
    MediaFiles::made("tone.wav", MediaFiles::tone(3));
}

ToolRun ToolTest::run(std::string const& script)
{
    MediaFiles::written("script.tarn", script);
    return tarnTool("run script.tarn");
}

ToolRun ToolTest::edit(std::string const& script)
{
    ToolRun result = run(k_stage + script);
    std::string const prefix = "script.tarn:";
    std::size_t const colon = result.err.find(':', prefix.size());
    if (result.err.compare(0, prefix.size(), prefix) == 0 && colon != std::string::npos) {
        int const line = std::atoi(result.err.c_str() + prefix.size()) - k_stageLines;
        result.err = prefix + std::to_string(line) + result.err.substr(colon);
    }
    return result;
}

testing::AssertionResult succeeds(ToolRun const& run, std::string const& out)
{
    return isRun(run, 0, out, "");
}

testing::AssertionResult stops(ToolRun const& run, std::string const& line, std::string const& out)
{
    return isRun(run, 1, out, line + "\n");
}

testing::AssertionResult fails(ToolRun const& run, std::string const& complaint,
                               std::string const& out)
{
    return stops(run, "script.tarn:" + complaint, out);
}

}  // namespace test
}  // namespace tarn
