#include "commands/NewTrackCmd.h"

#include "exceptions/AddRemoveException.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"
#include "support/ModelTest.h"
#include "support/Xml.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

namespace tarn {
namespace test {
namespace {

using AnyTrackCmd = NewTrackCmd<Mixer, Track>;

class NewTrackCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<Mixer const> m_noMixer;
};

TEST_F(NewTrackCmdTest, MakesAVisualTrackOnTheVisualMixer)
{
    given("V1: aa / V2: bb");
    boost::shared_ptr<AnyTrackCmd> const command = AnyTrackCmd::create(visualMixer(), 1);
    EXPECT_TRUE(edits(command, "V1: aa / V3: bb"));
    EXPECT_EQ(track("V2"), command->track());
    EXPECT_TRUE(boost::dynamic_pointer_cast<VisualTrack>(command->track()));
}

TEST_F(NewTrackCmdTest, MakesAnAudioTrackOnTheAudioMixer)
{
    given("A1: aa / A2: bb");
    boost::shared_ptr<AnyTrackCmd> const command = AnyTrackCmd::create(audioMixer(), 0);
    EXPECT_TRUE(edits(command, "A2: aa / A3: bb"));
    EXPECT_EQ(track("A1"), command->track());
    EXPECT_TRUE(boost::dynamic_pointer_cast<AudioTrack>(command->track()));
}

TEST_F(NewTrackCmdTest, MinusOneAppends)
{
    given("V1: aa / V2: bb");
    boost::shared_ptr<AnyTrackCmd> const command = AnyTrackCmd::create(visualMixer(), -1);
    EXPECT_TRUE(edits(command, "V1: aa / V2: bb"));
    EXPECT_EQ(track("V3"), command->track());
}

TEST_F(NewTrackCmdTest, TheTypedFormsGiveTypedTracks)
{
    given("A1: aa / V1: bb");
    auto const picture = NewTrackCmd<VisualMixer, VisualTrack>::create(visualMixer(), -1);
    auto const sound = NewTrackCmd<AudioMixer, AudioTrack>::create(audioMixer(), -1);
    EXPECT_TRUE(edits(picture));
    EXPECT_TRUE(edits(sound));
    boost::shared_ptr<VisualTrack> const madePicture = picture->track();
    boost::shared_ptr<AudioTrack> const madeSound = sound->track();
    EXPECT_EQ(track("V2"), madePicture);
    EXPECT_EQ(track("A2"), madeSound);
}

TEST_F(NewTrackCmdTest, RedoPutsTheSameTrackWhereUndoTookItFrom)
{
    given("V1: aa");
    boost::shared_ptr<AnyTrackCmd> const command = AnyTrackCmd::create(visualMixer(), -1);
    project->execute(command);
    boost::shared_ptr<Track> const made = command->track();
    visualMixer()->swapTrackOrder(made, track("V1"));
    project->undo();
    EXPECT_EQ("V1: aa", strip());
    project->redo();
    EXPECT_EQ(made, track("V1"));
}

TEST_F(NewTrackCmdTest, AnIndexThatTheMixerDoesNotHaveIsRefused)
{
    given("V1: aa");
    EXPECT_TRUE(
        refuses<ValueException<int>>(AnyTrackCmd::create(visualMixer(), 2), "invalid index"));
    EXPECT_TRUE(
        refuses<ValueException<int>>(AnyTrackCmd::create(visualMixer(), -2), "invalid index"));
}

TEST_F(NewTrackCmdTest, AForeignMixerIsRefused)
{
    given("A1: aa / V1: bb");
    boost::shared_ptr<Mixer const> const foreign(new VisualMixer(640, 480, lock()));
    EXPECT_TRUE(refuses<TarnMediaLibException>(AnyTrackCmd::create(foreign, -1),
                                               "mixer doesn't belong to project"));
    EXPECT_EQ(0u, foreign->numTracks());
}

TEST_F(NewTrackCmdTest, NoMixerIsAForeignMixerWhenBothSlotsAreFilled)
{
    given("A1: aa / V1: bb");
    EXPECT_TRUE(refuses<TarnMediaLibException>(AnyTrackCmd::create(m_noMixer, -1),
                                               "mixer doesn't belong to project"));
}

TEST_F(NewTrackCmdTest, NoMixerIsTheMixerOfAnEmptySlot)
{
    char const* const message =
        "Can't create a new audio track if we don't have a audio mixer to put it on";
    EXPECT_TRUE(refuses<AddRemoveException>(AnyTrackCmd::create(m_noMixer, -1), message));
    project->newAudioMixer(44100, 16, 2);
    EXPECT_TRUE(refuses<AddRemoveException>(AnyTrackCmd::create(m_noMixer, -1), message));
}

TEST_F(NewTrackCmdTest, AlwaysHasSomethingToDo)
{
    given("V1: aa");
    boost::shared_ptr<Command> const command = AnyTrackCmd::create(visualMixer(), 0);
    EXPECT_TRUE(command->execute(project.get()));
    EXPECT_TRUE(command->unexecute(project.get()));
    EXPECT_TRUE(command->reexecute(project.get()));
}

TEST_F(NewTrackCmdTest, PrintsItsNameAlone)
{
    given("V1: aa");
    boost::shared_ptr<AnyTrackCmd> const command = AnyTrackCmd::create(visualMixer(), 0);
    EXPECT_FALSE(command->track());
    EXPECT_EQ("<NewTrackCmd id=\"#\"  >\n</NewTrackCmd>\n", xmlOf(*command));
    project->execute(command);
    EXPECT_EQ("<NewTrackCmd id=\"#\"  >\n</NewTrackCmd>\n", xmlOf(*command));
}

TEST_F(NewTrackCmdTest, ACloneMakesATrackOfItsOwn)
{
    given("V1: aa");
    boost::shared_ptr<AnyTrackCmd> const original = AnyTrackCmd::create(visualMixer(), 0);
    boost::shared_ptr<Command> const clone(original->clone());
    EXPECT_TRUE(edits(clone, "V2: aa"));
    EXPECT_FALSE(original->track());
}

}  // namespace
}  // namespace test
}  // namespace tarn
