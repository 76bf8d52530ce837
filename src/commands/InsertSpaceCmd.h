#pragma once

#include "commands/MultiCommand.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <set>

namespace tarn {

///     before   V1: aabbbb.c
///     after    V1: aa....bbbb.c      20 at 40
///
/// Frees a stretch of the tracks that were added without cutting anything: a media that lies across
/// the location goes behind the new space as a whole, and what follows keeps its distance.
///
/// Each track shifts by what it needs. When medias that move on several tracks are linked, all
/// tracks shift by the most that one of them needs, and every group moves once. A size of 0 or less
/// and a command without tracks do nothing, successfully.
/// @throws what MoveCmd throws; then nothing has moved
class TARN_API InsertSpaceCmd : public MultiCommand
{
public:
    /// Edit units on the tracks' clock.
    static boost::shared_ptr<InsertSpaceCmd> create(long long location, long long size);

    /// Names a track to work on; before execution.
    void addTrack(boost::shared_ptr<Track const> const& track);

    long long location() const { return m_location; }
    long long size() const { return m_size; }

    InsertSpaceCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    InsertSpaceCmd(long long location, long long size);

    /// What takes a media that lies across the location behind a space of this size.
    long long shiftBehindSpace(boost::shared_ptr<Media const> const& media, long long size) const;
    void performRippleMove(long long offset, boost::shared_ptr<Track const> const& track);
    void executeRippleMoveAtEmptySpace(long long offset,
                                       boost::shared_ptr<Track const> const& track);
    void executeRippleMoveInsideMedia(long long offset, boost::shared_ptr<Track const> const& track,
                                      boost::shared_ptr<Media const> const& media);
    void executeRippleMoveLeftOfMedia(long long offset, boost::shared_ptr<Track const> const& track,
                                      boost::shared_ptr<Media const> const& media);
    void performGroupedMoves();

    std::set<boost::shared_ptr<Track const>> m_tracks;
    long long m_location;
    long long m_size;
};

}  // namespace tarn
