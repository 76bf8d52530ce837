#include "commands/RemoveTrackCmd.h"

#include "exceptions/TarnMediaLibException.h"
#include "exceptions/TypeException.h"
#include "exceptions/ValueException.h"
#include "support/ModelTest.h"
#include "support/Xml.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/ImageTrack.h"
#include "timeline/Media.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

namespace tarn {
namespace test {
namespace {

using MissingTrack = ValueException<boost::shared_ptr<Track const>>;

class RemoveTrackCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<Command> removal(boost::shared_ptr<Track const> const& track) const
    {
        return RemoveTrackCmd<Track>::create(track);
    }
    boost::shared_ptr<AbstractVisualTrack const> visual(unsigned index) const
    {
        return visualMixer()->trackAtIndex(index);
    }
    boost::shared_ptr<AudioTrack const> audio(unsigned index) const
    {
        return audioMixer()->trackAtIndex(index);
    }
};

TEST_F(RemoveTrackCmdTest, TakesAVisualTrackOfAnyMixerPlace)
{
    given("V1: aa / V2: bb / V3: cc");
    EXPECT_TRUE(edits(removal(track("V2")), "V1: aa / V2: cc"));
}

TEST_F(RemoveTrackCmdTest, TakesAnAudioTrack)
{
    given("A1: aa / A2: bb / V1: cc");
    EXPECT_TRUE(edits(removal(track("A1")), "A1: bb / V1: cc"));
}

TEST_F(RemoveTrackCmdTest, TheTypedFormsDoTheSame)
{
    given("A1: aa / A2: bb / V1: cc / V2: dd");
    EXPECT_TRUE(
        edits(RemoveTrackCmd<AbstractVisualTrack>::create(visual(0)), "A1: aa / A2: bb / V1: dd"));
    EXPECT_TRUE(edits(RemoveTrackCmd<AudioTrack>::create(audio(1)), "A1: aa / V1: dd"));
}

TEST_F(RemoveTrackCmdTest, UndoBringsTheSameTrackBackToItsPlace)
{
    given("V1: aa / V2: bb / V3: cc");
    boost::shared_ptr<Track> const middle = track("V2");
    project->execute(removal(middle));
    project->undo();
    EXPECT_EQ(middle, track("V2"));
    EXPECT_EQ("V1: aa / V2: bb / V3: cc", strip());
}

TEST_F(RemoveTrackCmdTest, TheMediasKeepParentAndLinksWhileTheTrackIsAway)
{
    given("A1: aa / V1: aa");
    boost::shared_ptr<Track> const removed = track("V1");
    project->execute(removal(removed));
    EXPECT_EQ(removed, media("V1.a")->parentTrack().lock());
    EXPECT_TRUE(media("A1.a")->isLinkedWith(media("V1.a")));
    EXPECT_EQ("A1: aa", strip());
}

TEST_F(RemoveTrackCmdTest, ATrackThatIsNotThereIsRefused)
{
    given("A1: aa / V1: bb");
    char const* const message = "trying to remove a track not on mixer";
    boost::shared_ptr<VisualTrack const> const picture(new VisualTrack(lock()));
    boost::shared_ptr<AudioTrack const> const sound(new AudioTrack(lock()));
    EXPECT_TRUE(refuses<MissingTrack>(removal(picture), message));
    EXPECT_TRUE(refuses<MissingTrack>(removal(sound), message));
    EXPECT_TRUE(
        refuses<MissingTrack>(RemoveTrackCmd<AbstractVisualTrack>::create(picture), message));
    EXPECT_TRUE(refuses<MissingTrack>(RemoveTrackCmd<AudioTrack>::create(sound), message));
}

TEST_F(RemoveTrackCmdTest, IsRefusedWithoutTheMixerOfThatKind)
{
    boost::shared_ptr<VisualTrack const> const picture(new VisualTrack(lock()));
    boost::shared_ptr<AudioTrack const> const sound(new AudioTrack(lock()));
    char const* const message = "mixer doesn't belong to project";
    EXPECT_TRUE(refuses<TarnMediaLibException>(removal(picture), message));
    EXPECT_TRUE(refuses<TarnMediaLibException>(RemoveTrackCmd<AudioTrack>::create(sound), message));
}

TEST_F(RemoveTrackCmdTest, AnImageTrackIsTakenButCannotComeBack)
{
    given("V1: aa");
    boost::shared_ptr<Track> const images(new ImageTrack(lock()));
    visualMixer()->addTrackSansTypeCheck(images, -1);
    EXPECT_TRUE(project->execute(removal(images)));
    EXPECT_EQ(1u, visualMixer()->numTracks());
    EXPECT_THROW(project->undo(), TypeException);
    EXPECT_EQ(1u, visualMixer()->numTracks());
}

TEST_F(RemoveTrackCmdTest, AlwaysHasSomethingToDo)
{
    given("A1: aa / V1: bb");
    boost::shared_ptr<Command> const command = removal(track("A1"));
    EXPECT_TRUE(command->execute(project.get()));
    EXPECT_TRUE(command->unexecute(project.get()));
    EXPECT_TRUE(command->reexecute(project.get()));
}

TEST_F(RemoveTrackCmdTest, PrintsItsNameAlone)
{
    given("A1: aa / V1: bb");
    std::string const element = "<RemoveTrackCmd id=\"#\"  >\n</RemoveTrackCmd>\n";
    EXPECT_EQ(element, xmlOf(*removal(track("V1"))));
    EXPECT_EQ(element, xmlOf(*RemoveTrackCmd<AbstractVisualTrack>::create(visual(0))));
    EXPECT_EQ(element, xmlOf(*RemoveTrackCmd<AudioTrack>::create(audio(0))));
}

TEST_F(RemoveTrackCmdTest, ACloneRemovesTheSameTrack)
{
    given("V1: aa / V2: bb");
    boost::shared_ptr<Command> const original = removal(track("V1"));
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(original->clone()), "V1: bb"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
