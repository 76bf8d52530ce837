#include "commands/NewVisualMixerCmd.h"

#include "exceptions/AddRemoveException.h"
#include "parameters/Attribute.h"
#include "support/Address.h"
#include "support/ModelTest.h"
#include "support/Xml.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

namespace tarn {
namespace test {
namespace {

class NewVisualMixerCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<NewVisualMixerCmd> m_command = NewVisualMixerCmd::create(640, 480);
};

TEST_F(NewVisualMixerCmdTest, GivesTheProjectAMixerOfThatSize)
{
    EXPECT_TRUE(edits(m_command, ""));
    ASSERT_TRUE(visualMixer());
    EXPECT_EQ(m_command->mixer(), visualMixer());
    EXPECT_EQ(640, visualMixer()->attributeWidth()->value());
    EXPECT_EQ(480, visualMixer()->attributeHeight()->value());
}

TEST_F(NewVisualMixerCmdTest, UndoTakesItAway)
{
    project->execute(m_command);
    project->undo();
    EXPECT_FALSE(visualMixer());
}

TEST_F(NewVisualMixerCmdTest, RedoBringsTheSameMixerBackWithTheTracksItGotMeanwhile)
{
    project->execute(m_command);
    boost::shared_ptr<VisualMixer> const mixer = visualMixer();
    boost::shared_ptr<VisualTrack> const picture = mixer->newTrack<VisualTrack>(-1);
    project->undo();
    project->redo();
    EXPECT_EQ(mixer, visualMixer());
    EXPECT_EQ(picture, visualMixer()->trackAtIndex(0));
}

TEST_F(NewVisualMixerCmdTest, ASecondMixerIsRefused)
{
    given("V1: aa");
    EXPECT_TRUE(refuses<AddRemoveException>(
        m_command, "Can't create a new video mixer if we already have one"));
}

TEST_F(NewVisualMixerCmdTest, AlwaysHasSomethingToDo)
{
    EXPECT_TRUE(m_command->execute(project.get()));
    EXPECT_TRUE(m_command->unexecute(project.get()));
    EXPECT_TRUE(m_command->reexecute(project.get()));
}

TEST_F(NewVisualMixerCmdTest, HasNoMixerUntilItRuns)
{
    EXPECT_FALSE(m_command->mixer());
    EXPECT_EQ("<NewVisualMixerCmd id=\"#\" visualMixer=\"0\" width=\"640\" height=\"480\" >\n"
              "</NewVisualMixerCmd>\n",
              xmlOf(*m_command));
}

TEST_F(NewVisualMixerCmdTest, PrintsWhereItsMixerIs)
{
    project->execute(m_command);
    EXPECT_EQ("<NewVisualMixerCmd id=\"#\" visualMixer=\"" + address(visualMixer()) +
                  "\" width=\"640\" height=\"480\" >\n</NewVisualMixerCmd>\n",
              xmlOf(*m_command));
}

TEST_F(NewVisualMixerCmdTest, ACloneMakesAMixerOfTheSameSize)
{
    boost::shared_ptr<Command> const clone(m_command->clone());
    EXPECT_TRUE(edits(clone));
    EXPECT_EQ(480, visualMixer()->attributeHeight()->value());
    EXPECT_FALSE(m_command->mixer());
}

}  // namespace
}  // namespace test
}  // namespace tarn
