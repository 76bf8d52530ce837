#include "timeline/AudioMixer.h"

#include "exceptions/IndexException.h"
#include "exceptions/TypeException.h"
#include "parameters/Attribute.h"
#include "parameters/MTVector.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "support/Xml.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

namespace tarn {
namespace test {
namespace {

class AudioMixerTest : public ModelTest
{
protected:
    boost::shared_ptr<AudioMixer> m_mixer{new AudioMixer(48000, 24, 6, lock())};
    AudioMixer const& m_const = *m_mixer;
};

TEST_F(AudioMixerTest, HasTheFormatItWasMadeWith)
{
    EXPECT_EQ(48000u, m_mixer->attributeSampleRate()->value());
    EXPECT_EQ(24u, m_mixer->attributeBitDepth()->value());
    EXPECT_EQ(6u, m_mixer->attributeNumChannels()->value());
}

TEST_F(AudioMixerTest, HasNoParametersAndFourAttributes)
{
    EXPECT_EQ(0, m_mixer->numParameters());
    EXPECT_TRUE(m_mixer->parameterVector()->empty());
    EXPECT_EQ(4, m_mixer->numAttributes());
}

TEST_F(AudioMixerTest, DescribesItselfByItsName)
{
    EXPECT_EQ("AudioMixer", m_mixer->description());
}

TEST_F(AudioMixerTest, TakesAnAudioTrack)
{
    boost::shared_ptr<Track> const sound(new AudioTrack(lock()));
    m_mixer->addTrack(sound, -1);
    EXPECT_EQ(sound, m_mixer->trackAtIndex(0));
    EXPECT_EQ(sound, m_const.trackAtIndex(0));
}

TEST_F(AudioMixerTest, RefusesEveryOtherTrackAndNoTrack)
{
    boost::shared_ptr<Track> const picture(new VisualTrack(lock()));
    char const* const message = "unexpected type for audiomixer::addtrack";
    EXPECT_STREQ(message, thrownBy<TypeException>([&] { m_mixer->addTrack(picture, -1); }).what());
    EXPECT_STREQ(message, thrownBy<TypeException>([&] {
                              m_mixer->addTrack(boost::shared_ptr<Track>(), -1);
                          }).what());
    EXPECT_EQ(0u, m_mixer->numTracks());
}

TEST_F(AudioMixerTest, ShowsItsTracksAsAudioTracks)
{
    boost::shared_ptr<AudioTrack> const sound = m_mixer->newTrack<AudioTrack>(-1);
    boost::shared_ptr<AudioTrack> const first = *m_mixer->trackBegin();
    boost::shared_ptr<AudioTrack const> const constFirst = *m_const.trackBegin();
    EXPECT_EQ(sound, first);
    EXPECT_EQ(sound, constFirst);
    EXPECT_EQ(m_mixer->trackEnd(), ++m_mixer->trackBegin());
    EXPECT_EQ(m_const.trackEnd(), ++m_const.trackBegin());
}

TEST_F(AudioMixerTest, AnIndexWithoutATrackIsRefused)
{
    EXPECT_EQ(1, thrownBy<IndexException>([&] { m_mixer->trackAtIndex(1); }).index());
    EXPECT_EQ(0, thrownBy<IndexException>([&] { m_const.trackAtIndex(0); }).index());
}

TEST_F(AudioMixerTest, AClonesFormatIsItsOwn)
{
    boost::shared_ptr<AudioMixer> const clone(m_mixer->clone());
    EXPECT_EQ(48000u, clone->attributeSampleRate()->value());
    EXPECT_EQ(24u, clone->attributeBitDepth()->value());
    EXPECT_EQ(6u, clone->attributeNumChannels()->value());
    EXPECT_NE(m_mixer->attributeSampleRate(), clone->attributeSampleRate());
}

TEST_F(AudioMixerTest, AClonesTracksAreClonesInTheSameOrder)
{
    given("A1: aa / A2: bbb");
    boost::shared_ptr<AudioMixer> const clone(audioMixer()->clone());
    ASSERT_EQ(2u, clone->numTracks());
    EXPECT_EQ(20, clone->trackAtIndex(0)->endTime());
    EXPECT_EQ(30, clone->trackAtIndex(1)->endTime());
    EXPECT_NE(track("A1"), clone->trackAtIndex(0));
}

TEST_F(AudioMixerTest, APortionHasTheSameFormat)
{
    given("A1: aaaa / A2: bb");
    boost::shared_ptr<AudioMixer> const copy =
        audioMixer()->copyPortion(Range<long long>(10, 20), ConstTrackSet{track("A1")}, nullptr);
    EXPECT_EQ(44100u, copy->attributeSampleRate()->value());
    ASSERT_EQ(1u, copy->numTracks());
    EXPECT_EQ(Range<long long>(10, 20), copy->trackAtIndex(0)->timeRange());
}

TEST_F(AudioMixerTest, APortionOfChosenMediasHasTheirTracksOnly)
{
    given("A1: aaaa / A2: bb / V1: cc");
    MediaCloneMap clones;
    boost::shared_ptr<AudioMixer> const copy =
        audioMixer()->copyPortion(ConstMediaVector{media("V1.c"), media("A2.b")}, &clones);
    ASSERT_EQ(1u, copy->numTracks());
    ASSERT_EQ(1u, clones.size());
    EXPECT_TRUE(copy->trackAtIndex(0)->hasMedia(clones.at(media("A2.b"))));
}

TEST_F(AudioMixerTest, PrintsItsFormatAndNoParameters)
{
    EXPECT_EQ("<AudioMixer id=\"#\"  >\n"
              " <Attributes>\n"
              "  <Attribute id=\"#\" value=\"\" name=\"ident\">\n"
              "  </Attribute>\n"
              "  <Attribute id=\"#\" value=\"48000\" name=\"sampleRate\">\n"
              "  </Attribute>\n"
              "  <Attribute id=\"#\" value=\"24\" name=\"bitDepth\">\n"
              "  </Attribute>\n"
              "  <Attribute id=\"#\" value=\"6\" name=\"numChannels\">\n"
              "  </Attribute>\n"
              " </Attributes>\n"
              " <Tracks>\n"
              " </Tracks>\n"
              "</AudioMixer>\n",
              xmlOf(*m_mixer));
}

}  // namespace
}  // namespace test
}  // namespace tarn
