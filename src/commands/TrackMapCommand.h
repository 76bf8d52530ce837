#pragma once

#include "commands/CommandsFwd.h"
#include "commands/MultiCommand.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

///     before   A1: ...... / V1: bb....
///     after    A1: ..cc.. / V1: bbaaa.      visual track aaa to V1 and audio track cc to A1, at 20
///
/// The family of commands that put a private timeline on the project's tracks, as a paste and the
/// placing of a source do. The caller maps tracks of that timeline to tracks of the project; what
/// is not mapped is not copied.
class TARN_API TrackMapCommand : public MultiCommand
{
public:
    /// T is AbstractVisualTrack or AudioTrack.
    template <class T>
    void addTrackMap(boost::shared_ptr<T const> const& fromTrack,
                     boost::shared_ptr<T const> const& destTrack);
    /// Whether that track has a destination.
    template <class T>
    bool hasMapping(boost::shared_ptr<T const> const& fromTrack) const;
    /// Empty for a track without a mapping.
    template <class T>
    boost::shared_ptr<T const> mappedTrack(boost::shared_ptr<T const> const& fromTrack) const;

    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    /// `time`, in edit units on the project's clock, is where the timeline's zero falls.
    TrackMapCommand(boost::shared_ptr<Timeline const> const& timeline, long long time);
    TrackMapCommand(TrackMapCommand const& other);

    /// Runs the visual command, then the audio one.
    void addMappedTracks();

    template <class T>
    boost::shared_ptr<AddTimelinesTracksCmd<T>> const& tracksCommand() const;

private:
    boost::shared_ptr<AddTimelinesTracksCmd<AbstractVisualTrack>> m_visualTracks;
    boost::shared_ptr<AddTimelinesTracksCmd<AudioTrack>> m_audioTracks;
};

template <>
boost::shared_ptr<AddTimelinesTracksCmd<AbstractVisualTrack>> const&
TrackMapCommand::tracksCommand<AbstractVisualTrack>() const;
template <>
boost::shared_ptr<AddTimelinesTracksCmd<AudioTrack>> const&
TrackMapCommand::tracksCommand<AudioTrack>() const;

}  // namespace tarn
