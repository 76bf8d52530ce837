#include "commands/ChangeKeyFrameCmd.h"

#include "commands/CommandPair.h"
#include "commands/NullCmd.h"
#include "support/ParameterEditTest.h"
#include "support/WatchingHandler.h"

namespace tarn {
namespace test {
namespace {

class ChangeKeyFrameCmdTest : public ParameterEditTest
{
protected:
    boost::shared_ptr<Command> changeKey(long long time, double value) const
    {
        return ChangeKeyFrameCmd<double>::create(opacity, time, value);
    }
};

TEST_F(ChangeKeyFrameCmdTest, GivesTheKeyFrameAnotherValue)
{
    opacity->addKeyFrame(30, 0.4);
    EXPECT_TRUE(editsKeys(changeKey(30, 0.8), *opacity, "0=1 30=0.8"));
}

TEST_F(ChangeKeyFrameCmdTest, TheKeyFrameRemainsTheSameObject)
{
    boost::shared_ptr<KeyFrame<double>> const frame = opacity->keyframeAtTime(0);
    project->execute(changeKey(0, 0.8));
    EXPECT_EQ(frame, opacity->keyframeAtTime(0));
    project->undo();
    EXPECT_EQ(frame, opacity->keyframeAtTime(0));
}

TEST_F(ChangeKeyFrameCmdTest, UndoGivesBackTheLastBitOfTheOldValue)
{
    double const third = 1.0 / 3.0;
    opacity->changeKeyFrame(0, third);
    project->execute(changeKey(0, 0.8));
    project->undo();
    EXPECT_EQ(third, opacity->keyframeAtTime(0)->value());
}

TEST_F(ChangeKeyFrameCmdTest, TheSameValueIsAStepAsWell)
{
    EXPECT_TRUE(editsKeys(changeKey(0, 1.0), *opacity, "0=1"));
}

TEST_F(ChangeKeyFrameCmdTest, ATimeWithoutKeyFrameIsRefused)
{
    EXPECT_TRUE(
        refuses<KeyFrameException>(changeKey(30, 0.8), "Invalid KeyFrame operation at time 30"));
}

TEST_F(ChangeKeyFrameCmdTest, AnEmptyParameterIsRefused)
{
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        ChangeKeyFrameCmd<double>::create(boost::shared_ptr<Parameter<double>>(), 0, 1),
        "attempting to edit an empty pointer"));
}

TEST_F(ChangeKeyFrameCmdTest, TwoOnOneKeyFrameBecomeOneToTheLaterValue)
{
    drag(changeKey(0, 0.8), changeKey(0, 0.6));
    EXPECT_EQ("ChangeKeyFrameCmd", project->commandState().undoTop()->description().substr(1, 17));
    EXPECT_EQ("0=0.6", line(*opacity));
    project->undo();
    EXPECT_EQ("0=1", line(*opacity));
    project->redo();
    EXPECT_EQ("0=0.6", line(*opacity));
}

TEST_F(ChangeKeyFrameCmdTest, ADragOfThreeStepsIsOneStep)
{
    drag(changeKey(0, 0.8), changeKey(0, 0.6));
    project->combineNextCommand();
    project->execute(changeKey(0, 0.2));
    EXPECT_EQ(1u, numSteps());
    project->undo();
    EXPECT_EQ("0=1", line(*opacity));
}

TEST_F(ChangeKeyFrameCmdTest, TwoAtDifferentTimesGroup)
{
    opacity->addKeyFrame(30, 0.4);
    boost::shared_ptr<Command> const both = changeKey(0, 0.8)->combine(changeKey(30, 0.6));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
    EXPECT_TRUE(editsKeys(both, *opacity, "0=0.8 30=0.6"));
}

TEST_F(ChangeKeyFrameCmdTest, TwoOfDifferentParametersGroup)
{
    boost::shared_ptr<InterpolatingParam<double>> const other(opacity->clone());
    boost::shared_ptr<Command> const both =
        changeKey(0, 0.8)->combine(ChangeKeyFrameCmd<double>::create(other, 0, 0.6));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

TEST_F(ChangeKeyFrameCmdTest, ObserversHearOfItAndOfItsUndo)
{
    CountingObserver observer;
    opacity->attach(&observer);
    project->execute(changeKey(0, 0.4));
    EXPECT_EQ(1, observer.calls());
    project->undo();
    EXPECT_EQ(2, observer.calls());
    opacity->detach(&observer);
}

TEST_F(ChangeKeyFrameCmdTest, TextIsWrittenEscaped)
{
    boost::shared_ptr<LeftParameter<std::string>> const text(
        new LeftParameter<std::string>(lock(), "text"));
    boost::shared_ptr<Command> const command =
        ChangeKeyFrameCmd<std::string>::create(text, 7, "a < b");
    EXPECT_EQ("<ChangeKeyFrameCmd id=\"" + std::to_string(command->xmlIdent()) + "\" parameter=\"" +
                  std::to_string(text->xmlIdent()) +
                  "\" time=\"7\" value=\"a &lt; b\" >\n</ChangeKeyFrameCmd>\n",
              command->description());
}

TEST_F(ChangeKeyFrameCmdTest, AWrappingHostSeesItDoneUndoneAndRedone)
{
    std::string log;
    WatchingHandler const watch(
        *project, [&log](auto const& primitive, auto const&) { log += primitive + ' '; });
    project->execute(changeKey(0, 0.4));
    project->undo();
    project->redo();
    EXPECT_EQ("changeParameterKeyFrame changeParameterKeyFrame changeParameterKeyFrame ", log);
}

TEST_F(ChangeKeyFrameCmdTest, ACloneChangesOnItsOwn)
{
    boost::shared_ptr<Command> const copy(changeKey(0, 0.8)->clone());
    EXPECT_TRUE(editsKeys(copy, *opacity, "0=0.8"));
}

TEST_F(ChangeKeyFrameCmdTest, WithACommandOfAnotherKindItGroups)
{
    boost::shared_ptr<Command> const both = changeKey(0, 0.8)->combine(NullCmd::create());
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

}  // namespace
}  // namespace test
}  // namespace tarn
