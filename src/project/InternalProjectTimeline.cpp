// The primitives on mixers and tracks.
#include "project/InternalProject.h"

#include "exceptions/TarnMediaLibException.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/ImageTrack.h"
#include "timeline/Timeline.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

namespace tarn {

namespace {

char const k_foreignMixer[] = "mixer doesn't belong to project";

}  // namespace

boost::shared_ptr<VisualMixer> InternalProject::visualMixer() const
{
    return m_timeline->visualMixer();
}

boost::shared_ptr<AudioMixer> InternalProject::audioMixer() const
{
    return m_timeline->audioMixer();
}

boost::shared_ptr<VisualMixer> InternalProject::newVisualMixer(float width, float height)
{
    return m_timeline->newVisualMixer(width, height);
}

boost::shared_ptr<VisualMixer> InternalProject::newVisualMixer(
    boost::shared_ptr<VisualMixer> const& mixer)
{
    return m_timeline->newVisualMixer(mixer);
}

boost::shared_ptr<VisualMixer> InternalProject::removeVisualMixer()
{
    return m_timeline->removeVisualMixer();
}

boost::shared_ptr<AudioMixer> InternalProject::newAudioMixer(unsigned int sampleRate,
                                                             unsigned int bitDepth,
                                                             unsigned int numChannels)
{
    return m_timeline->newAudioMixer(sampleRate, bitDepth, numChannels);
}

boost::shared_ptr<AudioMixer> InternalProject::newAudioMixer(
    boost::shared_ptr<AudioMixer> const& mixer)
{
    return m_timeline->newAudioMixer(mixer);
}

boost::shared_ptr<AudioMixer> InternalProject::removeAudioMixer()
{
    return m_timeline->removeAudioMixer();
}

boost::shared_ptr<VisualTrack> InternalProject::newVisualTrack(int index)
{
    return m_timeline->newTrack<VisualTrack>(m_timeline->visualMixer(), index);
}

boost::shared_ptr<ImageTrack> InternalProject::newImageTrack(int index)
{
    return m_timeline->newTrack<ImageTrack>(m_timeline->visualMixer(), index);
}

boost::shared_ptr<AudioTrack> InternalProject::newAudioTrack(int index)
{
    return m_timeline->newTrack<AudioTrack>(m_timeline->audioMixer(), index);
}

// An empty mixer passes for an empty slot, and the timeline then says that there is none.
boost::shared_ptr<Track> InternalProject::newTrack(boost::shared_ptr<Mixer const> const& mixer,
                                                   int index)
{
    if (mixer == m_timeline->audioMixer())
        return m_timeline->newTrack<AudioTrack>(mixer, index);
    if (mixer == m_timeline->visualMixer())
        return m_timeline->newTrack<VisualTrack>(mixer, index);
    throw TarnMediaLibException(k_foreignMixer);
}

boost::shared_ptr<Track> InternalProject::addTrack(boost::shared_ptr<Mixer const> const& mixer,
                                                   boost::shared_ptr<Track> const& track, int index)
{
    m_timeline->addTrack(ownMixer(mixer), track, index);
    return track;
}

std::pair<boost::shared_ptr<Track>, int> InternalProject::removeTrack(
    boost::shared_ptr<Mixer const> const& mixer, boost::shared_ptr<Track const> const& track)
{
    return m_timeline->removeTrack(ownMixer(mixer), track);
}

void InternalProject::swapTrackOrder(boost::shared_ptr<Mixer const> const& mixer,
                                     boost::shared_ptr<Track const> const& track1,
                                     boost::shared_ptr<Track const> const& track2)
{
    ownMixer(mixer)->swapTrackOrder(track1, track2);
}

boost::shared_ptr<Mixer> InternalProject::ownMixer(
    boost::shared_ptr<Mixer const> const& mixer) const
{
    if (mixer && mixer == m_timeline->audioMixer())
        return m_timeline->audioMixer();
    if (mixer && mixer == m_timeline->visualMixer())
        return m_timeline->visualMixer();
    throw TarnMediaLibException(k_foreignMixer);
}

}  // namespace tarn
