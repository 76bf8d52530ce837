#pragma once

#include "commands/AtomicEditCmd.h"

namespace tarn {

///     before   A1: aaaaaa / V1: aaaaaa
///     after    A1: ..aaaa / V1: ..aaaa      by +20
///
/// Moves the start of a media and of those linked to it, while the end stays. A positive offset
/// shortens.
/// @throws CollisionException on execution with the medias in the way
/// @throws ValueException<long long> on execution for an offset beyond what the source offers
/// @throws LinkException on execution when the track ranges of linked medias differ
class TARN_API TrimStartCmd : public AtomicEditCmd
{
public:
    /// `offset` is relative, in edit units on the track's clock.
    static boost::shared_ptr<TrimStartCmd> create(boost::shared_ptr<Track const> track,
                                                  boost::shared_ptr<Media const> media,
                                                  long long offset);

    TrimStartCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    /// Adds up the offsets of two on the same track and media.
    boost::shared_ptr<Command> combine(boost::shared_ptr<Command> const& next) override;

    void xmlName(XMLable::Options& options) const override;

private:
    friend class OnePiece<TrimStartCmd>;

    TrimStartCmd(boost::shared_ptr<Track const> track, boost::shared_ptr<Media const> media,
                 long long offset);
};

}  // namespace tarn
