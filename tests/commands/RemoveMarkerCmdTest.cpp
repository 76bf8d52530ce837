#include "commands/RemoveMarkerCmd.h"

#include "support/ParameterEditTest.h"
#include "support/WatchingHandler.h"

namespace tarn {
namespace test {
namespace {

class RemoveMarkerCmdTest : public ParameterEditTest
{
protected:
    RemoveMarkerCmdTest()
    {
        markers->addKeyFrame(0, "Intro");
        markers->addKeyFrame(40, "Demo");
    }

    boost::shared_ptr<Command> removeMarker(long long time) const
    {
        return RemoveMarkerCmd::create(timeline(), time);
    }

    boost::shared_ptr<LeftParameter<std::string>> const markers = timeline()->markerParam();
};

TEST_F(RemoveMarkerCmdTest, TakesTheMarkerAway)
{
    EXPECT_TRUE(editsKeys(removeMarker(40), *markers, "0=Intro"));
}

TEST_F(RemoveMarkerCmdTest, UndoBringsBackTheVeryKeyFrame)
{
    boost::shared_ptr<KeyFrame<std::string>> const marker = markers->keyframeAtTime(40);
    project->execute(removeMarker(40));
    project->undo();
    EXPECT_EQ(marker, markers->keyframeAtTime(40));
}

TEST_F(RemoveMarkerCmdTest, ATimeWithoutMarkerIsRefused)
{
    EXPECT_TRUE(
        refuses<KeyFrameException>(removeMarker(41), "Invalid KeyFrame operation at time 41"));
}

TEST_F(RemoveMarkerCmdTest, AnEmptyTimelineIsRefused)
{
    EXPECT_TRUE(
        refuses<TarnMediaLibException>(RemoveMarkerCmd::create(boost::shared_ptr<Timeline>(), 40),
                                       "attempting to edit an empty pointer"));
}

TEST_F(RemoveMarkerCmdTest, TwoOfThemGroup)
{
    drag(removeMarker(0), removeMarker(40));
    EXPECT_EQ(1u, numSteps());
    EXPECT_EQ("", line(*markers));
    project->undo();
    EXPECT_EQ("0=Intro 40=Demo", line(*markers));
}

TEST_F(RemoveMarkerCmdTest, IsWrittenUnderItsOwnName)
{
    boost::shared_ptr<Command> const command = removeMarker(40);
    EXPECT_EQ("<RemoveMarkerCmd id=\"" + std::to_string(command->xmlIdent()) + "\" parameter=\"" +
                  std::to_string(markers->xmlIdent()) + "\" time=\"40\" >\n</RemoveMarkerCmd>\n",
              command->description());
}

TEST_F(RemoveMarkerCmdTest, AWrappingHostSeesItDoneUndoneAndRedone)
{
    std::string log;
    WatchingHandler const watch(
        *project, [&log](auto const& primitive, auto const&) { log += primitive + ' '; });
    project->execute(removeMarker(40));
    project->undo();
    project->redo();
    EXPECT_EQ("removeParameterKeyFrame addParameterKeyFrame removeParameterKeyFrame ", log);
}

TEST_F(RemoveMarkerCmdTest, ACloneRemovesOnItsOwn)
{
    boost::shared_ptr<Command> const copy(removeMarker(40)->clone());
    EXPECT_TRUE(editsKeys(copy, *markers, "0=Intro"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
