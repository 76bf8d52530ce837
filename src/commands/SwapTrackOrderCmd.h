#pragma once

#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Exchanges the places of two tracks on a mixer.
/// @throws ValueException<boost::shared_ptr<Track const>> on execution for a track not on the mixer
class TARN_API SwapTrackOrderCmd : public Command
{
public:
    static boost::shared_ptr<SwapTrackOrderCmd> create(
        boost::shared_ptr<Mixer const> const& mixer, boost::shared_ptr<Track const> const& track1,
        boost::shared_ptr<Track const> const& track2);

    SwapTrackOrderCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

private:
    SwapTrackOrderCmd(boost::shared_ptr<Mixer const> const& mixer,
                      boost::shared_ptr<Track const> const& track1,
                      boost::shared_ptr<Track const> const& track2);

    boost::shared_ptr<Mixer const> m_mixer;
    boost::shared_ptr<Track const> m_track1;
    boost::shared_ptr<Track const> m_track2;
};

}  // namespace tarn
