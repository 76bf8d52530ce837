#include "commands/InsertSpaceCmd.h"

#include "commands/GroupUtil.h"
#include "commands/MoveCmd.h"
#include "commands/RequireObjects.h"
#include "commands/RippleMoveCmd.h"
#include "commands/RippleUtil.h"
#include "commands/SplittingRippleMoveCmd.h"
#include "datatypes/SaturatedArithmetic.h"
#include "timeline/Media.h"
#include "timeline/Pair.h"
#include "timeline/Track.h"

#include <algorithm>
#include <ostream>

namespace tarn {

InsertSpaceCmd::InsertSpaceCmd(long long location, long long size)
    : m_location(location), m_size(size)
{}

boost::shared_ptr<InsertSpaceCmd> InsertSpaceCmd::create(long long location, long long size)
{
    return boost::shared_ptr<InsertSpaceCmd>(new InsertSpaceCmd(location, size));
}

void InsertSpaceCmd::addTrack(boost::shared_ptr<Track const> const& track)
{
    m_tracks.insert(track);
}

InsertSpaceCmd* InsertSpaceCmd::clone() const
{
    return new InsertSpaceCmd(*this);
}

void InsertSpaceCmd::executeCommands(CommandHandler const*)
{
    requireEachObject(m_tracks);
    if (m_tracks.empty() || m_size <= 0)
        return;

    if (RippleUtil::needsGroupedMoves({m_tracks.begin(), m_tracks.end()}, m_location)) {
        performGroupedMoves();
        return;
    }
    for (boost::shared_ptr<Track const> const& track : m_tracks)
        performRippleMove(m_size, track);
}

void InsertSpaceCmd::performRippleMove(long long offset,
                                       boost::shared_ptr<Track const> const& track)
{
    Pair<boost::shared_ptr<Media const>> const sides = track->mediaAtTime(m_location);
    if (!sides.second)
        executeRippleMoveAtEmptySpace(offset, track);
    else if (sides.first == sides.second)
        executeRippleMoveInsideMedia(offset, track, sides.second);
    else
        executeRippleMoveLeftOfMedia(offset, track, sides.second);
}

void InsertSpaceCmd::executeRippleMoveAtEmptySpace(long long offset,
                                                   boost::shared_ptr<Track const> const& track)
{
    boost::shared_ptr<SplittingRippleMoveCmd> const ripple =
        SplittingRippleMoveCmd::create(m_location, offset);
    ripple->addTrack(track);
    MultiCommand::execute(ripple);
}

void InsertSpaceCmd::executeRippleMoveInsideMedia(long long offset,
                                                  boost::shared_ptr<Track const> const& track,
                                                  boost::shared_ptr<Media const> const& media)
{
    MultiCommand::execute(RippleMoveCmd::create(track, media, shiftBehindSpace(media, offset)));
}

void InsertSpaceCmd::executeRippleMoveLeftOfMedia(long long offset,
                                                  boost::shared_ptr<Track const> const& track,
                                                  boost::shared_ptr<Media const> const& media)
{
    MultiCommand::execute(RippleMoveCmd::create(track, media, offset));
}

long long InsertSpaceCmd::shiftBehindSpace(boost::shared_ptr<Media const> const& media,
                                           long long size) const
{
    return saturatedDifference(saturatedSum(m_location, size), media->trackRange().start);
}

void InsertSpaceCmd::performGroupedMoves()
{
    ConstMediaVector medias;
    long long shift = m_size;
    for (boost::shared_ptr<Track const> const& track : m_tracks) {
        ConstMediaVector const onTrack = RippleUtil::mediasReachingBeyond(track, m_location);
        medias.insert(medias.end(), onTrack.begin(), onTrack.end());
        if (boost::shared_ptr<Media const> const holding =
                RippleUtil::mediaHolding(track, m_location))
            shift = std::max(shift, shiftBehindSpace(holding, m_size));
    }

    ConstMediaVector groups = RippleUtil::oneOfEachGroup(medias);
    RippleUtil::sortForMove(shift, &groups);
    for (boost::shared_ptr<Media const> const& media : groups)
        MultiCommand::execute(MoveCmd::create(GroupUtil::parentTrack(media), media, shift));
}

void InsertSpaceCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "InsertSpaceCmd";
}

}  // namespace tarn
