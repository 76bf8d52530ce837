#include "tool/ToolTest.h"

#include <vector>

namespace tarn {
namespace test {
namespace {

/// Every edit that scripts know, in an order in which each finds what it needs.
std::vector<std::string> const k_edits{"load tone.wav as tone",
                                       "place tone as music on A2 at 0",
                                       "place still.png as still on V2 at 0 for 40",
                                       "text \"a text\" as title on V2 at 40 for 20",
                                       "clone title on V2 at 60",
                                       "add-track visual at 1",
                                       "swap-tracks V1 V3",
                                       "swap-tracks V1 V2",
                                       "add-track audio",
                                       "remove-track A3",
                                       "move film by 10",
                                       "trim-start film to 20",
                                       "trim-end film by -10",
                                       "stretch film to 2",
                                       "stretch film to 1",
                                       "move film to 0",
                                       "split V1 at 20 as rest",
                                       "ripple rest by 10",
                                       "insert-space V1 at 5 for 5",
                                       "unlink rest",
                                       "link rest A1@50",
                                       "copy V1 A1 from 50 to 60 as clip",
                                       "cut V1 from 20 to 25",
                                       "cut V1 A1 from 50 to end as tail",
                                       "paste clip on V1 A1 at 100",
                                       "insert clip on V1 A1 at 20",
                                       "ripple-delete V1 from 36 to 55",
                                       "remove V1@95",
                                       "add-effect Glow to still",
                                       "add-effect Colorize to still",
                                       "swap-effects 1 2 of still",
                                       "key still Glow:radius at 5 to 20",
                                       "remove-effect Colorize from still",
                                       "fade-in still for 10",
                                       "slide-in still from left for 10",
                                       "fade-out still for 5",
                                       "slide-out still to top for 5",
                                       "clear-edge start of still",
                                       "key still opacity at 10 to 0.5 hold",
                                       "key still opacity at 10 to 0.75",
                                       "move-key still opacity from 10 to 15",
                                       "remove-key still opacity at 15",
                                       "marker one at 0",
                                       "rename-marker 0 to two",
                                       "remove-marker 0"};

/// The dumps of a run, without the history's counts.
std::vector<std::string> dumpsOf(std::string const& out)
{
    std::vector<std::string> dumps;
    for (std::size_t from = 0, to; (to = out.find("history:", from)) != std::string::npos;
         from = out.find('\n', to) + 1)
        dumps.push_back(out.substr(from, to - from));
    return dumps;
}

class ScriptUndoTest : public ToolTest
{
};

TEST_F(ScriptUndoTest, EveryEditIsOneStepThatUndoesAndRedoes)
{
    std::string script;
    for (std::string const& edit : k_edits)
        script += "dump\n" + edit + "\ncheck\ndump\nundo\ndump\nredo\ndump\n";
    ToolRun const run = edit(script);
    ASSERT_EQ(run.err, "");
    std::vector<std::string> const dumps = dumpsOf(run.out);
    ASSERT_EQ(dumps.size(), 4 * k_edits.size());
    for (std::size_t i = 0; i < k_edits.size(); ++i) {
        EXPECT_EQ(dumps[4 * i + 2], dumps[4 * i]) << "undone: " << k_edits[i];
        EXPECT_EQ(dumps[4 * i + 3], dumps[4 * i + 1]) << "redone: " << k_edits[i];
    }
}

TEST_F(ScriptUndoTest, AllEditsTogetherAreUndoneAndRedone)
{
    std::string script;
    for (std::string const& edit : k_edits)
        script += edit + "\n";
    ToolRun const run = edit(script + "dump\nundo all\ndump\nredo all\ndump\n");
    ASSERT_EQ(run.err, "");
    std::vector<std::string> const dumps = dumpsOf(run.out);
    ASSERT_EQ(dumps.size(), 3u);
    EXPECT_EQ(dumps[1], "project rate 30/1 size 1280x720 sound 44100\nmarkers:\n");
    EXPECT_EQ(dumps[2], dumps[0]);
    // 45 edits after the five that lay the stage.
    EXPECT_NE(run.out.find("history: 50 to undo, 0 to redo"), std::string::npos);
}

}  // namespace
}  // namespace test
}  // namespace tarn
