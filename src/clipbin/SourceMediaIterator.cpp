#include "clipbin/Source.h"

#include "exceptions/IndexException.h"
#include "project/ReadWriteMutex.h"
#include "project/SharedReadLock.h"
#include "timeline/AudioMedia.h"
#include "timeline/AudioMixer.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"
#include "timeline/VisualMedia.h"
#include "timeline/VisualMixer.h"

namespace tarn {

namespace {

// A copied source has no timeline, and so no mixers.
boost::shared_ptr<Mixer const> visualMixerOf(Source const& source)
{
    boost::shared_ptr<Timeline const> const timeline = source.timeline();
    return timeline ? timeline->visualMixer() : boost::shared_ptr<Mixer const>();
}

boost::shared_ptr<Mixer const> audioMixerOf(Source const& source)
{
    boost::shared_ptr<Timeline const> const timeline = source.timeline();
    return timeline ? timeline->audioMixer() : boost::shared_ptr<Mixer const>();
}

int numTracksOf(boost::shared_ptr<Mixer const> const& mixer)
{
    return mixer ? static_cast<int>(mixer->numTracks()) : 0;
}

/// A source puts one media on each track; the host may have taken it off.
boost::shared_ptr<Media const> mediaForTrackIndex(boost::shared_ptr<Mixer const> const& mixer,
                                                  int index)
{
    if (index < 0 || index >= numTracksOf(mixer))
        throw IndexException(index);
    boost::shared_ptr<Track const> const track =
        mixer->trackAtIndex(static_cast<unsigned int>(index));
    Track::ConstMediaIterator const first = track->mediaBegin();
    if (first == track->mediaEnd())
        return boost::shared_ptr<Media const>();
    return first->second;
}

}  // namespace

struct Source::MediaIterator::Position
{
    Position(Source const* theSource, int theIndex)
        : source(theSource)
        , index(theIndex)
        , lock(SharedReadLock::acquire(theSource->projectMutex()))
    {}

    Source const* source;
    int index;
    boost::shared_ptr<SharedReadLock const> lock;
};

Source::MediaIterator::MediaIterator(Source const* source, int index)
    : m_position(new Position(source, index))
{}

Source::MediaIterator::MediaIterator(MediaIterator const& other)
    : m_position(new Position(other.m_position->source, other.m_position->index))
{}

Source::MediaIterator& Source::MediaIterator::operator=(MediaIterator const& other)
{
    MediaIterator copy(other);
    m_position.swap(copy.m_position);
    return *this;
}

Source::MediaIterator::~MediaIterator() = default;

bool Source::MediaIterator::operator==(MediaIterator const& other) const
{
    return m_position->source == other.m_position->source &&
           m_position->index == other.m_position->index;
}

Source::MediaIterator& Source::MediaIterator::operator++()
{
    ++m_position->index;
    return *this;
}

Source::MediaIterator& Source::MediaIterator::operator--()
{
    --m_position->index;
    return *this;
}

int Source::MediaIterator::trackIndex() const
{
    return m_position->index;
}

boost::shared_ptr<Media const> Source::MediaIterator::currentMedia() const
{
    int const index = m_position->index;
    if (index < 0)
        throw IndexException(index);
    boost::shared_ptr<Mixer const> const visualMixer = visualMixerOf(*m_position->source);
    int const numVisualTracks = numTracksOf(visualMixer);
    if (index < numVisualTracks)
        return mediaForTrackIndex(visualMixer, index);
    return mediaForTrackIndex(audioMixerOf(*m_position->source), index - numVisualTracks);
}

boost::shared_ptr<AudioMedia const> Source::MediaIterator::currentAudioMedia() const
{
    return boost::dynamic_pointer_cast<AudioMedia const>(
        mediaForTrackIndex(audioMixerOf(*m_position->source), m_position->index));
}

boost::shared_ptr<VisualMedia const> Source::MediaIterator::currentVisualMedia() const
{
    return boost::dynamic_pointer_cast<VisualMedia const>(
        mediaForTrackIndex(visualMixerOf(*m_position->source), m_position->index));
}

template <>
boost::shared_ptr<Media const> Source::Iterator<Media const>::operator*() const
{
    return currentMedia();
}

template <>
boost::shared_ptr<VisualMedia const> Source::Iterator<VisualMedia const>::operator*() const
{
    return currentVisualMedia();
}

template <>
boost::shared_ptr<AudioMedia const> Source::Iterator<AudioMedia const>::operator*() const
{
    return currentAudioMedia();
}

template <>
Source::Iterator<Media const> Source::mediaEnd<Media const>() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return Iterator<Media const>(this, numTracksOf(visualMixerOf(*this)) +
                                           numTracksOf(audioMixerOf(*this)));
}

template <>
Source::Iterator<VisualMedia const> Source::mediaEnd<VisualMedia const>() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return Iterator<VisualMedia const>(this, numTracksOf(visualMixerOf(*this)));
}

template <>
Source::Iterator<AudioMedia const> Source::mediaEnd<AudioMedia const>() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return Iterator<AudioMedia const>(this, numTracksOf(audioMixerOf(*this)));
}

}  // namespace tarn
