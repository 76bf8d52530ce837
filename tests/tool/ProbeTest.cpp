#include "tool/ToolTest.h"

#include "support/MediaFiles.h"

namespace tarn {
namespace test {
namespace {

class ProbeTest : public ToolTest
{
};

TEST_F(ProbeTest, TracksStandInAnAlignedTable)
{
    EXPECT_TRUE(succeeds(
        tarnTool("probe film.mov still.png"),
        "FILE       TRACK  KIND   START  LENGTH  RATE   SECONDS  FORMAT\n"
        "film.mov   0      video  0      30720   15360  2        64x48\n"
        "           1      audio  0      96000   48000  2        48000 Hz, 1 channel, 16 bit\n"
        "still.png  0      image  0      1       25     0.04     64x48\n"));
}

TEST_F(ProbeTest, AFileThatCannotBeReadDoesNotHideTheOthers)
{
    EXPECT_TRUE(stops(
        tarnTool("probe nowhere.mov tone.wav"),
        "tarn: cannot read nowhere.mov: No appropriate stats loader for file: nowhere.mov",
        "FILE      TRACK  KIND   START  LENGTH  RATE   SECONDS  FORMAT\n"
        "tone.wav  0      audio  0      144000  48000  3        48000 Hz, 1 channel, 16 bit\n"));
}

TEST_F(ProbeTest, JsonTellsTheSame)
{
    EXPECT_TRUE(succeeds(tarnTool("probe --json tone.wav"),
                         "[\n  {\n    \"file\": \"tone.wav\",\n    \"width\": 0,\n"
                         "    \"height\": 0,\n    \"tracks\": [\n      {\n"
                         "        \"kind\": \"audio\",\n        \"start\": 0,\n"
                         "        \"length\": 144000,\n        \"rate\": [\n          48000,\n"
                         "          1\n        ],\n        \"seconds\": 3,\n"
                         "        \"sampleRate\": [\n          48000,\n          1\n        ],\n"
                         "        \"bitDepth\": 16,\n        \"channels\": 1\n      }\n    ]\n"
                         "  }\n]\n"));
}

TEST_F(ProbeTest, NothingReadablePrintsNoTable)
{
    EXPECT_TRUE(
        stops(tarnTool("probe nowhere.mov"),
              "tarn: cannot read nowhere.mov: No appropriate stats loader for file: nowhere.mov"));
}

TEST_F(ProbeTest, NamesCannotSteerTheTerminal)
{
    ToolRun const seen = tarnTool("probe \"$(printf 'a\\033[31mb')\"");
    EXPECT_EQ(seen.err.find('\x1b'), std::string::npos);
    EXPECT_NE(seen.err.find("a\\x1b[31mb"), std::string::npos) << seen.err;
}

}  // namespace
}  // namespace test
}  // namespace tarn
