#include "timeline/AudioTransition.h"

#include "effects/CompositeEffect.h"
#include "support/MediaKindTest.h"

namespace tarn {
namespace test {
namespace {

class AudioTransitionTest : public MediaKindTest
{
protected:
    boost::shared_ptr<AudioTransition> const transition{
        new AudioTransition(Range<long long>(30, 100), project->weak())};
};

TEST_F(AudioTransitionTest, IsBoundedByItsRange)
{
    EXPECT_EQ(Range<long long>(0, 100), transition->trackRange());
    EXPECT_EQ(Range<double>(30, 100), transition->mediaRange());
    EXPECT_EQ(30.0, transition->mediaStartLimit());
    EXPECT_EQ(130.0, transition->mediaEndLimit());
}

TEST_F(AudioTransitionTest, HasNoChannelsAndNoFormat)
{
    EXPECT_EQ(0u, transition->numChannels());
    EXPECT_EQ(0u, transition->sampleRate());
    EXPECT_EQ(0u, transition->bitDepth());
    EXPECT_EQ("no audio channels to split", refusal([&] { transition->splitChannels(); }));
}

TEST_F(AudioTransitionTest, IsTheMediaThatItRepresents)
{
    transition->setTrackStart(70);
    EXPECT_EQ(transition, transition->transitionMediaRepresentation());
    EXPECT_EQ(Range<long long>(70, 100), transition->transitionRange());
}

TEST_F(AudioTransitionTest, IsAnInstanceOfNoSource)
{
    EXPECT_FALSE(transition->isInstanceOf(movie()));
    EXPECT_FALSE(transition->isInstanceOf(boost::shared_ptr<Source const>()));
}

TEST_F(AudioTransitionTest, HasVolumeAndGain)
{
    EXPECT_EQ(2, transition->numParameters());
    EXPECT_EQ("volume gain ", parameterNames(*transition));
}

TEST_F(AudioTransitionTest, MayCarryManyEffects)
{
    transition->addEffect(boost::shared_ptr<Effect>(new CompositeEffect("one", project->weak())));
    transition->addEffect(boost::shared_ptr<Effect>(new CompositeEffect("two", project->weak())));
    EXPECT_EQ(2, transition->numEffects());
}

TEST_F(AudioTransitionTest, NamesItsClass)
{
    EXPECT_EQ("AudioTransition", transition->description());
}

}  // namespace
}  // namespace test
}  // namespace tarn
