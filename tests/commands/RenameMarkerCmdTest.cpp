#include "commands/RenameMarkerCmd.h"

#include "commands/CommandPair.h"
#include "support/ParameterEditTest.h"
#include "support/WatchingHandler.h"

namespace tarn {
namespace test {
namespace {

class RenameMarkerCmdTest : public ParameterEditTest
{
protected:
    RenameMarkerCmdTest()
    {
        markers->addKeyFrame(0, "Intro");
        markers->addKeyFrame(40, "Demo");
    }

    boost::shared_ptr<Command> rename(long long time, std::string const& name) const
    {
        return RenameMarkerCmd::create(timeline(), time, name);
    }

    boost::shared_ptr<LeftParameter<std::string>> const markers = timeline()->markerParam();
};

TEST_F(RenameMarkerCmdTest, GivesTheMarkerAnotherName)
{
    EXPECT_TRUE(editsKeys(rename(40, "Tour"), *markers, "0=Intro 40=Tour"));
}

TEST_F(RenameMarkerCmdTest, ATimeWithoutMarkerIsRefused)
{
    EXPECT_TRUE(
        refuses<KeyFrameException>(rename(41, "Tour"), "Invalid KeyFrame operation at time 41"));
}

TEST_F(RenameMarkerCmdTest, AnEmptyTimelineIsRefused)
{
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        RenameMarkerCmd::create(boost::shared_ptr<Timeline>(), 40, "Tour"),
        "attempting to edit an empty pointer"));
}

TEST_F(RenameMarkerCmdTest, TwoOfOneMarkerBecomeOneToTheLaterName)
{
    drag(rename(40, "T"), rename(40, "Tour"));
    EXPECT_EQ("RenameMarkerCmd", project->commandState().undoTop()->description().substr(1, 15));
    EXPECT_EQ("0=Intro 40=Tour", line(*markers));
    project->undo();
    EXPECT_EQ("0=Intro 40=Demo", line(*markers));
    project->redo();
    EXPECT_EQ("0=Intro 40=Tour", line(*markers));
}

TEST_F(RenameMarkerCmdTest, TwoOfDifferentMarkersGroup)
{
    boost::shared_ptr<Command> const both = rename(0, "Opening")->combine(rename(40, "Tour"));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
    EXPECT_TRUE(editsKeys(both, *markers, "0=Opening 40=Tour"));
}

TEST_F(RenameMarkerCmdTest, IsWrittenUnderItsOwnName)
{
    boost::shared_ptr<Command> const command = rename(40, "Tour");
    EXPECT_EQ("<RenameMarkerCmd id=\"" + std::to_string(command->xmlIdent()) + "\" parameter=\"" +
                  std::to_string(markers->xmlIdent()) +
                  "\" time=\"40\" value=\"Tour\" >\n</RenameMarkerCmd>\n",
              command->description());
}

TEST_F(RenameMarkerCmdTest, AWrappingHostSeesItDoneUndoneAndRedone)
{
    std::string log;
    WatchingHandler const watch(
        *project, [&log](auto const& primitive, auto const&) { log += primitive + ' '; });
    project->execute(rename(40, "Tour"));
    project->undo();
    project->redo();
    EXPECT_EQ("changeParameterKeyFrame changeParameterKeyFrame changeParameterKeyFrame ", log);
}

TEST_F(RenameMarkerCmdTest, ACloneRenamesOnItsOwn)
{
    boost::shared_ptr<Command> const copy(rename(40, "Tour")->clone());
    EXPECT_TRUE(editsKeys(copy, *markers, "0=Intro 40=Tour"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
