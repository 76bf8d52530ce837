#include "timeline/AMFile.h"

#include "parameters/InterpolatingParam.h"
#include "support/MediaKindTest.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Timeline.h"

#include <set>
#include <sstream>
#include <vector>

namespace tarn {
namespace test {
namespace {

using Channels = std::set<unsigned int>;
using Sounds = std::set<boost::shared_ptr<AMFile const>>;

class AMFileTest : public MediaKindTest
{
protected:
    boost::shared_ptr<AMFile> sound(Channels const& channels,
                                    Range<long long> const& range = Range<long long>(500, 100),
                                    unsigned trackNumber = 1) const
    {
        return boost::shared_ptr<AMFile>(
            new AMFile(range, project->weak(), from, trackNumber, channels));
    }
    boost::shared_ptr<AMFile> channel(unsigned number, unsigned trackNumber = 1) const
    {
        return boost::shared_ptr<AMFile>(
            new AMFile(Range<long long>(500, 100), project->weak(), from, trackNumber, number));
    }
    boost::shared_ptr<AMFile> named() const
    {
        return boost::shared_ptr<AMFile>(
            new AMFile(Range<long long>(500, 100), 48000, 24, project->weak(), "a.wav"));
    }
    static boost::shared_ptr<AMFile> merged(Sounds const& sounds)
    {
        return boost::shared_ptr<AMFile>(new AMFile(sounds));
    }

