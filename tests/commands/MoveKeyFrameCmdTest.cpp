#include "commands/MoveKeyFrameCmd.h"

#include "commands/CommandPair.h"
#include "commands/NullCmd.h"
#include "support/ParameterEditTest.h"
#include "support/WatchingHandler.h"

namespace tarn {
namespace test {
namespace {

class MoveKeyFrameCmdTest : public ParameterEditTest
{
protected:
    MoveKeyFrameCmdTest() { opacity->addKeyFrame(20, 0.4); }

    boost::shared_ptr<Command> moveKey(long long from, long long to) const
    {
        return MoveKeyFrameCmd::create(opacity, from, to);
    }
};

TEST_F(MoveKeyFrameCmdTest, MovesOneKeyFrame)
{
    EXPECT_TRUE(editsKeys(moveKey(20, 40), *opacity, "0=1 40=0.4"));
}

TEST_F(MoveKeyFrameCmdTest, MayPassAnother)
{
    EXPECT_TRUE(editsKeys(moveKey(20, -5), *opacity, "-5=0.4 0=1"));
}

TEST_F(MoveKeyFrameCmdTest, TheKeyFrameRemainsTheSameObject)
{
    boost::shared_ptr<KeyFrame<double>> const frame = opacity->keyframeAtTime(20);
    project->execute(moveKey(20, 40));
    EXPECT_EQ(frame, opacity->keyframeAtTime(40));
    project->undo();
    EXPECT_EQ(frame, opacity->keyframeAtTime(20));
    EXPECT_EQ(20, frame->time());
}

TEST_F(MoveKeyFrameCmdTest, ATimeWithoutKeyFrameIsRefused)
{
    EXPECT_TRUE(
        refuses<KeyFrameException>(moveKey(21, 40), "Invalid KeyFrame operation at time 21"));
}

TEST_F(MoveKeyFrameCmdTest, ATakenTimeIsRefused)
{
    EXPECT_TRUE(refuses<KeyFrameException>(moveKey(20, 0), "Invalid KeyFrame operation at time 0"));
}

TEST_F(MoveKeyFrameCmdTest, AMoveOntoItselfIsRefused)
{
    EXPECT_TRUE(
        refuses<KeyFrameException>(moveKey(20, 20), "Invalid KeyFrame operation at time 20"));
}

TEST_F(MoveKeyFrameCmdTest, AnEmptyParameterIsRefused)
{
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        MoveKeyFrameCmd::create(boost::shared_ptr<ParameterInterface>(), 20, 40),
        "attempting to edit an empty pointer"));
}

TEST_F(MoveKeyFrameCmdTest, TheSecondGoesOnWhereTheFirstEnds)
{
    drag(moveKey(20, 40), moveKey(40, 55));
    EXPECT_EQ("0=1 55=0.4", line(*opacity));
    EXPECT_EQ("MoveKeyFrameCmd", project->commandState().undoTop()->description().substr(1, 15));
    project->undo();
    EXPECT_EQ("0=1 20=0.4", line(*opacity));
    project->redo();
    EXPECT_EQ("0=1 55=0.4", line(*opacity));
}

TEST_F(MoveKeyFrameCmdTest, ADragBackToItsStartUndoesAndRedoes)
{
    drag(moveKey(20, 40), moveKey(40, 20));
    EXPECT_EQ(1u, numSteps());
    EXPECT_EQ("0=1 20=0.4", line(*opacity));
    project->undo();
    EXPECT_EQ("0=1 20=0.4", line(*opacity));
    project->redo();
    EXPECT_EQ("0=1 20=0.4", line(*opacity));
}

TEST_F(MoveKeyFrameCmdTest, AStepOfADragThatIsRefusedLeavesTheOthers)
{
    project->execute(moveKey(20, 40));
    project->combineNextCommand();
    EXPECT_TRUE(refuses<KeyFrameException>(moveKey(40, 0)));
    project->execute(moveKey(40, 50));
    project->undo();
    EXPECT_EQ("0=1 20=0.4", line(*opacity));
}

TEST_F(MoveKeyFrameCmdTest, MovesOfTwoKeyFramesGroup)
{
    boost::shared_ptr<Command> const both = moveKey(20, 40)->combine(moveKey(0, 20));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
    EXPECT_TRUE(editsKeys(both, *opacity, "20=1 40=0.4"));
}

TEST_F(MoveKeyFrameCmdTest, MovesInTwoParametersGroup)
{
    boost::shared_ptr<InterpolatingParam<double>> const other(opacity->clone());
    boost::shared_ptr<Command> const both =
        moveKey(20, 40)->combine(MoveKeyFrameCmd::create(other, 40, 50));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

TEST_F(MoveKeyFrameCmdTest, IsWrittenWithParameterAndBothTimes)
{
    boost::shared_ptr<Command> const command = moveKey(20, 40);
    EXPECT_EQ("<MoveKeyFrameCmd id=\"" + std::to_string(command->xmlIdent()) + "\" parameter=\"" +
                  std::to_string(opacity->xmlIdent()) +
                  "\" from=\"20\" to=\"40\" >\n</MoveKeyFrameCmd>\n",
              command->description());
}

TEST_F(MoveKeyFrameCmdTest, AWrappingHostSeesItDoneUndoneAndRedone)
{
    std::string log;
    WatchingHandler const watch(
        *project, [&log](auto const& primitive, auto const&) { log += primitive + ' '; });
    project->execute(moveKey(20, 40));
    project->undo();
    project->redo();
    EXPECT_EQ("moveParameterKeyFrame moveParameterKeyFrame moveParameterKeyFrame ", log);
}

TEST_F(MoveKeyFrameCmdTest, ACloneMovesOnItsOwn)
{
    boost::shared_ptr<Command> const copy(moveKey(20, 40)->clone());
    EXPECT_TRUE(editsKeys(copy, *opacity, "0=1 40=0.4"));
}

TEST_F(MoveKeyFrameCmdTest, WithACommandOfAnotherKindItGroups)
{
    boost::shared_ptr<Command> const both = moveKey(20, 40)->combine(NullCmd::create());
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

}  // namespace
}  // namespace test
}  // namespace tarn
