#include "commands/NewAudioTrackCmd.h"

#include "exceptions/AddRemoveException.h"
#include "exceptions/ValueException.h"
#include "support/Address.h"
#include "support/ModelTest.h"
#include "support/Xml.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"

namespace tarn {
namespace test {
namespace {

using NewAudioTrackCmdTest = ModelTest;

TEST_F(NewAudioTrackCmdTest, MakesATrackAtTheIndexAskedFor)
{
    given("A1: aa / A2: bb");
    boost::shared_ptr<NewAudioTrackCmd> const command = NewAudioTrackCmd::create(1);
    EXPECT_TRUE(edits(command, "A1: aa / A3: bb"));
    boost::shared_ptr<AudioTrack> const made = command->track();
    EXPECT_EQ(track("A2"), made);
}

TEST_F(NewAudioTrackCmdTest, MinusOneAppends)
{
    given("A1: aa");
    boost::shared_ptr<NewAudioTrackCmd> const command = NewAudioTrackCmd::create(-1);
    EXPECT_TRUE(edits(command, "A1: aa"));
    EXPECT_EQ(track("A2"), command->track());
}

TEST_F(NewAudioTrackCmdTest, RedoPutsTheSameTrackWhereUndoTookItFrom)
{
    given("A1: aa");
    boost::shared_ptr<NewAudioTrackCmd> const command = NewAudioTrackCmd::create(-1);
    project->execute(command);
    boost::shared_ptr<Track> const made = command->track();
    audioMixer()->swapTrackOrder(made, track("A1"));
    project->undo();
    project->redo();
    EXPECT_EQ(made, track("A1"));
}

TEST_F(NewAudioTrackCmdTest, GoesBackToTheMixerThatIsThereByThen)
{
    given("A1: aa");
    boost::shared_ptr<NewAudioTrackCmd> const command = NewAudioTrackCmd::create(0);
    project->execute(command);
    project->undo();
    timeline()->removeAudioMixer();
    timeline()->newAudioMixer(44100, 16, 2);
    project->redo();
    EXPECT_EQ(command->track(), track("A1"));
    EXPECT_EQ(1u, audioMixer()->numTracks());
}

TEST_F(NewAudioTrackCmdTest, AnIndexThatTheMixerDoesNotHaveIsRefused)
{
    given("A1: aa");
    EXPECT_TRUE(refuses<ValueException<int>>(NewAudioTrackCmd::create(2), "invalid index"));
    EXPECT_TRUE(refuses<ValueException<int>>(NewAudioTrackCmd::create(-2), "invalid index"));
}

TEST_F(NewAudioTrackCmdTest, IsRefusedWithoutAMixer)
{
    EXPECT_TRUE(refuses<AddRemoveException>(
        NewAudioTrackCmd::create(-1),
        "Can't create a new audio track if we don't have a audio mixer to put it on"));
}

TEST_F(NewAudioTrackCmdTest, AlwaysHasSomethingToDo)
{
    given("A1: aa");
    boost::shared_ptr<Command> const command = NewAudioTrackCmd::create(0);
    EXPECT_TRUE(command->execute(project.get()));
    EXPECT_TRUE(command->unexecute(project.get()));
    EXPECT_TRUE(command->reexecute(project.get()));
}

TEST_F(NewAudioTrackCmdTest, PrintsItsTrackAndWhatUndoTookOut)
{
    given("A1: aa");
    boost::shared_ptr<NewAudioTrackCmd> const command = NewAudioTrackCmd::create(1);
    project->execute(command);
    std::string const made = address(command->track());
    project->undo();
    EXPECT_EQ("<NewAudioTrackCmd id=\"#\" audioTrack=\"" + made + "\" removedATrack=\"" + made +
                  "\" removedATrackIndex=\"1\" >\n</NewAudioTrackCmd>\n",
              xmlOf(*command));
}

TEST_F(NewAudioTrackCmdTest, PrintsNoTracksUntilItRuns)
{
    EXPECT_EQ(0u, xmlOf(*NewAudioTrackCmd::create(1))
                      .find("<NewAudioTrackCmd id=\"#\" audioTrack=\"0\" removedATrack=\"0\" "
                            "removedATrackIndex=\""));
}

TEST_F(NewAudioTrackCmdTest, ACloneMakesATrackOfItsOwn)
{
    given("A1: aa");
    boost::shared_ptr<NewAudioTrackCmd> const original = NewAudioTrackCmd::create(0);
    boost::shared_ptr<NewAudioTrackCmd> const copy(original->clone());
    EXPECT_TRUE(edits(copy, "A2: aa"));
    EXPECT_EQ(track("A1"), copy->track());
    EXPECT_FALSE(original->track());
}

}  // namespace
}  // namespace test
}  // namespace tarn
