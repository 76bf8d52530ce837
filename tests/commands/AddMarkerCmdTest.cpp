#include "commands/AddMarkerCmd.h"

#include "support/ParameterEditTest.h"
#include "support/WatchingHandler.h"

namespace tarn {
namespace test {
namespace {

class AddMarkerCmdTest : public ParameterEditTest
{
protected:
    boost::shared_ptr<Command> addMarker(long long time, std::string const& name) const
    {
        return AddMarkerCmd::create(timeline(), time, name);
    }

    boost::shared_ptr<LeftParameter<std::string>> const markers = timeline()->markerParam();
};

TEST_F(AddMarkerCmdTest, SetsTheFirstMarker)
{
    EXPECT_TRUE(editsKeys(addMarker(40, "Demo"), *markers, "40=Demo"));
}

TEST_F(AddMarkerCmdTest, SetsAMarkerBetweenOthers)
{
    markers->addKeyFrame(0, "Intro");
    markers->addKeyFrame(90, "End");
    EXPECT_TRUE(editsKeys(addMarker(40, "Demo"), *markers, "0=Intro 40=Demo 90=End"));
}

TEST_F(AddMarkerCmdTest, RedoBringsBackTheVeryKeyFrame)
{
    project->execute(addMarker(40, "Demo"));
    boost::shared_ptr<KeyFrame<std::string>> const marker = markers->keyframeAtTime(40);
    project->undo();
    project->redo();
    EXPECT_EQ(marker, markers->keyframeAtTime(40));
}

TEST_F(AddMarkerCmdTest, ATakenTimeIsRefused)
{
    markers->addKeyFrame(40, "Demo");
    EXPECT_TRUE(refuses<KeyFrameException>(addMarker(40, "Other"),
                                           "Invalid KeyFrame operation at time 40"));
}

TEST_F(AddMarkerCmdTest, AnEmptyTimelineIsRefused)
{
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        AddMarkerCmd::create(boost::shared_ptr<Timeline>(), 40, "Demo"),
        "attempting to edit an empty pointer"));
}

TEST_F(AddMarkerCmdTest, TwoOfThemGroup)
{
    drag(addMarker(40, "Demo"), addMarker(90, "End"));
    EXPECT_EQ(1u, numSteps());
    project->undo();
    EXPECT_EQ("", line(*markers));
}

TEST_F(AddMarkerCmdTest, IsWrittenUnderItsOwnName)
{
    boost::shared_ptr<Command> const command = addMarker(40, "Demo");
    EXPECT_EQ("<AddMarkerCmd id=\"" + std::to_string(command->xmlIdent()) + "\" parameter=\"" +
                  std::to_string(markers->xmlIdent()) +
                  "\" time=\"40\" value=\"Demo\" >\n</AddMarkerCmd>\n",
              command->description());
}

TEST_F(AddMarkerCmdTest, AWrappingHostSeesItDoneUndoneAndRedone)
{
    std::string log;
    WatchingHandler const watch(
        *project, [&log](auto const& primitive, auto const&) { log += primitive + ' '; });
    project->execute(addMarker(40, "Demo"));
    project->undo();
    project->redo();
    EXPECT_EQ("addParameterKeyFrame removeParameterKeyFrame addParameterKeyFrame ", log);
}

TEST_F(AddMarkerCmdTest, ACloneAddsOnItsOwn)
{
    boost::shared_ptr<Command> const copy(addMarker(40, "Demo")->clone());
    EXPECT_TRUE(editsKeys(copy, *markers, "40=Demo"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
