#include "commands/AddKeyFrameCmd.h"

#include "commands/CommandPair.h"
#include "support/ParameterEditTest.h"
#include "support/WatchingHandler.h"
#include "timeline/IMFile.h"

namespace tarn {
namespace test {
namespace {

class AddKeyFrameCmdTest : public ParameterEditTest
{
protected:
    boost::shared_ptr<Command> addKey(long long time, double value) const
    {
        return AddKeyFrameCmd<double>::create(opacity, time, value);
    }
};

TEST_F(AddKeyFrameCmdTest, AddsAKeyFrameOnTheParametersClock)
{
    EXPECT_TRUE(editsKeys(addKey(530, 0.4), *opacity, "0=1 530=0.4"));
}

TEST_F(AddKeyFrameCmdTest, ANegativeTimeComesFirst)
{
    EXPECT_TRUE(editsKeys(addKey(-30, 0.25), *opacity, "-30=0.25 0=1"));
}

TEST_F(AddKeyFrameCmdTest, RedoBringsBackTheVeryKeyFrame)
{
    project->execute(addKey(30, 0.4));
    boost::shared_ptr<KeyFrame<double>> const added = opacity->keyframeAtTime(30);
    project->undo();
    project->redo();
    EXPECT_EQ(added, opacity->keyframeAtTime(30));
}

TEST_F(AddKeyFrameCmdTest, UndoLeavesTheOtherKeyFramesAlone)
{
    boost::shared_ptr<KeyFrame<double>> const first = opacity->keyframeAtTime(0);
    project->execute(addKey(30, 0.4));
    project->undo();
    EXPECT_EQ(first, opacity->keyframeAtTime(0));
}

TEST_F(AddKeyFrameCmdTest, ATakenTimeIsRefused)
{
    EXPECT_TRUE(refuses<KeyFrameException>(addKey(0, 0.4), "Invalid KeyFrame operation at time 0"));
}

TEST_F(AddKeyFrameCmdTest, AnEmptyParameterIsRefused)
{
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        AddKeyFrameCmd<double>::create(boost::shared_ptr<Parameter<double>>(), 0, 1),
        "attempting to edit an empty pointer"));
}

TEST_F(AddKeyFrameCmdTest, ObserversHearOfItAndOfItsUndo)
{
    CountingObserver observer;
    opacity->attach(&observer);
    project->execute(addKey(30, 0.4));
    EXPECT_EQ(1, observer.calls());
    project->undo();
    EXPECT_EQ(2, observer.calls());
    opacity->detach(&observer);
}

TEST_F(AddKeyFrameCmdTest, TwoOfThemGroup)
{
    drag(addKey(30, 0.4), addKey(60, 0.6));
    EXPECT_EQ(1u, numSteps());
    EXPECT_EQ("0=1 30=0.4 60=0.6", line(*opacity));
    project->undo();
    EXPECT_EQ("0=1", line(*opacity));
}

TEST_F(AddKeyFrameCmdTest, AFailingSecondOfAGroupTakesBackTheFirst)
{
    EXPECT_TRUE(refuses<KeyFrameException>(CommandPair::create(addKey(30, 0.4), addKey(30, 0.6)),
                                           "Invalid KeyFrame operation at time 30"));
}

TEST_F(AddKeyFrameCmdTest, AddsToEveryTypeOfParameter)
{
    boost::shared_ptr<LeftParameter<Color>> const colors(new LeftParameter<Color>(lock(), "c"));
    boost::shared_ptr<InterpolatingParam<Point>> const points(
        new InterpolatingParam<Point>(lock(), "p"));
    boost::shared_ptr<LeftParameter<boost::shared_ptr<IMFile>>> const stills(
        new LeftParameter<boost::shared_ptr<IMFile>>(lock(), "s"));
    project->execute(AddKeyFrameCmd<Color>::create(colors, 3, Color(1, 0, 0, 1)));
    project->execute(AddKeyFrameCmd<Point>::create(points, 4, Point(1, 2, 3)));
    project->execute(
        AddKeyFrameCmd<boost::shared_ptr<IMFile>>::create(stills, 5, boost::shared_ptr<IMFile>()));
    EXPECT_EQ(Color(1, 0, 0, 1), colors->valueAtTime(3));
    EXPECT_EQ(Point(1, 2, 3), points->valueAtTime(4));
    EXPECT_TRUE(stills->hasKeyFrameAtTime(5));
}

TEST_F(AddKeyFrameCmdTest, IsWrittenWithParameterTimeAndValue)
{
    boost::shared_ptr<Command> const command = addKey(30, 0.4);
    EXPECT_EQ("<AddKeyFrameCmd id=\"" + std::to_string(command->xmlIdent()) + "\" parameter=\"" +
                  std::to_string(opacity->xmlIdent()) +
                  "\" time=\"30\" value=\"0.4\" >\n</AddKeyFrameCmd>\n",
              command->description());
}

TEST_F(AddKeyFrameCmdTest, AWrappingHostSeesItDoneUndoneAndRedone)
{
    std::string log;
    WatchingHandler const watch(
        *project, [&log](auto const& primitive, auto const&) { log += primitive + ' '; });
    project->execute(addKey(30, 0.4));
    project->undo();
    project->redo();
    EXPECT_EQ("addParameterKeyFrame removeParameterKeyFrame addParameterKeyFrame ", log);
}

TEST_F(AddKeyFrameCmdTest, ACloneAddsOnItsOwn)
{
    boost::shared_ptr<Command> const original = addKey(30, 0.4);
    boost::shared_ptr<Command> const copy(original->clone());
    EXPECT_TRUE(editsKeys(copy, *opacity, "0=1 30=0.4"));
    EXPECT_TRUE(refuses<KeyFrameException>(original));
}

}  // namespace
}  // namespace test
}  // namespace tarn
