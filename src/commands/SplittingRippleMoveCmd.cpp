#include "commands/SplittingRippleMoveCmd.h"

#include "commands/GroupUtil.h"
#include "commands/MoveCmd.h"
#include "commands/RequireObjects.h"
#include "commands/RippleMoveCmd.h"
#include "commands/RippleUtil.h"
#include "commands/SplitCmd.h"
#include "commands/XmlAttributes.h"
#include "exceptions/TarnMediaLibException.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <algorithm>
#include <ostream>
#include <sstream>

namespace tarn {

SplittingRippleMoveCmd::SplittingRippleMoveCmd(long long time, long long offset)
    : m_time(time), m_offset(offset)
{}

boost::shared_ptr<SplittingRippleMoveCmd> SplittingRippleMoveCmd::create(long long time,
                                                                         long long offset)
{
    return boost::shared_ptr<SplittingRippleMoveCmd>(new SplittingRippleMoveCmd(time, offset));
}

void SplittingRippleMoveCmd::addTrack(boost::shared_ptr<Track const> const& track)
{
    if (std::find(m_tracks.begin(), m_tracks.end(), track) == m_tracks.end())
        m_tracks.push_back(track);
}

SplittingRippleMoveCmd* SplittingRippleMoveCmd::clone() const
{
    return new SplittingRippleMoveCmd(*this);
}

void SplittingRippleMoveCmd::executeCommands(CommandHandler const*)
{
    requireEachObject(m_tracks);
    if (m_tracks.empty())
        throw TarnMediaLibException("can't perform a splitting ripple move without tracks");

    if (RippleUtil::needsGroupedMoves(m_tracks, m_time)) {
        performGroupedMoves();
        return;
    }
    for (boost::shared_ptr<Track const> const& track : m_tracks)
        performSplittingRippleMove(track);
}

void SplittingRippleMoveCmd::splitAcrossTime(boost::shared_ptr<Track const> const& track)
{
    if (RippleUtil::mediaHolding(track, m_time))
        MultiCommand::execute(SplitCmd::create(track, m_time));
}

void SplittingRippleMoveCmd::performSplittingRippleMove(boost::shared_ptr<Track const> const& track)
{
    splitAcrossTime(track);
    if (boost::shared_ptr<Media const> const first = RippleUtil::firstMediaFrom(track, m_time))
        MultiCommand::execute(RippleMoveCmd::create(track, first, m_offset));
}

void SplittingRippleMoveCmd::performGroupedMoves()
{
    // All cuts come first: a cut takes the linked medias along, which finds later tracks cut
    // already.
    for (boost::shared_ptr<Track const> const& track : m_tracks)
        splitAcrossTime(track);

    ConstMediaVector medias;
    for (boost::shared_ptr<Track const> const& track : m_tracks) {
        ConstMediaVector const onTrack = RippleUtil::mediasFrom(track, m_time);
        medias.insert(medias.end(), onTrack.begin(), onTrack.end());
    }

    ConstMediaVector groups = RippleUtil::oneOfEachGroup(medias);
    RippleUtil::sortForMove(m_offset, &groups);
    for (boost::shared_ptr<Media const> const& media : groups)
        MultiCommand::execute(MoveCmd::create(GroupUtil::parentTrack(media), media, m_offset));
}

void SplittingRippleMoveCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "SplittingRippleMoveCmd";
}

void SplittingRippleMoveCmd::xmlAttributes(XMLable::Options& options) const
{
    std::ostringstream tracks;
    char const* separator = "";
    for (boost::shared_ptr<Track const> const& track : m_tracks) {
        tracks << separator << track->xmlIdent();
        separator = " ";
    }
    XmlAttributes(options)
        .value("tracks", tracks.str())
        .value("time", m_time)
        .value("offset", m_offset);
}

void SplittingRippleMoveCmd::xmlBody(XMLable::Options& options, int indent) const
{
    xmlOfCommands(options, indent);
}

}  // namespace tarn
