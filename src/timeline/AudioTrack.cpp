#include "timeline/AudioTrack.h"

#include "datatypes/AudioPosition.h"
#include "datatypes/XmlText.h"
#include "exceptions/TypeException.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/LeftInterpolater.h"
#include "parameters/LeftParameter.h"
#include "parameters/MTVector.h"
#include "project/ReadWriteMutex.h"
#include "timeline/AMFile.h"
#include "timeline/AudioMedia.h"
#include "timeline/AudioTransition.h"
#include "timeline/Callout.h"
#include "timeline/ConstTrackDispatcher.h"
#include "timeline/IMFile.h"
#include "timeline/ImageTransition.h"
#include "timeline/MediaDispatcher.h"
#include "timeline/TextBox.h"
#include "timeline/TrackDispatcher.h"
#include "timeline/VMFile.h"

#include <algorithm>

namespace tarn {

/// Adds what is a sound, and says what it is that is not.
class AudioTrack::MediaAdder : public MediaDispatcher
{
public:
    MediaAdder(AudioTrack& track, boost::shared_ptr<Media> const& media, long long time)
        : m_track(track), m_media(media), m_time(time)
    {}

    void dispatchMedia(boost::shared_ptr<VMFile> const&) override
    {
        throw TypeException("Trying to add a VMFile to an AudioTrack");
    }
    void dispatchMedia(boost::shared_ptr<AMFile> const& media) override
    {
        // What was given serves, unless it sent another in its place: one share less to take.
        if (media == m_media)
            m_track.addMediaSansTypeCheck(m_media, m_time);
        else
            m_track.addMedia<AMFile>(media, m_time);
    }
    void dispatchMedia(boost::shared_ptr<IMFile> const&) override
    {
        throw TypeException("Trying to add a IMFile to an AudioTrack");
    }
    void dispatchMedia(boost::shared_ptr<ImageTransition> const&) override
    {
        throw TypeException("can't add transitions yet");
    }
    void dispatchMedia(boost::shared_ptr<AudioTransition> const&) override
    {
        throw TypeException("can't add transitions yet");
    }
    void dispatchMedia(boost::shared_ptr<TextBox> const&) override
    {
        throw TypeException("Trying to add a TextBox to an AudioTrack");
    }
    void dispatchMedia(boost::shared_ptr<Callout> const&) override
    {
        throw TypeException("Trying to add a Callout to an AudioTrack");
    }

private:
    AudioTrack& m_track;
    boost::shared_ptr<Media> const& m_media;
    long long m_time;
};

AudioTrack::AudioTrack(boost::weak_ptr<ThreadSafe const> const& project)
    : Track(project), m_position(new InterpolatingParam<AudioPosition>(project, "position"))
{
    m_position->addKeyFrame(0, AudioPosition());
    m_position->interpolaterParam()->changeKeyFrame(0, LeftInterpolater<AudioPosition>::instance());
}

AudioTrack::AudioTrack(AudioTrack const& other)
    : XMLIdentified(other), Track(other), m_position(other.m_position->clone())
{}

void AudioTrack::receiveDispatcher(ConstTrackDispatcher* dispatcher) const
{
    dispatcher->dispatchTrack(boost::static_pointer_cast<AudioTrack const>(shared_from_this()));
}

void AudioTrack::receiveDispatcher(TrackDispatcher* dispatcher)
{
    dispatcher->dispatchTrack(boost::static_pointer_cast<AudioTrack>(shared_from_this()));
}

void AudioTrack::addMedia(boost::shared_ptr<Media> const& media, long long time)
{
    MediaAdder adder(*this, media, time);
    media->receiveDispatcher(&adder);
}

template <class T>
void AudioTrack::addMedia(typename NotDeduced<boost::shared_ptr<T>>::type const& media,
                          long long time)
{
    boost::shared_ptr<AudioMedia> const audioMedia = media;
    addMediaSansTypeCheck(audioMedia, time);
}

template void AudioTrack::addMedia<AMFile>(boost::shared_ptr<AMFile> const& media, long long time);

AudioTrack* AudioTrack::clone() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return new AudioTrack(*this);
}

AudioTrack::MediaMap& AudioTrack::medias()
{
    return m_medias;
}

AudioTrack::MediaMap const& AudioTrack::medias() const
{
    return m_medias;
}

MediaMapView<AudioMedia> AudioTrack::audioMedias()
{
    return MediaMapView<AudioMedia>(m_medias);
}

MediaMapView<AudioMedia const> AudioTrack::audioMedias() const
{
    return MediaMapView<AudioMedia const>(m_medias);
}

AudioTrack::AudioMediaIterator AudioTrack::audioMediaBegin()
{
    return AudioMediaIterator(mediaBegin());
}

AudioTrack::AudioMediaIterator AudioTrack::audioMediaEnd()
{
    return AudioMediaIterator(mediaEnd());
}

AudioTrack::ConstAudioMediaIterator AudioTrack::audioMediaBegin() const
{
    return ConstAudioMediaIterator(mediaBegin());
}

AudioTrack::ConstAudioMediaIterator AudioTrack::audioMediaEnd() const
{
    return ConstAudioMediaIterator(mediaEnd());
}

AudioTrack::ConstAudioMediaIterator AudioTrack::typeSafeMediaBegin() const
{
    return audioMediaBegin();
}

AudioTrack::ConstAudioMediaIterator AudioTrack::typeSafeMediaEnd() const
{
    return audioMediaEnd();
}

boost::shared_ptr<TrackSubSection<AudioMedia>> AudioTrack::subSection(
    Range<long long> const& range) const
{
    return subSectionImpl(this, range);
}

bool AudioTrack::allMediasAreValid() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return std::all_of(m_medias.begin(), m_medias.end(), [](MediaMap::value_type const& entry) {
        return dynamic_cast<AudioMedia const*>(entry.second.get()) != nullptr;
    });
}

boost::shared_ptr<InterpolatingParam<AudioPosition>> AudioTrack::position()
{
    return m_position;
}

boost::shared_ptr<InterpolatingParam<AudioPosition> const> AudioTrack::position() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_position;
}

int AudioTrack::numParameters() const
{
    return 1;
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>>
AudioTrack::parameterVector() const
{
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> const parameters =
        Track::parameterVector();
    parameters->push_back(m_position);
    return parameters;
}

void AudioTrack::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "AudioTrack";
}

void AudioTrack::xmlOfParameters(XMLable::Options& options, int indent) const
{
    m_position->toXML(options, indent, "name=\"position\"");
}

}  // namespace tarn
