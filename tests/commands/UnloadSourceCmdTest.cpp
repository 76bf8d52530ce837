#include "commands/UnloadSourceCmd.h"

#include "support/CommandXml.h"
#include "support/LoadingTest.h"
#include "support/Thrown.h"

#include "exceptions/ValueException.h"

namespace tarn {
namespace test {

namespace {

class UnloadSourceCmdTest : public LoadingTest
{
protected:
    UnloadSourceCmdTest()
    {
        Files::instance().set("fake:first", {Files::picture(20)});
        Files::instance().set("fake:second", {Files::picture(20)});
    }
};

}  // namespace

TEST_F(UnloadSourceCmdTest, TakesTheSourceOutOfTheBin)
{
    boost::shared_ptr<Source const> const first = load("fake:first");
    boost::shared_ptr<Source const> const second = load("fake:second");
    EXPECT_TRUE(edits(UnloadSourceCmd::create(second)));
    EXPECT_EQ(only(first), bin());
}

TEST_F(UnloadSourceCmdTest, UndoAppendsTheSource)
{
    boost::shared_ptr<Source const> const first = load("fake:first");
    boost::shared_ptr<Source const> const second = load("fake:second");
    project->execute(UnloadSourceCmd::create(first));
    project->undo();
    EXPECT_EQ((std::vector<boost::shared_ptr<Source const>>{second, first}), bin());
}

TEST_F(UnloadSourceCmdTest, UndoAsksNoSentryAndReadsNoFile)
{
    boost::shared_ptr<Source const> const first = load("fake:first");
    int const before = Files::instance().numLoads("fake:first");
    project->addSourceBinSentry(boost::make_shared<FixedSentry>(false));
    project->execute(UnloadSourceCmd::create(first));
    project->undo();
    EXPECT_EQ(only(first), bin());
    EXPECT_EQ(before, Files::instance().numLoads("fake:first"));
}

TEST_F(UnloadSourceCmdTest, ASourceOnTheTimelineIsRefused)
{
    given("V1: aaa");
    boost::shared_ptr<Command> const command = UnloadSourceCmd::create(source('a'));
    EXPECT_TRUE(refuses<ValueException<boost::shared_ptr<Source const>>>(
        command, "unable to remove a source that still has instances on the timeline."));
    auto const thrown = thrownBy<ValueException<boost::shared_ptr<Source const>>>(
        [&] { project->execute(command); });
    EXPECT_EQ(source('a'), thrown.value());
}

TEST_F(UnloadSourceCmdTest, ASourceWhoseMediasWereRemovedIsTakenOut)
{
    given("A1: aaa / V1: aaa");
    project->execute(remove("V1.a"));
    EXPECT_TRUE(edits(UnloadSourceCmd::create(source('a'))));
}

TEST_F(UnloadSourceCmdTest, ASourceThatIsNotInTheBinIsRefused)
{
    boost::shared_ptr<Source const> const stranger = Source::create(project, lock(), "fake:first");
    boost::shared_ptr<Command> const command = UnloadSourceCmd::create(stranger);
    EXPECT_TRUE(
        refuses<ValueException<boost::shared_ptr<Source const>>>(command, "unable to remove clip"));
}

TEST_F(UnloadSourceCmdTest, PrintsTheFileAndWhereTheSourceLies)
{
    boost::shared_ptr<Source const> const first = load("fake:first");
    EXPECT_EQ("<UnloadSourceCmd id=\"#\"  >\n"
              " <Path>\n"
              "  fake:first\n"
              " </Path>\n"
              " <Source>" +
                  addressOf(first) +
                  "</Source>\n"
                  "</UnloadSourceCmd>\n",
              xmlOf(*UnloadSourceCmd::create(first)));
}

TEST_F(UnloadSourceCmdTest, PrintsZeroForNoSource)
{
    EXPECT_EQ("<UnloadSourceCmd id=\"#\"  >\n"
              " <Path>\n"
              "  \n"
              " </Path>\n"
              " <Source>0</Source>\n"
              "</UnloadSourceCmd>\n",
              xmlOf(*UnloadSourceCmd::create(nullptr)));
}

TEST_F(UnloadSourceCmdTest, ACloneTakesTheSameSourceOut)
{
    boost::shared_ptr<Source const> const first = load("fake:first");
    boost::shared_ptr<Source const> const second = load("fake:second");
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(UnloadSourceCmd::create(second)->clone())));
    EXPECT_EQ(only(first), bin());
}

}  // namespace test
}  // namespace tarn
