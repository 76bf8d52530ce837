#pragma once

#include "parameters/LateDoubleParam.h"
#include "timeline/MediaImpl.h"
#include "timeline/TemporalEditor.h"

#include <vector>

namespace tarn {

/// What every sound on the timeline has: a volume, a gain and its format.
class TARN_API AudioMedia : public MediaImpl
{
public:
    /// `sampleRate` is samples per second, `bitDepth` bits per sample.
    AudioMedia(Range<long long> const& sourceRange, unsigned int sampleRate, unsigned int bitDepth,
               double mediaStartLimit, double mediaEndLimit,
               boost::weak_ptr<ThreadSafe const> const& project);

    /// How many channels it plays.
    virtual unsigned int numChannels() const = 0;
    /// One new media for each channel, in rising channel order.
    virtual std::vector<boost::shared_ptr<AudioMedia>> splitChannels() const = 0;

    /// Samples a second.
    unsigned int sampleRate() const { return m_sampleRate; }
    /// Bits a sample; 0 for lossy compression.
    unsigned int bitDepth() const { return m_bitDepth; }
    /// A factor on the sound, 1 at first; key frames lie on the source's clock. The host applies
    /// it.
    boost::shared_ptr<InterpolatingParam<double>> volume() { return m_volume.get(*this); }
    boost::shared_ptr<InterpolatingParam<double> const> volume() const
    {
        return m_volume.get(*this);
    }
    /// A second factor, 1 at first, on the same clock. The host applies it.
    boost::shared_ptr<InterpolatingParam<double>> gain() { return m_gain.get(*this); }
    boost::shared_ptr<InterpolatingParam<double> const> gain() const { return m_gain.get(*this); }

    MediaEditor& mediaEditor() override { return m_editor; }
    MediaEditor const& mediaEditor() const override { return m_editor; }

    std::string description() const override;
    int numParameters() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;
    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;

protected:
    AudioMedia(AudioMedia const& other);

private:
    unsigned int m_sampleRate;
    unsigned int m_bitDepth;
    LateDoubleParam m_volume;
    LateDoubleParam m_gain;
    TemporalEditor m_editor;
};

}  // namespace tarn
