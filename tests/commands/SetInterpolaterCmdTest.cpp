#include "commands/SetInterpolaterCmd.h"

#include "support/ParameterEditTest.h"
#include "support/WatchingHandler.h"

namespace tarn {
namespace test {
namespace {

using Policy = boost::shared_ptr<Interpolater<double>>;

class SetInterpolaterCmdTest : public ParameterEditTest
{
protected:
    SetInterpolaterCmdTest() { opacity->addKeyFrame(100, 0.0); }

    boost::shared_ptr<Command> setPolicy(long long time, Policy const& policy) const
    {
        return SetInterpolaterCmd<double>::create(opacity, time, policy);
    }

    Policy const left = LeftInterpolater<double>::instance();
};

TEST_F(SetInterpolaterCmdTest, AddsAKeyFrameWhereThereIsNone)
{
    EXPECT_TRUE(editsKeys(setPolicy(50, left), *opacity->interpolaterParam(), "0=linr 50=left"));
}

TEST_F(SetInterpolaterCmdTest, ChangesTheKeyFrameThatIsThere)
{
    EXPECT_TRUE(editsKeys(setPolicy(0, left), *opacity->interpolaterParam(), "0=left"));
}

TEST_F(SetInterpolaterCmdTest, TheValueIsBlendedAccordingly)
{
    project->execute(setPolicy(50, left));
    // From 1 at 0 to 0 at 100: 0.6 after 40 by the linear policy, 1 after 60 by the left one.
    EXPECT_DOUBLE_EQ(0.6, opacity->valueAtTime(40));
    EXPECT_DOUBLE_EQ(1.0, opacity->valueAtTime(60));
    project->undo();
    // 1 * (1 - 60 / 100)
    EXPECT_DOUBLE_EQ(0.4, opacity->valueAtTime(60));
}

TEST_F(SetInterpolaterCmdTest, RedoBringsBackTheVeryKeyFrame)
{
    project->execute(setPolicy(50, left));
    boost::shared_ptr<KeyFrame<Policy>> const frame =
        opacity->interpolaterParam()->keyframeAtTime(50);
    project->undo();
    project->redo();
    EXPECT_EQ(frame, opacity->interpolaterParam()->keyframeAtTime(50));
}

TEST_F(SetInterpolaterCmdTest, AnEmptyInterpolaterBlendsAsTheLeftOne)
{
    EXPECT_TRUE(editsKeys(setPolicy(0, Policy()), *opacity->interpolaterParam(), "0="));
    EXPECT_DOUBLE_EQ(1.0, opacity->valueAtTime(60));
}

TEST_F(SetInterpolaterCmdTest, AnEmptyParameterIsRefused)
{
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        SetInterpolaterCmd<double>::create(boost::shared_ptr<Parameter<double>>(), 0, left),
        "attempting to edit an empty pointer"));
}

TEST_F(SetInterpolaterCmdTest, TwoOfThemGroup)
{
    drag(setPolicy(0, left), setPolicy(50, LinearInterpolater<double>::instance()));
    EXPECT_EQ(1u, numSteps());
    EXPECT_EQ("0=left 50=linr", line(*opacity->interpolaterParam()));
    project->undo();
    EXPECT_EQ("0=linr", line(*opacity->interpolaterParam()));
}

TEST_F(SetInterpolaterCmdTest, IsWrittenWithParameterTimeAndInterpolater)
{
    boost::shared_ptr<Command> const command = setPolicy(50, left);
    EXPECT_EQ("<SetInterpolaterCmd id=\"" + std::to_string(command->xmlIdent()) +
                  "\" parameter=\"" + std::to_string(opacity->xmlIdent()) +
                  "\" time=\"50\" interpolater=\"left\" >\n</SetInterpolaterCmd>\n",
              command->description());
}

TEST_F(SetInterpolaterCmdTest, AnEmptyInterpolaterIsWrittenAsEmptyText)
{
    boost::shared_ptr<Command> const command =
        SetInterpolaterCmd<double>::create(opacity, 30, boost::shared_ptr<Interpolater<double>>());
    EXPECT_NE(std::string::npos, command->description().find(" interpolater=\"\" >"));
}

TEST_F(SetInterpolaterCmdTest, AWrappingHostSeesItDoneUndoneAndRedone)
{
    std::string log;
    WatchingHandler const watch(
        *project, [&log](auto const& primitive, auto const&) { log += primitive + ' '; });
    project->execute(setPolicy(50, left));
    project->undo();
    project->redo();
    EXPECT_EQ("addParameterKeyFrame removeParameterKeyFrame addParameterKeyFrame ", log);
}

TEST_F(SetInterpolaterCmdTest, ACloneOfAnExecutedOneHasRunNothing)
{
    boost::shared_ptr<Command> const original = setPolicy(50, left);
    project->execute(original);
    boost::shared_ptr<Command> const copy(original->clone());
    project->undo();
    EXPECT_TRUE(editsKeys(copy, *opacity->interpolaterParam(), "0=linr 50=left"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
