#include "tool/ToolTest.h"

#include "support/MediaFiles.h"

namespace tarn {
namespace test {
namespace {

class ScriptSyntaxTest : public ToolTest
{
};

TEST_F(ScriptSyntaxTest, BlankLinesAndCommentsAreNothing)
{
    EXPECT_TRUE(succeeds(run("\n  # a comment\n\t\nprint one # and another\nprint \"#two\"\r\n"),
                         "one\n#two\n"));
}

TEST_F(ScriptSyntaxTest, AMarkOfTheEncodingIsNothing)
{
    EXPECT_TRUE(
        fails(run("\xEF\xBB\xBFprint a b"), "1:9: nothing more is expected here, found 'b'"));
}

TEST_F(ScriptSyntaxTest, QuotationMarksKeepBlanksAndEscapes)
{
    EXPECT_TRUE(succeeds(run("print \"a \\\"b\\\" \\\\ c\\nd\""), "a \"b\" \\ c\nd\n"));
}

TEST_F(ScriptSyntaxTest, AnUnknownCommandIsToldWithTheLikeliest)
{
    EXPECT_TRUE(fails(run("\n  plase x\n"), "2:3: unknown command 'plase'; did you mean 'place'?"));
}

TEST_F(ScriptSyntaxTest, AMissingKeywordIsToldAtTheWordInItsPlace)
{
    EXPECT_TRUE(fails(run("place film.mov on V1 0"), "1:22: expected 'at', found '0'"));
}

TEST_F(ScriptSyntaxTest, AMissingWordIsToldBehindTheLastOne)
{
    EXPECT_TRUE(fails(run("place film.mov on V1 at  "),
                      "1:24: expected a time such as 90, 1.5s, end or NAME.end, found the end of "
                      "the line"));
}

TEST_F(ScriptSyntaxTest, OneOfTwoWaysIsNeeded)
{
    EXPECT_TRUE(fails(edit("move film 30"), "1:11: expected 'by' or 'to', found '30'"));
}

TEST_F(ScriptSyntaxTest, AWordTooManyIsTold)
{
    EXPECT_TRUE(fails(run("add-track visual quickly"),
                      "1:18: nothing more is expected here, found 'quickly'"));
}

TEST_F(ScriptSyntaxTest, ColumnsCountCharactersNotBytes)
{
    EXPECT_TRUE(fails(run("print \"äöü\" x"), "1:13: nothing more is expected here, found 'x'"));
}

TEST_F(ScriptSyntaxTest, AQuotationNeedsAnEnd)
{
    EXPECT_TRUE(fails(run("print \"abc"), "1:7: the quotation has no end"));
    EXPECT_TRUE(fails(run("print \"abc\\"), "1:7: the quotation has no end"));
}

TEST_F(ScriptSyntaxTest, AnUnknownEscapeIsTold)
{
    EXPECT_TRUE(
        fails(run("print \"a\\tb\""), "1:10: unknown escape: only \\\", \\\\ and \\n are known"));
}

TEST_F(ScriptSyntaxTest, AQuotationStandsApart)
{
    EXPECT_TRUE(fails(run("print \"a\"b"), "1:10: a blank is missing here"));
}

TEST_F(ScriptSyntaxTest, AControlCharacterIsRefused)
{
    EXPECT_TRUE(fails(run("print a\x1b[31m"), "1:8: control character in the script"));
}

TEST_F(ScriptSyntaxTest, ANameMustBeGivenBeforeItIsUsed)
{
    EXPECT_TRUE(fails(run("move film by 5"), "1:6: nothing is named 'film' up to here"));
}

TEST_F(ScriptSyntaxTest, ANameIsGivenOnce)
{
    EXPECT_TRUE(
        fails(edit("split V1 at 10 as film"), "1:19: the name 'film' is taken since line 5"));
}

TEST_F(ScriptSyntaxTest, AWordOfTheLanguageIsNoName)
{
    EXPECT_TRUE(
        fails(edit("split V1 at 10 as end"), "1:19: 'end' is a word of the language and no name"));
}

TEST_F(ScriptSyntaxTest, ANameIsOfOneKind)
{
    EXPECT_TRUE(fails(edit("paste film on V1 at 0"), "1:7: 'film' is a media, not a clip"));
    EXPECT_TRUE(
        fails(edit("load still.png as pic\nremove pic"), "2:8: 'pic' is a file, not a media"));
}

TEST_F(ScriptSyntaxTest, ProjectComesFirstOrNotAtAll)
{
    EXPECT_TRUE(fails(run("print a\nproject rate 25"), "2:1: 'project' must be the first command"));
}

TEST_F(ScriptSyntaxTest, ArgumentsAreOfTheirTypes)
{
    EXPECT_TRUE(
        fails(run("project rate 0"), "1:14: expected a rate such as 30 or 30000/1001, found '0'"));
    EXPECT_TRUE(
        fails(run("project size 10"), "1:14: expected a size such as 1280x720, found '10'"));
    EXPECT_TRUE(
        fails(run("add-track sound"), "1:11: expected visual, image or audio, found 'sound'"));
    EXPECT_TRUE(
        fails(run("remove-track V0"), "1:14: expected a track such as V1 or A2, found 'V0'"));
    EXPECT_TRUE(fails(edit("stretch film to -1"), "1:17: expected a factor above 0, found '-1'"));
    EXPECT_TRUE(fails(edit("fade-in film for 0"),
                      "1:18: expected a duration above 0 such as 90 or 1.5s, found '0'"));
    EXPECT_TRUE(fails(edit("move film by 1000000000000001"),
                      "1:14: expected an offset such as +15, -0.5s, found '1000000000000001'"));
    EXPECT_TRUE(fails(run("undo twice"), "1:6: expected a count or all, found 'twice'"));
    EXPECT_TRUE(fails(run("undo 0"), "1:6: expected a count or all, found '0'"));
    EXPECT_TRUE(
        fails(edit("slide-in film from right for 9"), "1:20: expected left or top, found 'right'"));
    EXPECT_TRUE(fails(edit("add-effect Glwo to film"),
                      "1:12: this machine has no effect 'Glwo'; did you mean 'Glow'?"));
}

TEST_F(ScriptSyntaxTest, PrefixesTakeEditsAlone)
{
    EXPECT_TRUE(fails(run("combine undo"), "1:9: 'combine' takes an edit, and 'undo' is none"));
    EXPECT_TRUE(fails(run("refuse"), "1:7: expected an edit, found the end of the line"));
    EXPECT_TRUE(
        fails(run("refuse combine add-track visual"), "1:8: expected an edit, found 'combine'"));
}

TEST_F(ScriptSyntaxTest, EveryWrongLineIsTold)
{
    EXPECT_TRUE(fails(run("plase a\nprint\nplace x as y on V1\nmove y by 5\nprint fine"),
                      "1:1: unknown command 'plase'; did you mean 'place'?\n"
                      "script.tarn:2:6: expected a text, found the end of the line\n"
                      "script.tarn:3:19: expected 'at', found the end of the line"));
}

TEST_F(ScriptSyntaxTest, NothingRunsOfAScriptThatIsWrongAtItsEnd)
{
    EXPECT_TRUE(fails(run("print one\nprint two\nprnt three"),
                      "3:1: unknown command 'prnt'; did you mean 'print'?"));
}

TEST_F(ScriptSyntaxTest, TheStandardInputIsAScriptToo)
{
    EXPECT_TRUE(succeeds(tarnTool("run -", "print here"), "here\n"));
    EXPECT_TRUE(stops(tarnTool("run -", "print here\nhm\n"), "<stdin>:2:1: unknown command 'hm'"));
}

TEST_F(ScriptSyntaxTest, AScriptThatCannotBeReadIsTold)
{
    EXPECT_TRUE(stops(tarnTool("run nowhere.tarn"),
                      "tarn: cannot read nowhere.tarn: No such file or directory"));
    EXPECT_TRUE(stops(tarnTool("run ."), "tarn: cannot read .: Is a directory"));
}

TEST_F(ScriptSyntaxTest, FilesCountFromTheScriptsFolder)
{
    MediaFiles::written("script.tarn", "add-track visual\nplace still.png on V1 at 0 for 30\n"
                                       "check V1 is \"still.png[0,30)\"\n");
    ToolRun const fromElsewhere = tarnTool("run '" + MediaFiles::folder() + "/script.tarn'");
    EXPECT_TRUE(succeeds(fromElsewhere));
}

}  // namespace
}  // namespace test
}  // namespace tarn
