#include "commands/MoveKeyframesCmd.h"

#include "commands/CommandPair.h"
#include "commands/NullCmd.h"
#include "support/ParameterEditTest.h"
#include "support/WatchingHandler.h"

#include <limits>

namespace tarn {
namespace test {
namespace {

long long const k_max = std::numeric_limits<long long>::max();
long long const k_min = std::numeric_limits<long long>::min();

class MoveKeyframesCmdTest : public ParameterEditTest
{
protected:
    MoveKeyframesCmdTest() { opacity->addKeyFrame(20, 0.4); }

    boost::shared_ptr<Command> moveKeys(long long delta) const
    {
        return MoveKeyframesCmd::create(opacity, delta);
    }
};

TEST_F(MoveKeyframesCmdTest, ShiftsAllKeyFrames)
{
    EXPECT_TRUE(editsKeys(moveKeys(30), *opacity, "30=1 50=0.4"));
}

TEST_F(MoveKeyframesCmdTest, OldAndNewTimesMayOverlap)
{
    EXPECT_TRUE(editsKeys(moveKeys(-20), *opacity, "-20=1 0=0.4"));
}

TEST_F(MoveKeyframesCmdTest, TheInterpolatersStayWhereTheyAre)
{
    project->execute(moveKeys(30));
    EXPECT_EQ("0=linr", line(*opacity->interpolaterParam()));
}

TEST_F(MoveKeyframesCmdTest, AParameterWithoutKeyFramesHasNoneToShift)
{
    boost::shared_ptr<LeftParameter<std::string>> const text(
        new LeftParameter<std::string>(lock(), "text"));
    EXPECT_TRUE(editsKeys(MoveKeyframesCmd::create(text, 30), *text, ""));
}

TEST_F(MoveKeyframesCmdTest, ATimeBeyondTheRangeIsRefused)
{
    // 20 + max leaves 64 bits, 0 + max does not: none of the two may be shifted.
    EXPECT_TRUE(
        refuses<KeyFrameException>(moveKeys(k_max), "Invalid KeyFrame operation at time 20"));
    EXPECT_EQ("0=1 20=0.4", line(*opacity));
}

TEST_F(MoveKeyframesCmdTest, TheSmallestDeltaCanBeUndone)
{
    // 0 + min and 20 + min, where min is -9223372036854775808.
    EXPECT_TRUE(
        editsKeys(moveKeys(k_min), *opacity, "-9223372036854775808=1 -9223372036854775788=0.4"));
}

TEST_F(MoveKeyframesCmdTest, AnEmptyParameterIsRefused)
{
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        MoveKeyframesCmd::create(boost::shared_ptr<ParameterInterface>(), 30),
        "attempting to edit an empty pointer"));
}

TEST_F(MoveKeyframesCmdTest, TwoOnOneParameterAddUp)
{
    drag(moveKeys(30), moveKeys(-10));
    EXPECT_EQ("MoveKeyframesCmd", project->commandState().undoTop()->description().substr(1, 16));
    EXPECT_EQ("20=1 40=0.4", line(*opacity));
    project->undo();
    EXPECT_EQ("0=1 20=0.4", line(*opacity));
    project->redo();
    EXPECT_EQ("20=1 40=0.4", line(*opacity));
}

TEST_F(MoveKeyframesCmdTest, TwoOfDifferentParametersGroup)
{
    boost::shared_ptr<InterpolatingParam<double>> const other(opacity->clone());
    boost::shared_ptr<Command> const both =
        moveKeys(30)->combine(MoveKeyframesCmd::create(other, 30));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

TEST_F(MoveKeyframesCmdTest, TwoWhoseSumIsNoNumberGroup)
{
    boost::shared_ptr<Command> const both = moveKeys(k_max)->combine(moveKeys(1));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

TEST_F(MoveKeyframesCmdTest, ObserversHearOfItOnce)
{
    CountingObserver observer;
    opacity->attach(&observer);
    project->execute(moveKeys(30));
    EXPECT_EQ(1, observer.calls());
    opacity->detach(&observer);
}

TEST_F(MoveKeyframesCmdTest, IsWrittenWithParameterAndDelta)
{
    boost::shared_ptr<Command> const command = moveKeys(-30);
    EXPECT_EQ("<MoveKeyframesCmd id=\"" + std::to_string(command->xmlIdent()) + "\" parameter=\"" +
                  std::to_string(opacity->xmlIdent()) + "\" delta=\"-30\" >\n</MoveKeyframesCmd>\n",
              command->description());
}

TEST_F(MoveKeyframesCmdTest, AWrappingHostSeesItDoneUndoneAndRedone)
{
    std::string log;
    WatchingHandler const watch(
        *project, [&log](auto const& primitive, auto const&) { log += primitive + ' '; });
    project->execute(moveKeys(30));
    project->undo();
    project->redo();
    EXPECT_EQ("moveParameterKeyframes moveParameterKeyframes moveParameterKeyframes ", log);
}

TEST_F(MoveKeyframesCmdTest, ACloneShiftsOnItsOwn)
{
    boost::shared_ptr<Command> const copy(moveKeys(5)->clone());
    EXPECT_TRUE(editsKeys(copy, *opacity, "5=1 25=0.4"));
}

TEST_F(MoveKeyframesCmdTest, WithACommandOfAnotherKindItGroups)
{
    boost::shared_ptr<Command> const both = moveKeys(30)->combine(NullCmd::create());
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

}  // namespace
}  // namespace test
}  // namespace tarn
