#pragma once

#include "commands/AtomicEditCmd.h"

namespace tarn {

///     before   A1: aaa... / V1: aaa...
///     after    A1: ...aaa / V1: ...aaa      by +30
///
/// Shifts a media and those linked to it along their tracks.
/// @throws CollisionException on execution with the medias in the way
/// @throws LinkException on execution when the track ranges of linked medias differ
class TARN_API MoveCmd : public AtomicEditCmd
{
public:
    /// `offset` is relative, in edit units on the track's clock.
    static boost::shared_ptr<MoveCmd> create(boost::shared_ptr<Track const> track,
                                             boost::shared_ptr<Media const> media,
                                             long long offset);

    MoveCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    /// Adds up the offsets of two on the same track and media.
    boost::shared_ptr<Command> combine(boost::shared_ptr<Command> const& next) override;

    void xmlName(XMLable::Options& options) const override;
    /// The media, and then its entry.
    void fetchAhead(Turn turn) const override;

private:
    friend class OnePiece<MoveCmd>;

    MoveCmd(boost::shared_ptr<Track const> track, boost::shared_ptr<Media const> media,
            long long offset);
};

}  // namespace tarn
