#include "timeline/AudioMedia.h"

#include "datatypes/XmlText.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"

namespace tarn {

namespace {

/// A level of 1.0 at all times.
boost::shared_ptr<InterpolatingParam<double>> newLevel(
    boost::weak_ptr<ThreadSafe const> const& project, std::string const& name)
{
    boost::shared_ptr<InterpolatingParam<double>> const level(
        new InterpolatingParam<double>(project, name));
    level->addKeyFrame(0, 1.0);
    return level;
}

}  // namespace

AudioMedia::AudioMedia(Range<long long> const& sourceRange, unsigned int sampleRate,
                       unsigned int bitDepth, double mediaStartLimit, double mediaEndLimit,
                       boost::weak_ptr<ThreadSafe const> const& project)
    : MediaImpl(sourceRange, mediaStartLimit, mediaEndLimit, project)
    , m_sampleRate(sampleRate)
    , m_bitDepth(bitDepth)
    , m_volume(newLevel(project, "volume"))
    , m_gain(newLevel(project, "gain"))
    , m_editor(this)
{}

AudioMedia::AudioMedia(AudioMedia const& other)
    : XMLIdentified(other)
    , MediaImpl(other)
    , m_sampleRate(other.m_sampleRate)
    , m_bitDepth(other.m_bitDepth)
    , m_volume(other.m_volume->clone())
    , m_gain(other.m_gain->clone())
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
    parameters->push_back(m_volume);
    parameters->push_back(m_gain);
    return parameters;
}

void AudioMedia::xmlOfParameters(XMLable::Options& options, int indent) const
{
    m_volume->toXML(options, indent, "name=\"volume\"");
    m_gain->toXML(options, indent, "name=\"gain\"");
}

void AudioMedia::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "AudioMedia";
}

}  // namespace tarn
