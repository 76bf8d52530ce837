#include "commands/RemoveMixerCmd.h"

#include "exceptions/AddRemoveException.h"
#include "support/ModelTest.h"
#include "support/Xml.h"
#include "timeline/AudioMixer.h"
#include "timeline/ImageTrack.h"
#include "timeline/Media.h"
#include "timeline/VisualMixer.h"

namespace tarn {
namespace test {
namespace {

using RemoveMixerCmdTest = ModelTest;

TEST_F(RemoveMixerCmdTest, TakesTheVisualMixerAwayWithAllThatIsOnIt)
{
    given("A1: aa / V1: aab / V2: c");
    EXPECT_TRUE(edits(RemoveMixerCmd<VisualMixer>::create(), "A1: aa"));
    EXPECT_FALSE(visualMixer());
    EXPECT_TRUE(audioMixer());
}

TEST_F(RemoveMixerCmdTest, TakesTheAudioMixerAwayWithAllThatIsOnIt)
{
    given("A1: aa / V1: aab / V2: c");
    EXPECT_TRUE(edits(RemoveMixerCmd<AudioMixer>::create(), "V1: aab / V2: c"));
    EXPECT_FALSE(audioMixer());
    EXPECT_TRUE(visualMixer());
}

TEST_F(RemoveMixerCmdTest, UndoBringsTheSameMixerWithItsLinks)
{
    given("A1: aa / V1: aab");
    boost::shared_ptr<VisualMixer> const mixer = visualMixer();
    project->execute(RemoveMixerCmd<VisualMixer>::create());
    project->undo();
    EXPECT_EQ(mixer, visualMixer());
    EXPECT_EQ(track("V1"), media("V1.a")->parentTrack().lock());
    EXPECT_TRUE(media("V1.a")->isLinkedWith(media("A1.a")));
}

TEST_F(RemoveMixerCmdTest, ItsTracksMayBeOfAnyType)
{
    given("V1: aa");
    visualMixer()->addTrackSansTypeCheck(boost::shared_ptr<Track>(new ImageTrack(lock())), -1);
    EXPECT_TRUE(edits(RemoveMixerCmd<VisualMixer>::create(), ""));
}

TEST_F(RemoveMixerCmdTest, AVisualMixerThatIsNotThereIsRefused)
{
    EXPECT_TRUE(refuses<AddRemoveException>(RemoveMixerCmd<VisualMixer>::create(),
                                            "Can't remove a video mixer if we don't have one"));
}

TEST_F(RemoveMixerCmdTest, AnAudioMixerThatIsNotThereIsRefused)
{
    EXPECT_TRUE(refuses<AddRemoveException>(RemoveMixerCmd<AudioMixer>::create(),
                                            "Can't remove an audio mixer if we don't have one"));
}

TEST_F(RemoveMixerCmdTest, AlwaysHasSomethingToDo)
{
    given("A1: a / V1: b");
    boost::shared_ptr<Command> const command = RemoveMixerCmd<AudioMixer>::create();
    EXPECT_TRUE(command->execute(project.get()));
    EXPECT_TRUE(command->unexecute(project.get()));
    EXPECT_TRUE(command->reexecute(project.get()));
}

TEST_F(RemoveMixerCmdTest, PrintsItsNameAlone)
{
    std::string const element = "<RemoveMixerCmd id=\"#\"  >\n</RemoveMixerCmd>\n";
    EXPECT_EQ(element, xmlOf(*RemoveMixerCmd<VisualMixer>::create()));
    EXPECT_EQ(element, xmlOf(*RemoveMixerCmd<AudioMixer>::create()));
}

TEST_F(RemoveMixerCmdTest, ACloneRemovesToo)
{
    given("V1: aa");
    boost::shared_ptr<Command> const original = RemoveMixerCmd<VisualMixer>::create();
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(original->clone()), ""));
}

}  // namespace
}  // namespace test
}  // namespace tarn
