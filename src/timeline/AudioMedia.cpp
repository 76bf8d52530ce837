#include "timeline/AudioMedia.h"

#include "datatypes/XmlText.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"

namespace tarn {

AudioMedia::AudioMedia(Range<long long> const& sourceRange, unsigned int sampleRate,
                       unsigned int bitDepth, double mediaStartLimit, double mediaEndLimit,
                       boost::weak_ptr<ThreadSafe const> const& project)
    : MediaImpl(sourceRange, mediaStartLimit, mediaEndLimit, project)
    , m_sampleRate(sampleRate)
    , m_bitDepth(bitDepth)
    , m_volume("volume", 1)
    , m_gain("gain", 1)
    , m_editor(this)
{}

AudioMedia::AudioMedia(AudioMedia const& other)
    : XMLIdentified(other)
    , MediaImpl(other)
    , m_sampleRate(other.m_sampleRate)
    , m_bitDepth(other.m_bitDepth)
    , m_volume(other.m_volume)
    , m_gain(other.m_gain)
    , m_editor(this)
{}

std::string AudioMedia::description() const
{
    return "AudioMedia";
}

int AudioMedia::numParameters() const
{
    return 2;
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>>
AudioMedia::parameterVector() const
{
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> const parameters =
        MediaImpl::parameterVector();
    parameters->push_back(volume());
    parameters->push_back(gain());
    return parameters;
}

void AudioMedia::xmlOfParameters(XMLable::Options& options, int indent) const
{
    m_volume.toXML(options, indent);
    m_gain.toXML(options, indent);
}

void AudioMedia::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "AudioMedia";
}

}  // namespace tarn
