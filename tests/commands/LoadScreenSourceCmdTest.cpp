#include "commands/LoadScreenSourceCmd.h"

#include "support/CommandXml.h"
#include "support/LoadingTest.h"
#include "support/Thrown.h"

#include "commands/CommandHistory.h"
#include "datatypes/ScreenMetaData.h"
#include "datatypes/ScreenMetaDataLoader.h"
#include "exceptions/IOException.h"
#include "exceptions/ValueException.h"
#include "parameters/Attribute.h"
#include "parameters/ParameterInterface.h"

namespace tarn {
namespace test {

namespace {

/// Notes which file it is asked for, and gives nothing.
class NotingLoader : public ScreenMetaDataLoader
{
public:
    NotingLoader() : m_before(ScreenMetaData::lazyLoader()) { ScreenMetaData::setLazyLoader(this); }
    ~NotingLoader() override { ScreenMetaData::setLazyLoader(m_before); }

    boost::shared_ptr<ParameterInterface> loadParameter(
        std::string const& absoluteFile, std::string const&,
        boost::weak_ptr<ThreadSafe const> const&,
        boost::weak_ptr<ProjectEditRate const> const&) override
    {
        file = absoluteFile;
        return boost::shared_ptr<ParameterInterface>();
    }

    std::string file;

private:
    ScreenMetaDataLoader* m_before;
};

class LoadScreenSourceCmdTest : public LoadingTest
{
protected:
    LoadScreenSourceCmdTest()
        : metaData(ScreenMetaData::create(lock(), boost::weak_ptr<ProjectEditRate const>(project)))
    {
        Files::instance().set("fake:screen", {Files::picture(20), Files::sound(20)});
        Files::instance().set("fake:two", {Files::picture(20), Files::picture(20)});
        Files::instance().set("fake:mixed", {Files::picture(20), Files::still()});
        Files::instance().set("fake:sound", {Files::sound(20)});
        Files::instance().set("fake:/recordings/screen", {Files::picture(20)});
    }

    boost::shared_ptr<LoadScreenSourceCmd> loadScreen(std::string const& file) const
    {
        return LoadScreenSourceCmd::create(file, metaData);
    }
    static boost::shared_ptr<ScreenMetaData const> metaDataOf(
        boost::shared_ptr<Source const> const& source, unsigned int visualTrack = 0)
    {
        return prototype(source, visualTrack)->screenMetaData()->value();
    }

