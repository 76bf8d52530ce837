#include "timeline/AudioMixer.h"

#include "datatypes/XmlText.h"
#include "exceptions/TypeException.h"
#include "parameters/Attribute.h"
#include "parameters/MTVector.h"
#include "project/ReadWriteMutex.h"
#include "timeline/AudioTrack.h"

#include <boost/make_shared.hpp>

namespace tarn {

AudioMixer::AudioMixer(unsigned int sampleRate, unsigned int bitDepth, unsigned int numChannels,
                       boost::weak_ptr<ThreadSafe const> const& project)
    : Mixer(project)
    , m_sampleRate(new Attribute<unsigned int>(sampleRate, project))
    , m_bitDepth(new Attribute<unsigned int>(bitDepth, project))
    , m_numChannels(new Attribute<unsigned int>(numChannels, project))
{}

AudioMixer::AudioMixer(AudioMixer const& other) : AudioMixer(other, WithoutTracks())
{
    appendTrackClones(other);
}

AudioMixer::AudioMixer(AudioMixer const& other, WithoutTracks)
    : XMLIdentified(other)
    , Mixer(other)
    , m_sampleRate(other.m_sampleRate->clone())
    , m_bitDepth(other.m_bitDepth->clone())
    , m_numChannels(other.m_numChannels->clone())
{}

AudioMixer* AudioMixer::clone() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return new AudioMixer(*this);
}

void AudioMixer::addTrack(boost::shared_ptr<Track> const& track, int index)
{
    boost::shared_ptr<AudioTrack> const audioTrack = boost::dynamic_pointer_cast<AudioTrack>(track);
    if (!audioTrack) {
        throw TypeException("unexpected type for audiomixer::addtrack");
    }
    addTrackSansTypeCheck(audioTrack, index);
}

AudioMixer::TrackList& AudioMixer::trackList()
{
    return m_tracks;
}

AudioMixer::TrackList const& AudioMixer::trackList() const
{
    return m_tracks;
}

AudioMixer::AudioTrackIterator AudioMixer::trackBegin()
{
    return AudioTrackIterator(Mixer::trackBegin());
}

AudioMixer::AudioTrackIterator AudioMixer::trackEnd()
{
    return AudioTrackIterator(Mixer::trackEnd());
}

AudioMixer::ConstAudioTrackIterator AudioMixer::trackBegin() const
{
    return ConstAudioTrackIterator(Mixer::trackBegin());
}

AudioMixer::ConstAudioTrackIterator AudioMixer::trackEnd() const
{
    return ConstAudioTrackIterator(Mixer::trackEnd());
}

boost::shared_ptr<AudioTrack> AudioMixer::trackAtIndex(unsigned int index)
{
    return boost::dynamic_pointer_cast<AudioTrack>(Mixer::trackAtIndex(index));
}

boost::shared_ptr<AudioTrack const> AudioMixer::trackAtIndex(unsigned int index) const
{
    return boost::dynamic_pointer_cast<AudioTrack const>(Mixer::trackAtIndex(index));
}

boost::shared_ptr<Attribute<unsigned int> const> AudioMixer::attributeSampleRate() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_sampleRate;
}

boost::shared_ptr<Attribute<unsigned int> const> AudioMixer::attributeBitDepth() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_bitDepth;
}

boost::shared_ptr<Attribute<unsigned int> const> AudioMixer::attributeNumChannels() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_numChannels;
}

boost::shared_ptr<AudioMixer> AudioMixer::copyPortion(Range<long long> const& range,
                                                      ConstTrackSet const& tracks,
                                                      MediaCloneMap* map) const
{
    return copyPortionImpl<AudioMixer>(range, tracks, map);
}

boost::shared_ptr<AudioMixer> AudioMixer::copyPortion(ConstMediaVector const& medias,
                                                      MediaCloneMap* map) const
{
    return copyPortionImpl<AudioMixer>(medias, map);
}

int AudioMixer::numParameters() const
{
    return 0;
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>>
AudioMixer::parameterVector() const
{
    return boost::make_shared<MTVector<boost::shared_ptr<ParameterInterface const>>>(
        projectMutex());
}

int AudioMixer::numAttributes() const
{
    return 4;
}

void AudioMixer::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "AudioMixer";
}

void AudioMixer::xmlOfParameters(XMLable::Options&, int) const {}

void AudioMixer::xmlOfAttributes(XMLable::Options& options, int indent) const
{
    xmlOfIdentAttribute(options, indent);
    m_sampleRate->toXML(options, indent, "name=\"sampleRate\"");
    m_bitDepth->toXML(options, indent, "name=\"bitDepth\"");
    m_numChannels->toXML(options, indent, "name=\"numChannels\"");
}

std::string AudioMixer::description() const
{
    return "AudioMixer";
}

}  // namespace tarn
