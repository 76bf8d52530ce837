#include "commands/SwapTrackOrderCmd.h"

#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"
#include "support/Address.h"
#include "support/ModelTest.h"
#include "support/Xml.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

namespace tarn {
namespace test {
namespace {

using MissingTrack = ValueException<boost::shared_ptr<Track const>>;

class SwapTrackOrderCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<Command> swap(std::string const& first, std::string const& second) const
    {
        return SwapTrackOrderCmd::create(visualMixer(), track(first), track(second));
    }
};

TEST_F(SwapTrackOrderCmdTest, ExchangesThePlacesOfTwoTracks)
{
    given("V1: aa / V2: bb / V3: cc");
    EXPECT_TRUE(edits(swap("V1", "V3"), "V1: cc / V2: bb / V3: aa"));
}

TEST_F(SwapTrackOrderCmdTest, WorksOnTheAudioMixerToo)
{
    given("A1: aa / A2: bb");
    EXPECT_TRUE(edits(SwapTrackOrderCmd::create(audioMixer(), track("A2"), track("A1")),
                      "A1: bb / A2: aa"));
}

TEST_F(SwapTrackOrderCmdTest, DoneTwiceItRestoresTheOrder)
{
    given("V1: aa / V2: bb");
    boost::shared_ptr<Track const> const first = track("V1");
    project->execute(swap("V1", "V2"));
    project->execute(swap("V1", "V2"));
    EXPECT_EQ("V1: aa / V2: bb", strip());
    EXPECT_EQ(first, track("V1"));
}

TEST_F(SwapTrackOrderCmdTest, ATrackMayBeSwappedWithItself)
{
    given("V1: aa / V2: bb");
    EXPECT_TRUE(edits(swap("V2", "V2"), "V1: aa / V2: bb"));
}

TEST_F(SwapTrackOrderCmdTest, ATrackThatIsNotOnTheMixerIsRefused)
{
    given("A1: cc / V1: aa / V2: bb");
    char const* const message = "trying to swap track that doesn't exist";
    EXPECT_TRUE(refuses<MissingTrack>(swap("A1", "V2"), message));
    EXPECT_TRUE(refuses<MissingTrack>(swap("V1", "A1"), message));
}

TEST_F(SwapTrackOrderCmdTest, AForeignMixerIsRefused)
{
    given("V1: aa / V2: bb");
    boost::shared_ptr<Mixer> const foreign(new VisualMixer(640, 480, lock()));
    boost::shared_ptr<Track const> const only = foreign->newTrack<VisualTrack>(-1);
    char const* const message = "mixer doesn't belong to project";
    EXPECT_TRUE(
        refuses<TarnMediaLibException>(SwapTrackOrderCmd::create(foreign, only, only), message));
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        SwapTrackOrderCmd::create(boost::shared_ptr<Mixer const>(), track("V1"), track("V2")),
        message));
}

TEST_F(SwapTrackOrderCmdTest, AlwaysHasSomethingToDo)
{
    given("V1: aa");
    boost::shared_ptr<Command> const command = swap("V1", "V1");
    EXPECT_TRUE(command->execute(project.get()));
    EXPECT_TRUE(command->unexecute(project.get()));
    EXPECT_TRUE(command->reexecute(project.get()));
}

TEST_F(SwapTrackOrderCmdTest, PrintsWhereMixerAndTracksAre)
{
    given("V1: aa / V2: bb");
    EXPECT_EQ("<SwapTrackOrderCmd id=\"#\" mixer=\"" + address(visualMixer()) + "\" track1=\"" +
                  address(track("V1")) + "\" track2=\"" + address(track("V2")) +
                  "\" >\n</SwapTrackOrderCmd>\n",
              xmlOf(*swap("V1", "V2")));
}

TEST_F(SwapTrackOrderCmdTest, ACloneSwapsTheSameTracks)
{
    given("V1: aa / V2: bb");
    boost::shared_ptr<Command> const original = swap("V1", "V2");
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(original->clone()), "V1: bb / V2: aa"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