    boost::shared_ptr<Source> const from = movie();
};

TEST_F(AMFileTest, ReadsTheFormatOfItsTrack)
{
    EXPECT_EQ(44100u, channel(0)->sampleRate());
    EXPECT_EQ(16u, channel(0)->bitDepth());
    EXPECT_EQ(1u, channel(0)->trackNumber());
}

TEST_F(AMFileTest, ShowsARangeOfItsSourceAndIsBoundedByIt)
{
    EXPECT_EQ(Range<long long>(0, 100), channel(0)->trackRange());
    EXPECT_EQ(Range<double>(500, 100), channel(0)->mediaRange());
    EXPECT_EQ(0.0, channel(0)->mediaStartLimit());
    EXPECT_EQ(10000.0, channel(0)->mediaEndLimit());
}

TEST_F(AMFileTest, MayHaveNoChannel)
{
    EXPECT_EQ(0u, sound({})->numChannels());
}

TEST_F(AMFileTest, NamesItsFileAndTheContainerOfThat)
{
    EXPECT_EQ("fake:movie", channel(0)->containerFileName());
    EXPECT_EQ("a.wav", named()->containerFileName());
}

TEST_F(AMFileTest, HasNoSourceThatIsNone)
{
    boost::shared_ptr<Source const> const nothing;
    EXPECT_EQ("trying to make a amfile with an invalid source track", refusal([&] {
                  AMFile(Range<long long>(500, 100), project->weak(), nothing, 1, 0u);
              }));
    EXPECT_FALSE(channel(0)->isInstanceOf(nothing));
}

TEST_F(AMFileTest, HasOneChannelOrSeveral)
{
    EXPECT_EQ(Channels{1}, channel(1)->channels());
    EXPECT_EQ(1u, channel(1)->numChannels());
    EXPECT_EQ((Channels{0, 1}), sound({0, 1})->channels());
    EXPECT_EQ(2u, sound({0, 1})->numChannels());
}

TEST_F(AMFileTest, IsAnInstanceOfItsSourceOnly)
{
    EXPECT_EQ(from, channel(0)->source());
    EXPECT_TRUE(channel(0)->isInstanceOf(from));
    EXPECT_FALSE(channel(0)->isInstanceOf(movie("fake:other")));
    EXPECT_EQ("fake:movie", channel(0)->fileName());
}

TEST_F(AMFileTest, ATrackThatTheSourceDoesNotHaveIsRefused)
{
    EXPECT_EQ("trying to make a amfile with an invalid source track",
              refusal([&] { channel(0, 2); }));
    EXPECT_EQ("trying to make a amfile with an invalid source track", refusal([&] {
                  sound({0, 1}, Range<long long>(0, 10), 2);
              }));
}

TEST_F(AMFileTest, TheTrackIsCheckedBeforeTheChannels)
{
    EXPECT_EQ("trying to make a amfile with an invalid source track",
              refusal([&] { channel(9, 9); }));
}

TEST_F(AMFileTest, AChannelThatTheTrackDoesNotHaveIsRefused)
{
    EXPECT_EQ("trying to make a amfile with an invalid channel", refusal([&] { channel(2); }));
    EXPECT_EQ("trying to make a amfile with an invalid channel", refusal([&] { channel(0, 0); }));
}

TEST_F(AMFileTest, ASetWithAChannelThatTheTrackDoesNotHaveIsRefused)
{
    EXPECT_EQ("trying to make a amfile with an invalid channels", refusal([&] { sound({0, 2}); }));
}

TEST_F(AMFileTest, OfAFileByNameHasTheGivenFormat)
{
    EXPECT_EQ(48000u, named()->sampleRate());
    EXPECT_EQ(24u, named()->bitDepth());
    EXPECT_EQ("a.wav", named()->fileName());
    EXPECT_EQ(Channels{0}, named()->channels());
    EXPECT_FALSE(named()->source());
    EXPECT_FALSE(named()->isInstanceOf(from));
}

TEST_F(AMFileTest, OfAFileByNameIsBoundedByItsRange)
{
    EXPECT_EQ(500.0, named()->mediaStartLimit());
    EXPECT_EQ(600.0, named()->mediaEndLimit());
}

TEST_F(AMFileTest, OfAFileByNameMayHaveAnyChannels)
{
    AMFile const made(Range<long long>(0, 10), 48000, 24, project->weak(), "a.wav", Channels{3, 7});
    EXPECT_EQ((Channels{3, 7}), made.channels());
}

TEST_F(AMFileTest, HasVolumeAndGain)
{
    EXPECT_EQ(2, named()->numParameters());
    EXPECT_EQ("volume gain ", parameterNames(*named()));
    EXPECT_EQ(1, named()->numAttributes());
}

// ---- Merging ----

TEST_F(AMFileTest, AMergeHasTheChannelsOfAll)
{
    boost::shared_ptr<AMFile> const made = merged({channel(0), channel(1)});
    EXPECT_EQ((Channels{0, 1}), made->channels());
    EXPECT_EQ(from, made->source());
    EXPECT_EQ(1u, made->trackNumber());
    EXPECT_EQ(Range<double>(500, 100), made->mediaRange());
    EXPECT_EQ(44100u, made->sampleRate());
}

TEST_F(AMFileTest, AMergeOfOneIsACopy)
{
    EXPECT_EQ(Channels{1}, merged({channel(1)})->channels());
}

TEST_F(AMFileTest, AMergeOfNothingIsRefused)
{
    EXPECT_EQ("trying to merge amfiles where there are none", refusal([&] { merged({}); }));
    EXPECT_EQ("trying to merge amfiles where there are none", refusal([&] { merged({nullptr}); }));
}

TEST_F(AMFileTest, AMergeOfDifferentSourcesIsRefused)
{
    boost::shared_ptr<AMFile const> const other(
        new AMFile(Range<long long>(1, 7), project->weak(), movie("fake:other"), 1, 0u));
    EXPECT_EQ("trying to merge amfiles with different sources", refusal([&] {
                  merged({channel(0), other});
              }));
}

TEST_F(AMFileTest, AMergeOfDifferentTracksIsRefused)
{
    boost::shared_ptr<Source> const two =
        source("fake:two", {FakeStatsLoader::sound(10000), FakeStatsLoader::sound(10000)});
    boost::shared_ptr<AMFile const> const first(
        new AMFile(Range<long long>(0, 10), project->weak(), two, 0, 0u));
    boost::shared_ptr<AMFile const> const second(
        new AMFile(Range<long long>(0, 11), project->weak(), two, 1, 0u));
    EXPECT_EQ("trying to merge amfiles with different tracks", refusal([&] {
                  merged({first, second});
              }));
}

TEST_F(AMFileTest, AMergeOfDifferentMediaRangesIsRefused)
{
    EXPECT_EQ("trying to merge amfiles with different media ranges", refusal([&] {
                  merged({channel(0), sound({1}, Range<long long>(501, 100))});
              }));
}

TEST_F(AMFileTest, AMergeOfDifferentTrackRangesIsRefused)
{
    boost::shared_ptr<AMFile> const moved = channel(1);
    moved->setTrackStart(1);
    EXPECT_EQ("trying to merge amfiles with different media ranges", refusal([&] {
                  merged({channel(0), moved});
              }));
}

// ---- Splitting ----

TEST_F(AMFileTest, OneChannelCanBeCopiedOut)
{
    boost::shared_ptr<AMFile> const both = sound({0, 1});
    both->setTrackStart(40);
    both->volume()->changeKeyFrame(0, 0.5);
    AMFile const copy(both, 1);
    EXPECT_EQ(Channels{1}, copy.channels());
    EXPECT_EQ(Range<long long>(40, 100), copy.trackRange());
    EXPECT_EQ(0.5, copy.volume()->valueAtTime(0));
    EXPECT_EQ(from, copy.source());
    EXPECT_EQ((Channels{0, 1}), both->channels());
}

TEST_F(AMFileTest, AChannelThatIsNotThereCannotBeCopiedOut)
{
    boost::shared_ptr<AMFile const> const one = channel(0);
    EXPECT_EQ("trying to copy a channel that doesn't exist in this amfile",
              refusal([&] { AMFile(one, 1); }));
}

TEST_F(AMFileTest, SplitsIntoOneForEachChannelInRisingOrder)
{
    std::vector<boost::shared_ptr<AudioMedia>> const parts = sound({0, 1})->splitChannels();
    ASSERT_EQ(2u, parts.size());
    EXPECT_EQ(Channels{0}, boost::dynamic_pointer_cast<AMFile>(parts[0])->channels());
    EXPECT_EQ(Channels{1}, boost::dynamic_pointer_cast<AMFile>(parts[1])->channels());
    EXPECT_EQ(Range<double>(500, 100), parts[1]->mediaRange());
}

TEST_F(AMFileTest, ChannelsAreWrittenAndReadAlike)
{
    std::stringstream text;
    sound({0, 1})->writeChannels(text);
    EXPECT_EQ((Channels{0, 1}), AMFile::readChannels(text));
}

TEST_F(AMFileTest, TheSourcesOwnMediaDoesNotKeepItAlive)
{
    boost::shared_ptr<Source> mortal = movie("fake:mortal");
    boost::shared_ptr<AMFile> const prototype = boost::dynamic_pointer_cast<AMFile>(
        mortal->timeline()->audioMixer()->trackAtIndex(0)->mediaBegin()->second);
    ASSERT_TRUE(prototype);
    boost::shared_ptr<AMFile> out(new AMFile(prototype, 0));
    mortal.reset();
    EXPECT_TRUE(out->source());
    out.reset();
    EXPECT_FALSE(prototype->source());
}

TEST_F(AMFileTest, DescribesItself)
{
    EXPECT_EQ("amfile", named()->description());
}

}  // namespace
}  // namespace test
}  // namespace tarn
