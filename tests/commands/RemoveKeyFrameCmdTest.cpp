#include "commands/RemoveKeyFrameCmd.h"

#include "support/ParameterEditTest.h"
#include "support/WatchingHandler.h"

namespace tarn {
namespace test {
namespace {

class RemoveKeyFrameCmdTest : public ParameterEditTest
{
protected:
    RemoveKeyFrameCmdTest()
    {
        opacity->addKeyFrame(30, 0.4);
        opacity->addKeyFrame(60, 0.6);
    }

    boost::shared_ptr<Command> removeKey(long long time) const
    {
        return RemoveKeyFrameCmd<double>::create(opacity, time);
    }
};

TEST_F(RemoveKeyFrameCmdTest, RemovesTheKeyFrame)
{
    EXPECT_TRUE(editsKeys(removeKey(30), *opacity, "0=1 60=0.6"));
}

TEST_F(RemoveKeyFrameCmdTest, UndoBringsBackTheVeryKeyFrame)
{
    boost::shared_ptr<KeyFrame<double>> const frame = opacity->keyframeAtTime(30);
    project->execute(removeKey(30));
    project->undo();
    EXPECT_EQ(frame, opacity->keyframeAtTime(30));
}

TEST_F(RemoveKeyFrameCmdTest, TheLastOneMayGoToo)
{
    boost::shared_ptr<LeftParameter<std::string>> const text(
        new LeftParameter<std::string>(lock(), "text"));
    text->addKeyFrame(5, "five");
    EXPECT_TRUE(editsKeys(RemoveKeyFrameCmd<std::string>::create(text, 5), *text, ""));
}

TEST_F(RemoveKeyFrameCmdTest, ATimeWithoutKeyFrameIsRefused)
{
    EXPECT_TRUE(refuses<KeyFrameException>(removeKey(31), "Invalid KeyFrame operation at time 31"));
}

TEST_F(RemoveKeyFrameCmdTest, AnEmptyParameterIsRefused)
{
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        RemoveKeyFrameCmd<double>::create(boost::shared_ptr<Parameter<double>>(), 0),
        "attempting to edit an empty pointer"));
}

TEST_F(RemoveKeyFrameCmdTest, TwoOfThemGroup)
{
    drag(removeKey(30), removeKey(60));
    EXPECT_EQ(1u, numSteps());
    EXPECT_EQ("0=1", line(*opacity));
    project->undo();
    EXPECT_EQ("0=1 30=0.4 60=0.6", line(*opacity));
}

TEST_F(RemoveKeyFrameCmdTest, IsWrittenWithParameterAndTime)
{
    boost::shared_ptr<Command> const command = removeKey(30);
    EXPECT_EQ("<RemoveKeyFrameCmd id=\"" + std::to_string(command->xmlIdent()) + "\" parameter=\"" +
                  std::to_string(opacity->xmlIdent()) + "\" time=\"30\" >\n</RemoveKeyFrameCmd>\n",
              command->description());
}

TEST_F(RemoveKeyFrameCmdTest, AWrappingHostSeesItDoneUndoneAndRedone)
{
    std::string log;
    WatchingHandler const watch(
        *project, [&log](auto const& primitive, auto const&) { log += primitive + ' '; });
    project->execute(removeKey(30));
    project->undo();
    project->redo();
    EXPECT_EQ("removeParameterKeyFrame addParameterKeyFrame removeParameterKeyFrame ", log);
}

TEST_F(RemoveKeyFrameCmdTest, ACloneRemovesOnItsOwn)
{
    boost::shared_ptr<Command> const copy(removeKey(60)->clone());
    EXPECT_TRUE(editsKeys(copy, *opacity, "0=1 30=0.4"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
