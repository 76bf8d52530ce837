#include "timeline/Timeline.h"

#include "datatypes/LinkUtil.h"
#include "parameters/LeftParameter.h"
#include "project/ReadWriteMutex.h"
#include "timeline/AudioMixer.h"
#include "timeline/VisualMixer.h"

// Clones of a timeline and of parts of it.

namespace tarn {

Timeline::Timeline(Timeline const& other) : Timeline(other, WithoutMixers())
{
    if (other.m_visualMixer) {
        m_visualMixer.reset(other.m_visualMixer->clone());
    }
    if (other.m_audioMixer) {
        m_audioMixer.reset(other.m_audioMixer->clone());
    }
}

Timeline::Timeline(Timeline const& other, WithoutMixers)
    : XMLIdentified(other)
    , SubProject(other)
    , XMLable(other)
    , Cloneable(other)
    , Subject(other)
    , Temporal(other)
    , Parametric(other)
    , m_marker(other.m_marker->clone())
{}

Timeline* Timeline::clone() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return new Timeline(*this);
}

template <class CopyMixer>
boost::shared_ptr<Timeline> Timeline::copyMixers(CopyMixer copyMixer) const
{
    boost::shared_ptr<Timeline> const copy(new Timeline(*this, WithoutMixers()));
    if (m_visualMixer) {
        boost::shared_ptr<VisualMixer> const mixer = copyMixer(*m_visualMixer);
        if (mixer->numTracks() > 0) {
            copy->newVisualMixer(mixer);
        }
    }
    if (m_audioMixer) {
        boost::shared_ptr<AudioMixer> const mixer = copyMixer(*m_audioMixer);
        if (mixer->numTracks() > 0) {
            copy->newAudioMixer(mixer);
        }
    }
    return copy;
}

boost::shared_ptr<Timeline> Timeline::copyPortion(Range<long long> const& range,
                                                  ConstTrackSet const& tracks,
                                                  MediaCloneMap* map) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    MediaCloneMap ownMap;
    MediaCloneMap* const clones = map ? map : &ownMap;
    ConstTrackSet affected;
    LinkUtil::tracksAffectedByRangeWithLinks(range, tracks, &affected);
    return copyMixers(
        [&](auto const& mixer) { return mixer.copyPortion(range, affected, clones); });
}

boost::shared_ptr<Timeline> Timeline::copyPortion(ConstMediaVector const& medias,
                                                  MediaCloneMap* map) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    MediaCloneMap ownMap;
    MediaCloneMap* const clones = map ? map : &ownMap;
    return copyMixers([&](auto const& mixer) { return mixer.copyPortion(medias, clones); });
}

}  // namespace tarn