    boost::shared_ptr<ScreenMetaData> metaData;
};

}  // namespace

TEST_F(LoadScreenSourceCmdTest, LoadsTheFileAndGivesItsVideoTheMetadata)
{
    boost::shared_ptr<LoadScreenSourceCmd> const command = loadScreen("fake:screen");
    EXPECT_FALSE(command->source());
    EXPECT_TRUE(edits(command));
    EXPECT_EQ(only(command->source()), bin());
    EXPECT_EQ(metaData, metaDataOf(command->source()));
}

TEST_F(LoadScreenSourceCmdTest, UndoGivesTheVideoItsOldMetadataBack)
{
    boost::shared_ptr<Source const> const loaded = load("fake:screen");
    boost::shared_ptr<ScreenMetaData const> const old = metaDataOf(loaded);
    ASSERT_TRUE(old);
    project->execute(loadScreen("fake:screen"));
    EXPECT_EQ(metaData, metaDataOf(loaded));
    project->undo();
    EXPECT_EQ(old, metaDataOf(loaded));
    project->redo();
    EXPECT_EQ(metaData, metaDataOf(loaded));
}

TEST_F(LoadScreenSourceCmdTest, UndoAndRedoMoveTheSameSourceAndReadTheFileOnce)
{
    int const before = Files::instance().numLoads("fake:screen");
    boost::shared_ptr<LoadScreenSourceCmd> const command = loadScreen("fake:screen");
    project->execute(command);
    boost::shared_ptr<Source const> const loaded = command->source();
    project->undo();
    EXPECT_EQ(noSources(), bin());
    project->redo();
    EXPECT_EQ(only(loaded), bin());
    EXPECT_EQ(before + 1, Files::instance().numLoads("fake:screen"));
}

TEST_F(LoadScreenSourceCmdTest, AllVideosOfTheFileShareTheMetadata)
{
    boost::shared_ptr<LoadScreenSourceCmd> const command = loadScreen("fake:two");
    project->execute(command);
    EXPECT_EQ(metaData, metaDataOf(command->source(), 0));
    EXPECT_EQ(metaData, metaDataOf(command->source(), 1));
}

TEST_F(LoadScreenSourceCmdTest, AFileOfSoundAloneIsLoadedAndNothingElseIsDone)
{
    boost::shared_ptr<LoadScreenSourceCmd> const command = loadScreen("fake:sound");
    EXPECT_TRUE(edits(command));
    EXPECT_EQ(1u, command->numUndoCommands());
}

TEST_F(LoadScreenSourceCmdTest, TheVideoIsFromThenOnTheMetadatasParent)
{
    NotingLoader loader;
    metaData->setCursorLocation("cursorlocation.dat");
    project->execute(loadScreen("fake:/recordings/screen"));
    metaData->cursorLocation();
    EXPECT_EQ("fake:/recordings/screen/cursorlocation.dat", loader.file);
}

TEST_F(LoadScreenSourceCmdTest, UndoDoesNotTakeTheMetadatasParentBack)
{
    NotingLoader loader;
    metaData->setCursorLocation("cursorlocation.dat");
    project->execute(loadScreen("fake:/recordings/screen"));
    project->undo();
    metaData->cursorLocation();
    EXPECT_EQ("fake:/recordings/screen/cursorlocation.dat", loader.file);
}

TEST_F(LoadScreenSourceCmdTest, AStillInTheFileIsRefusedAndTheLoadIsTakenBack)
{
    EXPECT_TRUE(refuses<TarnMediaLibException>(loadScreen("fake:mixed"),
                                               "trying to LoadScreenSource with an invalid file"));
    EXPECT_EQ(noSources(), bin());
}

TEST_F(LoadScreenSourceCmdTest, ARefusalTakesALoadedFileOutAndGivesItsVideoTheOldMetadataBack)
{
    boost::shared_ptr<Source const> const loaded = load("fake:mixed");
    boost::shared_ptr<ScreenMetaData const> const old = metaDataOf(loaded);
    EXPECT_THROW(project->execute(loadScreen("fake:mixed")), TarnMediaLibException);
    EXPECT_EQ(noSources(), bin());
    EXPECT_EQ(old, metaDataOf(loaded));
    EXPECT_EQ(1u, project->commandHistory()->numUndoCommands());
}

TEST_F(LoadScreenSourceCmdTest, ARefusalOfALoadedFileOnTheTimelineTellsOfItsInstances)
{
    given("V1: aaa");
    boost::shared_ptr<Source const> const loaded = load("fake:mixed");
    place(loaded, "V1", 10);
    auto const thrown = thrownBy<ValueException<boost::shared_ptr<Source const>>>(
        [&] { project->execute(loadScreen("fake:mixed")); });
    EXPECT_STREQ("unable to remove a source that still has instances on the timeline.",
                 thrown.what());
    EXPECT_TRUE(project->sourceBin()->containsSource(loaded));
}

TEST_F(LoadScreenSourceCmdTest, AFileThatCannotBeReadStaysOut)
{
    EXPECT_TRUE(refuses<IOException>(loadScreen("fake:missing")));
}

TEST_F(LoadScreenSourceCmdTest, ACloneHasALoadOfItsOwn)
{
    boost::shared_ptr<LoadScreenSourceCmd> const original = loadScreen("fake:screen");
    boost::shared_ptr<LoadScreenSourceCmd> const clone(original->clone());
    project->execute(clone);
    EXPECT_EQ(only(clone->source()), bin());
    EXPECT_FALSE(original->source());
}

TEST_F(LoadScreenSourceCmdTest, PrintsItsName)
{
    EXPECT_EQ(emptyElement("LoadScreenSourceCmd", ""), xmlOf(*loadScreen("fake:screen")));
}

}  // namespace test
}  // namespace tarn
