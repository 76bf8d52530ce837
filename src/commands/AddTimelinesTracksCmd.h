#pragma once

#include "commands/MultiCommand.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <list>
#include <utility>

namespace tarn {

///     before   V1: ......
///     after    V1: ..cc.d      the timeline's track aa.b to V1, at 20
///
/// Puts clones of all medias on some tracks of a private timeline on tracks of the project. The
/// timeline's zero falls on the command's time. T is AbstractVisualTrack or AudioTrack.
/// @throws what AddMediaCmd throws; then nothing was added
template <class T>
class TARN_API AddTimelinesTracksCmd : public MultiCommand
{
public:
    using TrackMap = std::pair<boost::shared_ptr<T const>, boost::shared_ptr<T const>>;

    /// `time` is in edit units on the project's clock.
    static boost::shared_ptr<AddTimelinesTracksCmd<T>> create(
        boost::shared_ptr<Timeline const> const& timeline, long long time);

    /// Mapping a track to a second destination gives clones on both.
    void addTrackMap(boost::shared_ptr<T const> const& fromTrack,
                     boost::shared_ptr<T const> const& destTrack);
    /// Whether that track has a destination.
    bool hasMapping(boost::shared_ptr<T const> const& fromTrack) const;
    /// The first destination given; empty without one.
    boost::shared_ptr<T const> mappedTrack(boost::shared_ptr<T const> const& fromTrack) const;

    boost::shared_ptr<Timeline const> const& timeline() const { return m_timeline; }
    long long time() const { return m_time; }
    /// The clones, in the order they were added.
    std::list<boost::shared_ptr<Media const>> const& addedMedias() const { return m_addedMedias; }

    AddTimelinesTracksCmd<T>* clone() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    AddTimelinesTracksCmd(boost::shared_ptr<Timeline const> const& timeline, long long time);

    void addTrackMedias(TrackMap const& trackMap);

    boost::shared_ptr<Timeline const> m_timeline;
    long long m_time;
    std::list<TrackMap> m_trackMaps;
    std::list<boost::shared_ptr<Media const>> m_addedMedias;
};

extern template class TARN_API AddTimelinesTracksCmd<AbstractVisualTrack>;
extern template class TARN_API AddTimelinesTracksCmd<AudioTrack>;

}  // namespace tarn
