#include "commands/AddTimelinesTracksCmd.h"

#include "commands/AddMediaCmd.h"
#include "commands/RequireObjects.h"
#include "commands/XmlAttributes.h"
#include "datatypes/Cloneable.h"
#include "datatypes/SaturatedArithmetic.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/MediaCollections.h"
#include "timeline/Timeline.h"

#include <algorithm>
#include <ostream>

namespace tarn {

namespace {

ConstMediaVector mediasOf(Track const& track)
{
    ConstMediaVector medias;
    medias.reserve(track.numMedias());
    for (auto it = track.mediaBegin(), end = track.mediaEnd(); it != end; ++it)
        medias.push_back(it->second);
    return medias;
}

}  // namespace

template <class T>
AddTimelinesTracksCmd<T>::AddTimelinesTracksCmd(boost::shared_ptr<Timeline const> const& timeline,
                                                long long time)
    : m_timeline(timeline), m_time(time)
{}

template <class T>
boost::shared_ptr<AddTimelinesTracksCmd<T>> AddTimelinesTracksCmd<T>::create(
    boost::shared_ptr<Timeline const> const& timeline, long long time)
{
    return boost::shared_ptr<AddTimelinesTracksCmd<T>>(
        new AddTimelinesTracksCmd<T>(timeline, time));
}

template <class T>
void AddTimelinesTracksCmd<T>::addTrackMap(boost::shared_ptr<T const> const& fromTrack,
                                           boost::shared_ptr<T const> const& destTrack)
{
    m_trackMaps.push_back(TrackMap(fromTrack, destTrack));
}

template <class T>
bool AddTimelinesTracksCmd<T>::hasMapping(boost::shared_ptr<T const> const& fromTrack) const
{
    return std::any_of(
        m_trackMaps.begin(), m_trackMaps.end(),
        [&fromTrack](TrackMap const& trackMap) { return trackMap.first == fromTrack; });
}

template <class T>
boost::shared_ptr<T const> AddTimelinesTracksCmd<T>::mappedTrack(
    boost::shared_ptr<T const> const& fromTrack) const
{
    for (TrackMap const& trackMap : m_trackMaps) {
        if (trackMap.first == fromTrack)
            return trackMap.second;
    }
    return boost::shared_ptr<T const>();
}

template <class T>
AddTimelinesTracksCmd<T>* AddTimelinesTracksCmd<T>::clone() const
{
    return new AddTimelinesTracksCmd<T>(*this);
}

template <class T>
void AddTimelinesTracksCmd<T>::executeCommands(CommandHandler const*)
{
    requireObjects(m_timeline);
    for (TrackMap const& trackMap : m_trackMaps)
        requireObjects(trackMap.first, trackMap.second);
    m_addedMedias.clear();
    for (TrackMap const& trackMap : m_trackMaps)
        addTrackMedias(trackMap);
}

template <class T>
void AddTimelinesTracksCmd<T>::addTrackMedias(TrackMap const& trackMap)
{
    boost::shared_ptr<Track const> const destination = trackMap.second;
    ConstMediaVector const medias = mediasOf(*trackMap.first);
    makeRoomFor(medias.size());
    for (boost::shared_ptr<Media const> const& media : medias) {
        m_addedMedias.push_back(sharedClone<Media>(media));
        MultiCommand::execute(AddMediaCmd::create(destination, m_addedMedias.back(),
                                                  saturatedSum(media->trackRange().start, m_time)));
    }
}

template <class T>
void AddTimelinesTracksCmd<T>::xmlName(XMLable::Options& options) const
{
    *options.stream << "AddTimelinesTracksCmd";
}

template <class T>
void AddTimelinesTracksCmd<T>::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).value("time", m_time).ident("clip", m_timeline);
}

template <class T>
void AddTimelinesTracksCmd<T>::xmlBody(XMLable::Options& options, int indent) const
{
    std::ostream& stream = *options.stream;
    stream << XMLable::genIndent(indent) << "<TrackMaps>\n";
    for (TrackMap const& trackMap : m_trackMaps) {
        stream << XMLable::genIndent(indent + 1) << "<Map ";
        XmlAttributes(options)
            .ident("clipTrack", trackMap.first)
            .ident("destTrack", trackMap.second);
        stream << "/>\n";
    }
    stream << XMLable::genIndent(indent) << "</TrackMaps>\n";
}

template class AddTimelinesTracksCmd<AbstractVisualTrack>;
template class AddTimelinesTracksCmd<AudioTrack>;

}  // namespace tarn
