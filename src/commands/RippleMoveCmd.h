#pragma once

#include "commands/MultiCommand.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

///     before   V1: aaabb..cc
///     after    V1: aaa...bb..cc      from b by +30
///
/// Shifts one media of a track and all that follow it there; gaps travel with them. Each media is
/// moved by a command of its own, the last first when shifting right and the first first otherwise,
/// so that none meets one still to be moved. A first media that is not on the track moves nothing.
/// @throws what MoveCmd throws; then nothing has moved
class TARN_API RippleMoveCmd : public MultiCommand
{
public:
    /// `offset` is in edit units on the track's clock.
    static boost::shared_ptr<RippleMoveCmd> create(boost::shared_ptr<Track const> const& track,
                                                   boost::shared_ptr<Media const> const& firstMedia,
                                                   long long offset);

    RippleMoveCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    RippleMoveCmd(boost::shared_ptr<Track const> const& track,
                  boost::shared_ptr<Media const> const& firstMedia, long long offset);

    boost::shared_ptr<Track const> m_track;
    boost::shared_ptr<Media const> m_firstMedia;
    long long m_offset;
};

}  // namespace tarn
