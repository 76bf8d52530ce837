#include "datatypes/MediaObserver.h"

#include "datatypes/Observer.h"
#include "project/ReadWriteMutex.h"
#include "timeline/AudioMixer.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"
#include "timeline/VisualMixer.h"

#include <algorithm>

namespace tarn {

/// Hears of mixers that come.
class MediaObserver::TimelineObserver : public Observer
{
public:
    TimelineObserver(MediaObserver* owner, boost::shared_ptr<Timeline const> const& timeline)
        : m_owner(owner), m_timeline(timeline)
    {
        m_timeline->attach(this);
    }
    ~TimelineObserver() override { m_timeline->detach(this); }

    void observerUpdate() override
    {
        m_owner->updateMixers();
        m_owner->notify();
    }

private:
    MediaObserver* m_owner;
    boost::shared_ptr<Timeline const> m_timeline;
};

/// Hears of tracks that come to a mixer and go from it.
class MediaObserver::MixerObserver : public Observer
{
public:
    MixerObserver(MediaObserver* owner, boost::shared_ptr<Mixer const> const& mixer)
        : m_owner(owner), m_mixer(mixer)
    {
        m_mixer->attach(this);
    }
    ~MixerObserver() override { m_mixer->detach(this); }

    boost::shared_ptr<Mixer const> const& mixer() const { return m_mixer; }

    void observerUpdate() override
    {
        m_owner->updateTracks(m_mixer);
        m_owner->notify();
    }

private:
    MediaObserver* m_owner;
    boost::shared_ptr<Mixer const> m_mixer;
};

/// Hears of medias that come to a track and go from it. Belongs to the mixer it was made for.
class MediaObserver::TrackObserver : public Observer
{
public:
    TrackObserver(MediaObserver* owner, boost::shared_ptr<Mixer const> const& mixer,
                  boost::shared_ptr<Track const> const& track)
        : m_owner(owner), m_mixer(mixer), m_track(track)
    {
        m_track->attach(this);
    }
    ~TrackObserver() override { m_track->detach(this); }

    boost::shared_ptr<Mixer const> const& mixer() const { return m_mixer; }
    boost::shared_ptr<Track const> const& track() const { return m_track; }

    void observerUpdate() override { m_owner->notify(); }

private:
    MediaObserver* m_owner;
    boost::shared_ptr<Mixer const> m_mixer;
    boost::shared_ptr<Track const> m_track;
};

MediaObserver::MediaObserver(boost::shared_ptr<Timeline const> const& timeline)
    : m_timeline(timeline), m_timelineObserver(new TimelineObserver(this, timeline))
{
    updateMixers();
}

// The members go in reverse order: the observers of tracks, of mixers, of the timeline.
MediaObserver::~MediaObserver() = default;

std::string MediaObserver::description() const
{
    return std::string();
}

void MediaObserver::updateMixers()
{
    ReadWriteMutex::ScopedReadLock lock(m_timeline->mutex());
    if (m_timeline->hasVisualMixer()) {
        watchMixer(m_timeline->visualMixer());
    }
    if (m_timeline->hasAudioMixer()) {
        watchMixer(m_timeline->audioMixer());
    }
}

void MediaObserver::watchMixer(boost::shared_ptr<Mixer const> const& mixer)
{
    if (!isWatching(mixer)) {
        setupNewMixer(mixer);
    }
}

bool MediaObserver::isWatching(boost::shared_ptr<Mixer const> const& mixer) const
{
    return std::any_of(
        m_mixerObservers.begin(), m_mixerObservers.end(),
        [&](std::unique_ptr<MixerObserver> const& observer) { return observer->mixer() == mixer; });
}

void MediaObserver::setupNewMixer(boost::shared_ptr<Mixer const> const& mixer)
{
    m_mixerObservers.push_back(std::make_unique<MixerObserver>(this, mixer));
    attachToMixer(mixer);
}

void MediaObserver::attachToMixer(boost::shared_ptr<Mixer const> const& mixer)
{
    for (auto track = mixer->trackBegin(); track != mixer->trackEnd(); ++track) {
        if (!isWatching(mixer, *track)) {
            attachToTrack(mixer, *track);
        }
    }
}

void MediaObserver::attachToTrack(boost::shared_ptr<Mixer const> const& mixer,
                                  boost::shared_ptr<Track const> const& track)
{
    m_trackObservers.push_back(std::make_unique<TrackObserver>(this, mixer, track));
}

bool MediaObserver::isWatching(boost::shared_ptr<Mixer const> const& mixer,
                               boost::shared_ptr<Track const> const& track) const
{
    return std::any_of(m_trackObservers.begin(), m_trackObservers.end(),
                       [&](std::unique_ptr<TrackObserver> const& observer) {
                           return observer->mixer() == mixer && observer->track() == track;
                       });
}

void MediaObserver::updateTracks(boost::shared_ptr<Mixer const> const& mixer)
{
    ReadWriteMutex::ScopedReadLock lock(mixer->mutex());
    attachToMixer(mixer);
    m_trackObservers.remove_if([&](std::unique_ptr<TrackObserver> const& observer) {
        return observer->mixer() == mixer && !mixer->hasTrack(observer->track());
    });
}

}  // namespace tarn
