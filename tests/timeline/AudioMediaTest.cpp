#include "timeline/AudioMedia.h"

#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "parameters/InterpolatingParam.h"
#include "support/MediaKindTest.h"

#include <vector>

namespace tarn {
namespace test {
namespace {

/// A sound without channels.
class Sound : public AudioMedia
{
public:
    explicit Sound(boost::weak_ptr<ThreadSafe const> const& project)
        : AudioMedia(Range<long long>(100, 200), 48000, 24, 5, 1000, project)
    {}

    unsigned int numChannels() const override { return 0; }
    std::vector<boost::shared_ptr<AudioMedia>> splitChannels() const override { return {}; }
    void receiveDispatcher(ConstMediaDispatcher*) const override {}
    void receiveDispatcher(MediaDispatcher*) override {}
    bool isInstanceOf(boost::shared_ptr<Source const> const&) const override { return false; }
    Sound* clone() const override { return nullptr; }
};

class AudioMediaTest : public MediaKindTest
{
protected:
    boost::shared_ptr<Sound> const sound{new Sound(project->weak())};
    AudioMedia const& constSound = *sound;
};

TEST_F(AudioMediaTest, KnowsItsFormatAndItsLimits)
{
    EXPECT_EQ(48000u, sound->sampleRate());
    EXPECT_EQ(24u, sound->bitDepth());
    EXPECT_EQ(5.0, sound->mediaStartLimit());
    EXPECT_EQ(1000.0, sound->mediaEndLimit());
}

TEST_F(AudioMediaTest, HasVolumeAndGain)
{
    EXPECT_EQ(2, sound->numParameters());
    EXPECT_EQ("volume gain ", parameterNames(*sound));
    EXPECT_EQ(sound->volume(), sound->paramWithName("volume"));
    EXPECT_EQ(sound->gain(), sound->paramWithName("gain"));
}

TEST_F(AudioMediaTest, ConstFormsGiveTheSameParameters)
{
    EXPECT_EQ(sound->volume(), constSound.volume());
    EXPECT_EQ(sound->gain(), constSound.gain());
}

TEST_F(AudioMediaTest, VolumeAndGainAreOneAtFirst)
{
    EXPECT_EQ(1, sound->volume()->numKeyFrames());
    EXPECT_EQ(1.0, sound->volume()->valueAtTime(77));
    EXPECT_EQ(1, sound->gain()->numKeyFrames());
    EXPECT_EQ(1.0, sound->gain()->valueAtTime(77));
}

TEST_F(AudioMediaTest, ItsTrimsAreBoundedByItsSource)
{
    // 1000 - 300
    EXPECT_EQ(-100, sound->trimStartLimit());
    EXPECT_EQ(-700, sound->trimEndLimit());
    EXPECT_FALSE(sound->validTrimEnd(-801));
}

TEST_F(AudioMediaTest, ItsVolumeIsBentByAnEdge)
{
    sound->setLeftEdgeModificationLength(40);
    sound->addLeftEdgeModification(EdgeModification(sound->volume(), FadeInFunc()));
    EXPECT_EQ(0.25, sound->transformedDoubleParameterValueAtTime(sound->volume(), 10));
    EXPECT_EQ(1.0, sound->transformedDoubleParameterValueAtTime(sound->gain(), 10));
}

TEST_F(AudioMediaTest, NamesItsClass)
{
    EXPECT_EQ("AudioMedia", sound->description());
}

}  // namespace
}  // namespace test
}  // namespace tarn
