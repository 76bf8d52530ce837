#include "tool/ToolTest.h"

namespace tarn {
namespace test {
namespace {

class ScriptVerbsTest : public ToolTest
{
};

TEST_F(ScriptVerbsTest, AProjectHasARateASizeAndASound)
{
    EXPECT_TRUE(succeeds(run("project sound 8000 rate 30000/1001 size 320x200\ndump"),
                         "project rate 30000/1001 size 320x200 sound 8000\n"
                         "markers:\nhistory: 0 to undo, 0 to redo\n"));
}

TEST_F(ScriptVerbsTest, WithoutAProjectLineThereIsOne)
{
    EXPECT_TRUE(succeeds(run("dump"), "project rate 30/1 size 1280x720 sound 44100\n"
                                      "markers:\nhistory: 0 to undo, 0 to redo\n"));
}

TEST_F(ScriptVerbsTest, AFilmIsPlacedWithItsSoundAndMovesWithIt)
{
    EXPECT_TRUE(succeeds(edit("check V1 is \"film[0,60)\"\ncheck A1 is \"film[0,60)\"\n"
                              "move film by 15\ncheck A1 is \"film[15,75)\"\n"
                              "move A1@15 to 1s\ncheck V1 is \"film[30,90)\"\n")));
}

TEST_F(ScriptVerbsTest, PlacingAndLoadingAreOneStep)
{
    EXPECT_TRUE(succeeds(run("add-track visual\nplace still.png on V1 at 0 for 30\nundo\ndump"),
                         "project rate 30/1 size 1280x720 sound 44100\nV1:\nmarkers:\n"
                         "history: 1 to undo, 1 to redo\n"));
}

TEST_F(ScriptVerbsTest, AStillLastsFiveSecondsOrAsLongAsSaid)
{
    EXPECT_TRUE(succeeds(edit("place still.png as long on V2 at 0\n"
                              "place still.png as short on V2 at long.end for 500ms\n"
                              "check V2 is \"long[0,150) short[150,165)\"\n")));
}

TEST_F(ScriptVerbsTest, AFileGoesByItsNameOnceLoaded)
{
    EXPECT_TRUE(succeeds(edit("load tone.wav as tone\nplace tone on A2 at end\n"
                              "check A2 is \"tone.wav[60,150)\"\n")));
}

TEST_F(ScriptVerbsTest, TracksAreAddedRemovedAndSwapped)
{
    EXPECT_TRUE(succeeds(edit("swap-tracks V1 V2\ncheck V2 is \"film[0,60)\"\n"
                              "add-track visual at 1\ncheck V3 is \"film[0,60)\"\n"
                              "remove-track V1\nundo\nremove-track V2\ncheck V2 is \"film[0,60)\"\n"
                              "remove-track A2\nrefuse remove-track A2\n")));
}

TEST_F(ScriptVerbsTest, ATextAndACloneArePlaced)
{
    EXPECT_TRUE(succeeds(edit("text \"Hello there\" as title on V2 at 5 for 20 size 300x60\n"
                              "clone title as again on V2 at 40\n"
                              "clone film on V2 at 60\n"
                              "check V2 is \"title[5,25) again[40,60) film.mov[60,120)\"\n")));
}

TEST_F(ScriptVerbsTest, EndsAreTrimmedAlongTheTimeAxis)
{
    EXPECT_TRUE(succeeds(edit("trim-start film by 10\ntrim-end film by -5\n"
                              "check V1 is \"film[10,55)\"\n"
                              "trim-start film to 0\ntrim-end film to 40\n"
                              "check A1 is \"film[0,40)\"\n")));
}

TEST_F(ScriptVerbsTest, AStretchIsAbsolute)
{
    EXPECT_TRUE(succeeds(edit("stretch film to 2\ncheck A1 is \"film[0,120)\"\n"
                              "stretch film to 0.5\ncheck V1 is \"film[0,30)\"\n"
                              "stretch film to 1\ncheck V1 is \"film[0,60)\"\n")));
}

TEST_F(ScriptVerbsTest, ASplitNamesTheRightPart)
{
    EXPECT_TRUE(succeeds(edit("split V1 at 20 as rest\nmove rest by 10\n"
                              "check V1 is \"film[0,20) rest[30,70)\"\n"
                              "check A1 is \"film[0,20) rest[30,70)\"\n"
                              "remove film\ncheck A1 is \"rest[30,70)\"\n")));
}

TEST_F(ScriptVerbsTest, ACutLeavesTheGapAndMayKeepACopy)
{
    EXPECT_TRUE(succeeds(edit("cut V1 from 20 to 30\n"
                              "check A1 is \"film[0,20) film.mov[30,60)\"\nundo\n"
                              "cut V1 A1 from 40 to end as tail\n"
                              "check V1 is \"film[0,40)\"\n"
                              "paste tail on V1 A1 at 50\n"
                              "check A1 is \"film[0,40) film.mov[50,70)\"\n")));
}

TEST_F(ScriptVerbsTest, ARippleDeleteClosesTheGap)
{
    EXPECT_TRUE(succeeds(edit("ripple-delete V1 from 20 to 30\n"
                              "check V1 is \"film[0,20) film.mov[20,50)\"\n"
                              "check A1 is \"film[0,20) film.mov[20,50)\"\n"
                              "undo\ncheck V1 is \"film[0,60)\"\n")));
}

TEST_F(ScriptVerbsTest, ARippleTakesAllThatFollows)
{
    EXPECT_TRUE(succeeds(edit("split V1 at 20 as b\nsplit V1 at 40 as c\nripple b by 5\n"
                              "check V1 is \"film[0,20) b[25,45) c[45,65)\"\n")));
}

TEST_F(ScriptVerbsTest, InsertedSpaceCutsNothing)
{
    EXPECT_TRUE(succeeds(edit("split V1 at 20 as b\ninsert-space V1 at 20 for 10\n"
                              "check V1 is \"film[0,20) b[30,70)\"\n")));
}

TEST_F(ScriptVerbsTest, APastedCopyKeepsPictureAndSoundTogether)
{
    EXPECT_TRUE(succeeds(edit("copy V1 A1 from 10 to 20 as clip\npaste clip on V2 A2 at 100\n"
                              "move V2@100 by 5\ncheck A2 is \"film.mov[105,115)\"\n"
                              "paste clip on A2 at 0\n"
                              "check A2 is \"film.mov[0,10) film.mov[105,115)\"\n")));
}

TEST_F(ScriptVerbsTest, AnInsertedCopyOpensAGapOnEveryTrack)
{
    EXPECT_TRUE(succeeds(edit("place tone.wav as tone on A2 at 0\n"
                              "copy V1 A1 from 10 to 20 as clip\ninsert clip on V1 A1 at 30\n"
                              "check V1 is \"film[0,30) film.mov[30,40) film.mov[40,70)\"\n"
                              "check A2 is \"tone[0,30) tone.wav[40,100)\"\n"
                              "undo\ncheck A2 is \"tone[0,90)\"\n")));
}

TEST_F(ScriptVerbsTest, UnlinkedMediasMoveApartAndCanBeLinkedAgain)
{
    EXPECT_TRUE(succeeds(edit("unlink film\nmove film by 5\ncheck A1 is \"film[0,60)\"\n"
                              "refuse link film A1@0\nmove film by -5\nlink film A1@0\n"
                              "move film by 7\ncheck A1 is \"film[7,67)\"\n")));
}

TEST_F(ScriptVerbsTest, EffectsAreStackedSwappedAndRemoved)
{
    ToolRun const seen =
        edit("add-effect Glow to V2\nadd-effect Reflection to V2\nswap-effects 1 2 of V2\n"
             "remove-effect Glow from V2\nadd-effect Glow to video\nadd-effect Glow to film\n"
             "refuse remove-effect Reflection from film\ndump");
    EXPECT_NE(seen.out.find("V2:\n  effect Reflection\n    distance 0=0\n    opacity 0=0.5\nA1"),
              std::string::npos)
        << seen.out << seen.err;
    EXPECT_NE(seen.out.find("    effect Glow\n      intensity 0=1\n      radius 0=10\n"),
              std::string::npos)
        << seen.out;
}

TEST_F(ScriptVerbsTest, EdgesFadeAndSlideAndAreCleared)
{
    ToolRun const seen = edit("fade-in film for 10\nfade-out A1@0 for 0.5s\n"
                              "slide-in film from left for 12\nslide-out film to top for 8\ndump\n"
                              "clear-edge start of film\ndump");
    EXPECT_NE(seen.out.find("    start edge 12: opacity FadeInFunc translation0 MixerXSlideIn\n"
                            "    end edge 8: translation1 MixerYSlideOut\n"),
              std::string::npos)
        << seen.out << seen.err;
    EXPECT_NE(seen.out.find("    end edge 15: volume FadeOutFunc\n"), std::string::npos);
    EXPECT_EQ(seen.out.find("start edge"), seen.out.rfind("start edge"));
}

TEST_F(ScriptVerbsTest, KeyFramesLieOnTheSourcesClock)
{
    ToolRun const seen = edit("move film by 30\ntrim-start film by 10\n"
                              "key film opacity at 50 to 0.5\nkey film scale.x at 60 to 2 hold\n"
                              "key film opacity at 50 to 0.25\nkey film opacity at 80 to 1 linear\n"
                              "move-key film opacity from 80 to 85\n"
                              "key film scale.y at 70 to 3\nremove-key film scale.y at 70\ndump");
    // Key frame times are track times less 30, where the film's first picture would be.
    EXPECT_NE(seen.out.find("    opacity 0=1 20=0.25 55=1\n"), std::string::npos)
        << seen.out << seen.err;
    EXPECT_NE(seen.out.find("    scale0 0=1 30=2 hold\n"), std::string::npos);
    EXPECT_EQ(seen.out.find("scale1"), std::string::npos);
}

TEST_F(ScriptVerbsTest, ValuesAreOfTheParametersType)
{
    EXPECT_TRUE(
        fails(edit("key film opacity at 0 to full"), "1:26: expected a number, found 'full'"));
    EXPECT_TRUE(fails(edit("key film opacty at 0 to 1"),
                      "1:10: there is no parameter 'opacty'; did you mean 'opacity'?"));
    EXPECT_TRUE(
        fails(edit("key film Glow:radius at 0 to 1"), "1:10: there is no effect 'Glow' on it"));
    EXPECT_TRUE(fails(edit("text Hi as t on V2 at 0 for 9\nkey t text at 0 to Ho hold"),
                      "2:7: this parameter is never blended"));
    EXPECT_TRUE(
        succeeds(edit("add-effect Glow to film\nkey film Glow:radius at 0 to 4\n"
                      "text Hi as t on V2 at 0 for 9\nkey t text at 0 to \"Hello you\"\n")));
}

TEST_F(ScriptVerbsTest, TheLastKeyFrameStays)
{
    EXPECT_TRUE(fails(edit("remove-key film opacity at 0"),
                      "1:28: the last key frame stays: set its value instead"));
    EXPECT_TRUE(fails(edit("remove-key film opacity at 9"), "1:28: there is no key frame at 9"));
}

TEST_F(ScriptVerbsTest, MarkersAreSetRenamedAndRemoved)
{
    EXPECT_TRUE(succeeds(run("marker Start at 0\nmarker \"The end\" at 2s\nmarker Odd at 7\n"
                             "rename-marker 60 to End\nremove-marker 7\n"
                             "check markers is \"0 \\\"Start\\\", 60 \\\"End\\\"\"\nundo all\n"
                             "check markers is \"\"\nrefuse remove-marker 0\n")));
}

TEST_F(ScriptVerbsTest, ADragIsOneStep)
{
    EXPECT_TRUE(succeeds(edit("move film by 1\ncombine move film by 2\ncombine move film by 3\n"
                              "check V1 is \"film[6,66)\"\nundo\ncheck V1 is \"film[0,60)\"\n"
                              "redo\ncheck V1 is \"film[6,66)\"\n")));
}

TEST_F(ScriptVerbsTest, UnlikeEditsCombineIntoOneStepToo)
{
    EXPECT_TRUE(succeeds(edit("move film by 5\ncombine fade-in film for 5\nundo\ndump"),
                         "project rate 30/1 size 1280x720 sound 44100\n"
                         "file film.mov for 60\n"
                         "V1: film[0,60)\n  film[0,60): film.mov from 0 for 60\n    linked A1@0\n"
                         "V2:\n"
                         "A1: film[0,60)\n  film[0,60): film.mov from 0 for 60\n    linked V1@0\n"
                         "A2:\nmarkers:\nhistory: 5 to undo, 1 to redo\n"));
}

TEST_F(ScriptVerbsTest, StepsAreUndoneAndRedoneByCount)
{
    EXPECT_TRUE(succeeds(edit("move film by 1\nmove film by 2\nmove film by 4\nundo 2\n"
                              "check V1 is \"film[1,61)\"\nredo 1\ncheck V1 is \"film[3,63)\"\n"
                              "redo all\ncheck V1 is \"film[7,67)\"\nundo all\nredo all\n"
                              "check V1 is \"film[7,67)\"\n")));
}

TEST_F(ScriptVerbsTest, XmlAndHistoryAreDumpedAsXml)
{
    ToolRun const seen = run("marker A at 0\ndump xml\ndump history");
    EXPECT_EQ(seen.out.find("<Project id="), 0u) << seen.out;
    EXPECT_NE(seen.out.find("<CommandHistory"), std::string::npos);
    EXPECT_NE(seen.out.find("<AddMarkerCmd"), std::string::npos);
}

}  // namespace
}  // namespace test
}  // namespace tarn
