#include "commands/LoadSourceCmd.h"

#include "support/CommandXml.h"
#include "support/LoadingTest.h"
#include "support/Thrown.h"

#include "clipbin/MediaFileStats.h"
#include "commands/CommandHistory.h"
#include "exceptions/IOException.h"
#include "exceptions/ValueException.h"

namespace tarn {
namespace test {

namespace {

class LoadSourceCmdTest : public LoadingTest
{
protected:
    LoadSourceCmdTest() { Files::instance().set(k_file, {Files::picture(20), Files::sound(20)}); }

    static constexpr char const* k_file = "fake:load";
};

}  // namespace

TEST_F(LoadSourceCmdTest, BringsTheFileIntoTheBin)
{
    boost::shared_ptr<LoadSourceCmd> const command = LoadSourceCmd::create(k_file);
    EXPECT_FALSE(command->source());
    EXPECT_TRUE(edits(command));
    EXPECT_EQ(only(command->source()), bin());
    EXPECT_EQ(k_file, command->source()->mediaFileStats()->filename());
}

TEST_F(LoadSourceCmdTest, UndoAndRedoMoveTheSameSourceAndReadTheFileOnce)
{
    int const before = Files::instance().numLoads(k_file);
    boost::shared_ptr<Source const> const loaded = load(k_file);
    project->undo();
    EXPECT_EQ(noSources(), bin());
    project->redo();
    EXPECT_EQ(only(loaded), bin());
    EXPECT_EQ(before + 1, Files::instance().numLoads(k_file));
}

TEST_F(LoadSourceCmdTest, RedoAsksNoSentry)
{
    auto const sentry = boost::make_shared<FixedSentry>(true);
    project->addSourceBinSentry(sentry);
    load(k_file);
    EXPECT_EQ(1, sentry->calls());
    project->undo();
    project->redo();
    EXPECT_EQ(1, sentry->calls());
}

TEST_F(LoadSourceCmdTest, AFileASentryRefusesStaysOut)
{
    project->addSourceBinSentry(boost::make_shared<FixedSentry>(false));
    testing::internal::CaptureStdout();
    bool const refused = bool(refuses<TarnMediaLibException>(
        LoadSourceCmd::create(k_file), "attempting to load a media not accepted by sentries."));
    EXPECT_EQ("SourceBinSentry(fixed) rejected file:fake:load\n",
              testing::internal::GetCapturedStdout());
    EXPECT_TRUE(refused);
}

TEST_F(LoadSourceCmdTest, ASourceMadeElsewhereIsTakenWithoutAskingASentry)
{
    project->addSourceBinSentry(boost::make_shared<FixedSentry>(false));
    boost::shared_ptr<Source> const made = Source::create(project, lock(), k_file);
    EXPECT_TRUE(edits(LoadSourceCmd::create(made)));
    EXPECT_EQ(only(made), bin());
}

TEST_F(LoadSourceCmdTest, AFileThatCannotBeReadStaysOut)
{
    EXPECT_TRUE(refuses<IOException>(LoadSourceCmd::create("fake:missing"),
                                     "IOException: Unable to initialize file: fake:missing"));
}

TEST_F(LoadSourceCmdTest, AFileWithoutTimeInCommonStaysOut)
{
    Files::instance().set("fake:empty", {Files::picture(20), Files::sound(0)});
    EXPECT_TRUE(refuses<TarnMediaLibException>(LoadSourceCmd::create("fake:empty"),
                                               "source has timerange of zero"));
}

TEST_F(LoadSourceCmdTest, UndoIsRefusedWhileTheTimelineShowsTheSource)
{
    given("V1: aaa");
    boost::shared_ptr<Source const> const loaded = load(k_file);
    boost::shared_ptr<VMFile> const shown(new VMFile(loaded->timeRange(), lock(), loaded, 0));
    track("V1")->addMedia(shown, 100);
    auto const thrown =
        thrownBy<ValueException<boost::shared_ptr<Source const>>>([&] { project->undo(); });
    EXPECT_STREQ("unable to remove a source that still has instances on the timeline.",
                 thrown.what());
    EXPECT_EQ(loaded, thrown.value());
    EXPECT_TRUE(project->sourceBin()->containsSource(loaded));
    EXPECT_EQ(0u, project->commandHistory()->numUndoCommands());
    EXPECT_EQ(0u, project->commandHistory()->numRedoCommands());
}

TEST_F(LoadSourceCmdTest, ALoadOfALoadedFileRecordsTheSourceThatIsThere)
{
    boost::shared_ptr<Source const> const first = load(k_file);
    boost::shared_ptr<Source const> const second = load(k_file);
    EXPECT_EQ(first, second);
    EXPECT_EQ(only(first), bin());
}

TEST_F(LoadSourceCmdTest, UndoOfASecondLoadTakesTheSourceOutAndTheFirstCannotBeUndone)
{
    boost::shared_ptr<Source const> const loaded = load(k_file);
    load(k_file);
    project->undo();
    EXPECT_EQ(noSources(), bin());
    auto const thrown =
        thrownBy<ValueException<boost::shared_ptr<Source const>>>([&] { project->undo(); });
    EXPECT_STREQ("unable to remove clip", thrown.what());
    EXPECT_EQ(loaded, thrown.value());
}

TEST_F(LoadSourceCmdTest, AfterASecondLoadWasUndoneTheFirstMayBeRefusedForItsInstances)
{
    given("V1: aaa");
    boost::shared_ptr<Source const> const loaded = load(k_file);
    load(k_file);
    project->undo();
    boost::shared_ptr<VMFile> const shown(new VMFile(loaded->timeRange(), lock(), loaded, 0));
    track("V1")->addMedia(shown, 100);
    auto const thrown =
        thrownBy<ValueException<boost::shared_ptr<Source const>>>([&] { project->undo(); });
    EXPECT_STREQ("unable to remove a source that still has instances on the timeline.",
                 thrown.what());
}

TEST_F(LoadSourceCmdTest, ExecutedTwiceItAddsItsSourceTwiceAndEachUndoTakesOneOut)
{
    auto const sentry = boost::make_shared<FixedSentry>(true);
    project->addSourceBinSentry(sentry);
    int const before = Files::instance().numLoads(k_file);
    boost::shared_ptr<LoadSourceCmd> const command = LoadSourceCmd::create(k_file);
    project->execute(command);
    project->execute(command);
    EXPECT_EQ(2u, bin().size());
    EXPECT_EQ(1, sentry->calls());
    EXPECT_EQ(before + 1, Files::instance().numLoads(k_file));
    project->undo();
    EXPECT_EQ(only(command->source()), bin());
}

TEST_F(LoadSourceCmdTest, PrintsThePathAndNoSourceBeforeItRan)
{
    EXPECT_EQ("<LoadSourceCmd id=\"#\"  >\n"
              " <Path>\n"
              "  fake:load\n"
              " </Path>\n"
              " <Source>0</Source>\n"
              "</LoadSourceCmd>\n",
              xmlOf(*LoadSourceCmd::create(k_file)));
}

TEST_F(LoadSourceCmdTest, PrintsWhereTheSourceLiesOnceItRan)
{
    boost::shared_ptr<LoadSourceCmd> const command = LoadSourceCmd::create(k_file);
    project->execute(command);
    EXPECT_EQ("<LoadSourceCmd id=\"#\"  >\n"
              " <Path>\n"
              "  fake:load\n"
              " </Path>\n"
              " <Source>" +
                  addressOf(command->source()) +
                  "</Source>\n"
                  "</LoadSourceCmd>\n",
              xmlOf(*command));
}

TEST_F(LoadSourceCmdTest, PrintsAnEmptyPathForASourceMadeElsewhere)
{
    boost::shared_ptr<Source const> const made = Source::create(project, lock(), k_file);
    EXPECT_EQ("<LoadSourceCmd id=\"#\"  >\n"
              " <Path>\n"
              "  \n"
              " </Path>\n"
              " <Source>" +
                  addressOf(made) +
                  "</Source>\n"
                  "</LoadSourceCmd>\n",
              xmlOf(*LoadSourceCmd::create(made)));
}

TEST_F(LoadSourceCmdTest, EscapesThePath)
{
    std::string const xml = xmlOf(*LoadSourceCmd::create("fake:<a&b>"));
    EXPECT_NE(std::string::npos, xml.find("  fake:&lt;a&amp;b&gt;\n"));
}

}  // namespace test
}  // namespace tarn
