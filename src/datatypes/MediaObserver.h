#pragma once

#include "datatypes/Export.h"
#include "datatypes/Subject.h"
#include "datatypes/TarnObject.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <list>
#include <memory>
#include <string>

namespace tarn {

/// One subject for a whole timeline: notifies whenever the timeline, one of its mixers or one of
/// their tracks does, those added later included.
///
/// Medias are not watched, so a media added or removed is heard, but a move, a trim or a stretch is
/// not. Made and destroyed under the same lock as any edit; it keeps what it watches alive.
class TARN_API MediaObserver : public TarnObject, public Subject
{
public:
    explicit MediaObserver(boost::shared_ptr<Timeline const> const& timeline);
    ~MediaObserver() override;

    MediaObserver(MediaObserver const&) = delete;
    MediaObserver& operator=(MediaObserver const&) = delete;

    std::string description() const override;

private:
    class TimelineObserver;
    class MixerObserver;
    class TrackObserver;

    void updateMixers();
    void updateTracks(boost::shared_ptr<Mixer const> const& mixer);
    void watchMixer(boost::shared_ptr<Mixer const> const& mixer);
    bool isWatching(boost::shared_ptr<Mixer const> const& mixer) const;
    void setupNewMixer(boost::shared_ptr<Mixer const> const& mixer);
    void attachToMixer(boost::shared_ptr<Mixer const> const& mixer);
    void attachToTrack(boost::shared_ptr<Mixer const> const& mixer,
                       boost::shared_ptr<Track const> const& track);
    bool isWatching(boost::shared_ptr<Mixer const> const& mixer,
                    boost::shared_ptr<Track const> const& track) const;

    boost::shared_ptr<Timeline const> m_timeline;
    std::unique_ptr<TimelineObserver> m_timelineObserver;
    std::list<std::unique_ptr<MixerObserver>> m_mixerObservers;
    std::list<std::unique_ptr<TrackObserver>> m_trackObservers;
};

}  // namespace tarn
