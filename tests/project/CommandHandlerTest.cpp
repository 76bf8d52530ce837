#include "commands/CommandHandler.h"

#include "support/LoadingTest.h"
#include "support/WatchingHandler.h"

#include "commands/RemoveRangeMediaCmd.h"
#include "commands/UnloadSourceCmd.h"

namespace tarn {
namespace test {

namespace {

/// A host's handler around the project's own sees all edits.
class CommandHandlerTest : public LoadingTest
{
protected:
    /// What the command calls when it is executed, undone and redone; edges left out.
    std::string primitivesOf(boost::shared_ptr<Command> const& command)
    {
        WatchingHandler const watch(*project, [this](std::string const& primitive, auto const&) {
            if (primitive.find("EdgeMod") == std::string::npos)
                m_log += primitive + " ";
        });
        m_log.clear();
        project->execute(command);
        m_log += "| ";
        project->undo();
        m_log += "| ";
        project->redo();
        return m_log;
    }

private:
    std::string m_log;
};

}  // namespace

TEST_F(CommandHandlerTest, AnAddCallsOnePrimitiveAStep)
{
    given("V1: aaa");
    boost::shared_ptr<Media> const fresh = freshVideo('b', 3);
    EXPECT_EQ("addMedia | removeMedia | addMedia ", primitivesOf(add("V1", fresh, 3)));
}

TEST_F(CommandHandlerTest, ARemovalIsUndoneByAnAddForEachMedia)
{
    given("A1: aaa / V1: aaa");
    EXPECT_EQ("removeMedia | addMedia addMedia | removeMedia ", primitivesOf(remove("V1.a")));
}

TEST_F(CommandHandlerTest, AMoveIsUndoneByAMove)
{
    given("A1: aaa / V1: aaa");
    EXPECT_EQ("move | move | move ", primitivesOf(move("V1.a", 1)));
}

TEST_F(CommandHandlerTest, ATrimIsUndoneByATrimOfTheSameSide)
{
    given("V1: aaa");
    EXPECT_EQ("trimStart | trimStart | trimStart ", primitivesOf(trimStart("V1.a", 1)));
    EXPECT_EQ("trimEnd | trimEnd | trimEnd ", primitivesOf(trimEnd("V1.a", 1)));
}

TEST_F(CommandHandlerTest, AStretchIsUndoneByAStretch)
{
    given("V1: aaa");
    EXPECT_EQ("stretch | stretch | stretch ", primitivesOf(stretch("V1.a", 2.0)));
}

TEST_F(CommandHandlerTest, ALoadIsUndoneByAnUnload)
{
    Files::instance().set("fake:handled", {Files::picture(20)});
    EXPECT_EQ("loadSource | unloadSource | loadSource ",
              primitivesOf(LoadSourceCmd::create("fake:handled")));
}

TEST_F(CommandHandlerTest, AnUnloadIsUndoneByALoadOfItsSource)
{
    Files::instance().set("fake:handled", {Files::picture(20)});
    boost::shared_ptr<Source const> const loaded = load("fake:handled");
    EXPECT_EQ("unloadSource | loadSource | unloadSource ",
              primitivesOf(UnloadSourceCmd::create(loaded)));
}

TEST_F(CommandHandlerTest, ACompositeCallsTheRightCutTheLeftCutAndTheRemovalAndUndoesThemBackwards)
{
    given("V1: aaaaaa");
    boost::shared_ptr<RemoveRangeMediaCmd> const command =
        RemoveRangeMediaCmd::create(timeline(), Range<long long>(20, 20));
    command->addTrack(track("V1"));
    EXPECT_EQ("trimEnd addMedia trimEnd addMedia removeMedia "
              "| addMedia removeMedia trimEnd removeMedia trimEnd "
              "| trimEnd addMedia trimEnd addMedia removeMedia ",
              primitivesOf(command));
}

TEST_F(CommandHandlerTest, TheProjectsOwnCanBePutBack)
{
    given("V1: aaa");
    std::string const watched = primitivesOf(move("V1.a", 1));
    project->setCommandHandler(project.get());
    project->undo();
    EXPECT_EQ("V1: aaa", strip());
    EXPECT_EQ("move | move | move ", watched);
}

TEST_F(CommandHandlerTest, ACommandOfBeforeIsUndoneThroughTheHandlerOfNow)
{
    given("V1: aaa");
    project->execute(move("V1.a", 1));
    std::string log;
    WatchingHandler const watch(
        *project, [&log](std::string const& primitive, auto const&) { log += primitive; });
    project->undo();
    EXPECT_EQ("move", log);
    EXPECT_EQ("V1: aaa", strip());
}

}  // namespace test
}  // namespace tarn
