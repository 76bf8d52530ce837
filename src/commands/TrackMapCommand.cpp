#include "commands/TrackMapCommand.h"

#include "commands/AddTimelinesTracksCmd.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioTrack.h"
#include "timeline/Timeline.h"

namespace tarn {

TrackMapCommand::TrackMapCommand(boost::shared_ptr<Timeline const> const& timeline, long long time)
    : m_visualTracks(AddTimelinesTracksCmd<AbstractVisualTrack>::create(timeline, time))
    , m_audioTracks(AddTimelinesTracksCmd<AudioTrack>::create(timeline, time))
{}

TrackMapCommand::TrackMapCommand(TrackMapCommand const& other)
    : XMLIdentified(other)
    , MultiCommand(other)
    , m_visualTracks(other.m_visualTracks->clone())
    , m_audioTracks(other.m_audioTracks->clone())
{}

void TrackMapCommand::addMappedTracks()
{
    MultiCommand::execute(m_visualTracks);
    MultiCommand::execute(m_audioTracks);
}

template <>
boost::shared_ptr<AddTimelinesTracksCmd<AbstractVisualTrack>> const&
TrackMapCommand::tracksCommand<AbstractVisualTrack>() const
{
    return m_visualTracks;
}

template <>
boost::shared_ptr<AddTimelinesTracksCmd<AudioTrack>> const&
TrackMapCommand::tracksCommand<AudioTrack>() const
{
    return m_audioTracks;
}

template <class T>
void TrackMapCommand::addTrackMap(boost::shared_ptr<T const> const& fromTrack,
                                  boost::shared_ptr<T const> const& destTrack)
{
    tracksCommand<T>()->addTrackMap(fromTrack, destTrack);
}

template <class T>
bool TrackMapCommand::hasMapping(boost::shared_ptr<T const> const& fromTrack) const
{
    return tracksCommand<T>()->hasMapping(fromTrack);
}

template <class T>
boost::shared_ptr<T const> TrackMapCommand::mappedTrack(
    boost::shared_ptr<T const> const& fromTrack) const
{
    return tracksCommand<T>()->mappedTrack(fromTrack);
}

void TrackMapCommand::xmlBody(XMLable::Options& options, int indent) const
{
    m_visualTracks->toXML(options, indent, "");
    m_audioTracks->toXML(options, indent, "");
}

template TARN_API void TrackMapCommand::addTrackMap<AbstractVisualTrack>(
    boost::shared_ptr<AbstractVisualTrack const> const&,
    boost::shared_ptr<AbstractVisualTrack const> const&);
template TARN_API void TrackMapCommand::addTrackMap<AudioTrack>(
    boost::shared_ptr<AudioTrack const> const&, boost::shared_ptr<AudioTrack const> const&);
template TARN_API bool TrackMapCommand::hasMapping<AbstractVisualTrack>(
    boost::shared_ptr<AbstractVisualTrack const> const&) const;
template TARN_API bool TrackMapCommand::hasMapping<AudioTrack>(
    boost::shared_ptr<AudioTrack const> const&) const;
template TARN_API boost::shared_ptr<AbstractVisualTrack const> TrackMapCommand::mappedTrack<
    AbstractVisualTrack>(boost::shared_ptr<AbstractVisualTrack const> const&) const;
template TARN_API boost::shared_ptr<AudioTrack const> TrackMapCommand::mappedTrack<AudioTrack>(
    boost::shared_ptr<AudioTrack const> const&) const;

}  // namespace tarn
