#include "tool/ToolTest.h"

#include "support/MediaFiles.h"

namespace tarn {
namespace test {
namespace {

/// Scripts that are well written and stop all the same.
class ScriptFailureTest : public ToolTest
{
};

TEST_F(ScriptFailureTest, ACollisionNamesWhatIsInTheWay)
{
    EXPECT_TRUE(fails(edit("print before\nclone film on V1 at 30\nprint after"),
                      "2:1: no room: in the way is film[0,60) on V1", "before\n"));
}

TEST_F(ScriptFailureTest, AFailedCheckTellsBoth)
{
    EXPECT_TRUE(fails(edit("check V1 is \"film[0,61)\""),
                      "1:13: check failed: V1 is \"film[0,60)\", not \"film[0,61)\""));
    EXPECT_TRUE(
        fails(edit("check markers is x"), "1:18: check failed: markers is \"\", not \"x\""));
}

TEST_F(ScriptFailureTest, WhatIsRefusedHasChangedNothing)
{
    EXPECT_TRUE(
        succeeds(edit("refuse trim-end film by 5\nsplit V1 at 30 as b\nrefuse move b by -1\n"
                      "refuse trim-start film by -1\n"
                      "refuse split V1 at 60\nrefuse add-track image\n"
                      "refuse place film.mov on V2 A1 at 30\n"
                      "check V2 is \"\"\ncheck V1 is \"film[0,30) b[30,60)\"\ncheck\n")));
}

TEST_F(ScriptFailureTest, ARefusalThatDoesNotComeStopsTheScript)
{
    EXPECT_TRUE(fails(edit("refuse move film by 1"), "1:1: the edit was not refused"));
}

// The picture would find room, the sound does not: neither is placed, nor is the file loaded.
TEST_F(ScriptFailureTest, ACompoundEditIsTakenBackWhole)
{
    EXPECT_TRUE(succeeds(run("add-track visual\nadd-track audio\nplace tone.wav on A1 at 0\n"
                             "refuse place film.mov on V1 A1 at 0\ndump"),
                         "project rate 30/1 size 1280x720 sound 44100\n"
                         "file tone.wav for 90\nV1:\nA1: tone.wav[0,90)\n"
                         "  tone.wav[0,90): tone.wav from 0 for 90\n"
                         "markers:\nhistory: 3 to undo, 0 to redo\n"));
}

TEST_F(ScriptFailureTest, AnUnreadableFileIsTold)
{
    MediaFiles::written("words.txt", "no movie\n");
    EXPECT_TRUE(
        fails(edit("load words.txt"), "1:1: No appropriate stats loader for file: words.txt"));
    EXPECT_TRUE(fails(edit("place \"no where.mov\" on V1 at 0"),
                      "1:1: No appropriate stats loader for file: no where.mov"));
}

TEST_F(ScriptFailureTest, WhatAFileLacksIsTold)
{
    EXPECT_TRUE(fails(edit("place tone.wav on V2 at 0"), "1:19: the file has nothing for V2"));
    EXPECT_TRUE(fails(edit("place film.mov on V2 V1 at 90"), "1:22: the file has nothing for V1"));
    EXPECT_TRUE(fails(edit("copy V1 from 0 to 9 as c\npaste c on V2 V1 at 90"),
                      "2:15: the clip has nothing for V1"));
    EXPECT_TRUE(fails(edit("place film.mov on V2 at 0 for 30"),
                      "1:31: 'for' is for still pictures; trim this"));
    EXPECT_TRUE(
        fails(edit("place still.png on V2 V1 at 90"), "1:23: a still picture lies on one track"));
}

TEST_F(ScriptFailureTest, ATrackThatIsNotThereIsTold)
{
    EXPECT_TRUE(fails(edit("remove-track V3"), "1:14: there is no track V3"));
    EXPECT_TRUE(fails(edit("add-track audio at 4"), "1:20: a new track can be at 3 at most"));
    EXPECT_TRUE(fails(edit("swap-tracks V1 A1"), "1:16: only tracks of one kind can be swapped"));
}

TEST_F(ScriptFailureTest, ANameOutlivesWhatItNames)
{
    EXPECT_TRUE(fails(edit("undo\nmove film by 1"), "2:6: 'film' lies on no track now"));
    EXPECT_TRUE(fails(edit("move V2@5 by 1"), "1:6: nothing lies on V2 at 5"));
    EXPECT_TRUE(
        fails(edit("load tone.wav as t\nundo\nplace t on A2 at 0"), "3:7: 't' is not loaded now"));
}

TEST_F(ScriptFailureTest, ARangeRunsForward)
{
    EXPECT_TRUE(fails(edit("cut V1 from 30 to 20"),
                      "1:19: the range ends at 20, not after its start at 30"));
}

TEST_F(ScriptFailureTest, ThereIsOnlySoMuchToUndo)
{
    EXPECT_TRUE(fails(run("undo"), "1:1: there is nothing to undo"));
    EXPECT_TRUE(fails(run("redo"), "1:1: there is nothing to redo"));
    EXPECT_TRUE(fails(run("marker a at 0\nundo 2"), "2:6: there are 1 steps to undo"));
    EXPECT_TRUE(succeeds(run("undo all\nredo all")));
}

TEST_F(ScriptFailureTest, TheFirstEditHasNothingToCombineWith)
{
    EXPECT_TRUE(fails(run("combine add-track visual"), "1:1: there is no edit to combine with"));
}

TEST_F(ScriptFailureTest, MarkersAreWhereTheyAre)
{
    EXPECT_TRUE(fails(run("marker a at 5\nmarker b at 5"), "2:13: there is a marker at 5"));
    EXPECT_TRUE(fails(run("rename-marker 5 to b"), "1:15: there is no marker at 5"));
}

TEST_F(ScriptFailureTest, EdgesAndEffectsAreWhereTheyAre)
{
    EXPECT_TRUE(fails(edit("clear-edge start of film"), "1:12: nothing is on that edge"));
    EXPECT_TRUE(fails(edit("slide-in A1@0 from left for 5"), "1:10: only pictures slide"));
    EXPECT_TRUE(fails(edit("swap-effects 1 2 of film"), "1:14: there is no effect 1 on it"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
