#include "commands/RemoveRangeMediaCmd.h"

#include "commands/RemoveMediaCmd.h"
#include "commands/RequireObjects.h"
#include "commands/SplitCmd.h"
#include "commands/XmlAttributes.h"
#include "timeline/Media.h"
#include "timeline/Pair.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"

#include <ostream>

namespace tarn {

RemoveRangeMediaCmd::RemoveRangeMediaCmd(boost::shared_ptr<Timeline const> const& timeline,
                                         Range<long long> const& range)
    : m_timeline(timeline), m_range(range)
{}

boost::shared_ptr<RemoveRangeMediaCmd> RemoveRangeMediaCmd::create(
    boost::shared_ptr<Timeline const> const& timeline, Range<long long> const& range)
{
    return boost::shared_ptr<RemoveRangeMediaCmd>(new RemoveRangeMediaCmd(timeline, range));
}

void RemoveRangeMediaCmd::addTrack(boost::shared_ptr<Track const> const& track)
{
    m_tracks.push_back(track);
}

RemoveRangeMediaCmd* RemoveRangeMediaCmd::clone() const
{
    return new RemoveRangeMediaCmd(*this);
}

void RemoveRangeMediaCmd::executeCommands(CommandHandler const*)
{
    requireObjects(m_timeline);
    requireEachObject(m_tracks);
    for (boost::shared_ptr<Track const> const& track : m_tracks) {
        boost::shared_ptr<TrackSubSection<Media>> const subSection = track->subSection(m_range);
        for (TrackSubSection<Media>::MediaRange const& part : *subSection)
            removePortion(track, part.media, part.range);
    }
}

void RemoveRangeMediaCmd::removePortion(boost::shared_ptr<Track const> const& track,
                                        boost::shared_ptr<Media const> const& media,
                                        Range<long long> const& portion)
{
    if (portion.end() < media->endTime())
        MultiCommand::execute(SplitCmd::create(track, portion.end()));
    if (portion.start > media->startTime())
        MultiCommand::execute(SplitCmd::create(track, portion.start));

    // Nothing is left here when a media linked to this one, on the same track, took it along.
    boost::shared_ptr<Media const> const piece = track->mediaAtTime(portion.start).second;
    if (piece)
        MultiCommand::execute(RemoveMediaCmd<Media>::create(track, piece));
}

void RemoveRangeMediaCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "RemoveRangeMediaCmd";
}

void RemoveRangeMediaCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("target", m_timeline).value("range", m_range);
}

}  // namespace tarn
