#include "commands/NewAudioMixerCmd.h"

#include "exceptions/AddRemoveException.h"
#include "parameters/Attribute.h"
#include "support/Address.h"
#include "support/ModelTest.h"
#include "support/Xml.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"

namespace tarn {
namespace test {
namespace {

class NewAudioMixerCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<NewAudioMixerCmd> m_command = NewAudioMixerCmd::create(44100, 16, 2);
};

TEST_F(NewAudioMixerCmdTest, GivesTheProjectAMixerOfThatFormat)
{
    EXPECT_TRUE(edits(m_command, ""));
    ASSERT_TRUE(audioMixer());
    EXPECT_EQ(m_command->mixer(), audioMixer());
    EXPECT_EQ(44100u, audioMixer()->attributeSampleRate()->value());
    EXPECT_EQ(16u, audioMixer()->attributeBitDepth()->value());
    EXPECT_EQ(2u, audioMixer()->attributeNumChannels()->value());
}

TEST_F(NewAudioMixerCmdTest, UndoTakesItAway)
{
    project->execute(m_command);
    project->undo();
    EXPECT_FALSE(audioMixer());
}

TEST_F(NewAudioMixerCmdTest, RedoBringsTheSameMixerBackWithTheTracksItGotMeanwhile)
{
    project->execute(m_command);
    boost::shared_ptr<AudioMixer> const mixer = audioMixer();
    boost::shared_ptr<AudioTrack> const sound = mixer->newTrack<AudioTrack>(-1);
    project->undo();
    project->redo();
    EXPECT_EQ(mixer, audioMixer());
    EXPECT_EQ(sound, audioMixer()->trackAtIndex(0));
}

TEST_F(NewAudioMixerCmdTest, ASecondMixerIsRefused)
{
    given("A1: aa");
    EXPECT_TRUE(refuses<AddRemoveException>(
        m_command, "Can't create a new audio mixer if we already have one"));
}

TEST_F(NewAudioMixerCmdTest, AlwaysHasSomethingToDo)
{
    EXPECT_TRUE(m_command->execute(project.get()));
    EXPECT_TRUE(m_command->unexecute(project.get()));
    EXPECT_TRUE(m_command->reexecute(project.get()));
}

TEST_F(NewAudioMixerCmdTest, HasNoMixerUntilItRuns)
{
    EXPECT_FALSE(m_command->mixer());
    EXPECT_EQ("<NewAudioMixerCmd id=\"#\" audioMixer=\"0\" sampleRate=\"44100\" "
              "bitDepth=\"16\" numChannels=\"2\" >\n"
              "</NewAudioMixerCmd>\n",
              xmlOf(*m_command));
}

TEST_F(NewAudioMixerCmdTest, PrintsWhereItsMixerIs)
{
    project->execute(m_command);
    EXPECT_EQ("<NewAudioMixerCmd id=\"#\" audioMixer=\"" + address(audioMixer()) +
                  "\" sampleRate=\"44100\" bitDepth=\"16\" numChannels=\"2\" >\n"
                  "</NewAudioMixerCmd>\n",
              xmlOf(*m_command));
}

TEST_F(NewAudioMixerCmdTest, ACloneMakesAMixerOfTheSameFormat)
{
    boost::shared_ptr<Command> const clone(m_command->clone());
    EXPECT_TRUE(edits(clone));
    EXPECT_EQ(44100u, audioMixer()->attributeSampleRate()->value());
    EXPECT_FALSE(m_command->mixer());
}

}  // namespace
}  // namespace test
}  // namespace tarn
