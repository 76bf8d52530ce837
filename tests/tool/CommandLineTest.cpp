#include "tool/ToolTest.h"

#include "project/Version.h"

namespace tarn {
namespace test {
namespace {

class CommandLineTest : public ToolTest
{
};

TEST_F(CommandLineTest, EverySubcommandHasHelp)
{
    for (char const* name : {"", "probe", "effects", "run", "draw"}) {
        ToolRun const seen = tarnTool(std::string(name) + " --help");
        EXPECT_EQ(seen.status, 0) << name;
        EXPECT_NE(seen.out.find("Usage: tarn " + std::string(name)), std::string::npos) << seen.out;
        EXPECT_EQ(seen.err, "");
    }
}

TEST_F(CommandLineTest, TheVersionIsTold)
{
    std::string const version = std::to_string(TARN_VERSION_MAJOR) + "." +
                                std::to_string(TARN_VERSION_MINOR) + "." +
                                std::to_string(TARN_VERSION_PATCH);
    EXPECT_TRUE(
        succeeds(tarnTool("--version"), "tarn " + version + ", TarnMediaLib " + version + "\n"));
}

TEST_F(CommandLineTest, WrongOptionsAreUsageErrors)
{
    for (char const* line : {"", "prob film.mov", "probe", "probe --jsn film.mov", "run", "draw x",
                             "--color blue effects", "effects --json --names", "run a b"}) {
        ToolRun const seen = tarnTool(line);
        EXPECT_EQ(seen.status, 2) << line;
        EXPECT_EQ(seen.out, "") << line;
        EXPECT_NE(seen.err, "") << line;
    }
}

TEST_F(CommandLineTest, ColoursAreForTerminalsOrOnDemand)
{
    EXPECT_EQ(tarnTool("probe film.mov nowhere").out.find('\x1b'), std::string::npos);
    EXPECT_EQ(tarnTool("probe film.mov nowhere").err.find('\x1b'), std::string::npos);
    ToolRun const painted = tarnTool("--color=always probe film.mov nowhere");
    EXPECT_EQ(painted.out.find("\x1b[1mFILE\x1b[0m"), 0u) << painted.out;
    EXPECT_NE(painted.err.find("\x1b[1;31mcannot read nowhere\x1b[0m"), std::string::npos);
    EXPECT_EQ(tarnTool("probe --color=never film.mov").out.find('\x1b'), std::string::npos);
}

TEST_F(CommandLineTest, AFullDiskIsAFailure)
{
    ToolRun const seen = tarnTool("effects Glow >/dev/full");
    EXPECT_EQ(seen.status, 1);
}

}  // namespace
}  // namespace test
}  // namespace tarn
