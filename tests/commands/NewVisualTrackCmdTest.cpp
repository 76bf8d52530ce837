#include "commands/NewVisualTrackCmd.h"

#include "exceptions/AddRemoveException.h"
#include "exceptions/ValueException.h"
#include "support/Address.h"
#include "support/ModelTest.h"
#include "support/Xml.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

namespace tarn {
namespace test {
namespace {

using NewVisualTrackCmdTest = ModelTest;

TEST_F(NewVisualTrackCmdTest, MakesATrackAtTheIndexAskedFor)
{
    given("V1: aa / V2: bb");
    boost::shared_ptr<NewVisualTrackCmd> const command = NewVisualTrackCmd::create(1);
    EXPECT_TRUE(edits(command, "V1: aa / V3: bb"));
    boost::shared_ptr<VisualTrack> const made = command->track();
    EXPECT_EQ(track("V2"), made);
}

TEST_F(NewVisualTrackCmdTest, MinusOneAppends)
{
    given("V1: aa");
    boost::shared_ptr<NewVisualTrackCmd> const command = NewVisualTrackCmd::create(-1);
    EXPECT_TRUE(edits(command, "V1: aa"));
    EXPECT_EQ(track("V2"), command->track());
}

TEST_F(NewVisualTrackCmdTest, RedoPutsTheSameTrackWhereUndoTookItFrom)
{
    given("V1: aa");
    boost::shared_ptr<NewVisualTrackCmd> const command = NewVisualTrackCmd::create(-1);
    project->execute(command);
    boost::shared_ptr<Track> const made = command->track();
    visualMixer()->swapTrackOrder(made, track("V1"));
    project->undo();
    project->redo();
    EXPECT_EQ(made, track("V1"));
}

TEST_F(NewVisualTrackCmdTest, GoesBackToTheMixerThatIsThereByThen)
{
    given("V1: aa");
    boost::shared_ptr<NewVisualTrackCmd> const command = NewVisualTrackCmd::create(0);
    project->execute(command);
    project->undo();
    timeline()->removeVisualMixer();
    timeline()->newVisualMixer(640, 480);
    project->redo();
    EXPECT_EQ(command->track(), track("V1"));
    EXPECT_EQ(1u, visualMixer()->numTracks());
}

TEST_F(NewVisualTrackCmdTest, AnIndexThatTheMixerDoesNotHaveIsRefused)
{
    given("V1: aa");
    EXPECT_TRUE(refuses<ValueException<int>>(NewVisualTrackCmd::create(2), "invalid index"));
    EXPECT_TRUE(refuses<ValueException<int>>(NewVisualTrackCmd::create(-2), "invalid index"));
}

TEST_F(NewVisualTrackCmdTest, IsRefusedWithoutAMixer)
{
    EXPECT_TRUE(refuses<AddRemoveException>(
        NewVisualTrackCmd::create(-1),
        "Can't create a new audio track if we don't have a audio mixer to put it on"));
}

TEST_F(NewVisualTrackCmdTest, AlwaysHasSomethingToDo)
{
    given("V1: aa");
    boost::shared_ptr<Command> const command = NewVisualTrackCmd::create(0);
    EXPECT_TRUE(command->execute(project.get()));
    EXPECT_TRUE(command->unexecute(project.get()));
    EXPECT_TRUE(command->reexecute(project.get()));
}

TEST_F(NewVisualTrackCmdTest, PrintsItsTrackAndWhatUndoTookOut)
{
    given("V1: aa");
    boost::shared_ptr<NewVisualTrackCmd> const command = NewVisualTrackCmd::create(1);
    project->execute(command);
    std::string const made = address(command->track());
    project->undo();
    EXPECT_EQ("<NewVisualTrackCmd id=\"#\" visualTrack=\"" + made + "\" removedVTrack=\"" + made +
                  "\" removedVTrackIndex=\"1\" >\n</NewVisualTrackCmd>\n",
              xmlOf(*command));
}

TEST_F(NewVisualTrackCmdTest, PrintsNoTracksUntilItRuns)
{
    EXPECT_EQ(0u, xmlOf(*NewVisualTrackCmd::create(1))
                      .find("<NewVisualTrackCmd id=\"#\" visualTrack=\"0\" removedVTrack=\"0\" "
                            "removedVTrackIndex=\""));
}

TEST_F(NewVisualTrackCmdTest, ACloneMakesATrackOfItsOwn)
{
    given("V1: aa");
    boost::shared_ptr<NewVisualTrackCmd> const original = NewVisualTrackCmd::create(0);
    boost::shared_ptr<NewVisualTrackCmd> const copy(original->clone());
    EXPECT_TRUE(edits(copy, "V2: aa"));
    EXPECT_EQ(track("V1"), copy->track());
    EXPECT_FALSE(original->track());
}

}  // namespace
}  // namespace test
}  // namespace tarn
