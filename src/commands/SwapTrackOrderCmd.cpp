#include "commands/SwapTrackOrderCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "timeline/Mixer.h"
#include "timeline/Track.h"

#include <ostream>

namespace tarn {

SwapTrackOrderCmd::SwapTrackOrderCmd(boost::shared_ptr<Mixer const> const& mixer,
                                     boost::shared_ptr<Track const> const& track1,
                                     boost::shared_ptr<Track const> const& track2)
    : m_mixer(mixer), m_track1(track1), m_track2(track2)
{}

boost::shared_ptr<SwapTrackOrderCmd> SwapTrackOrderCmd::create(
    boost::shared_ptr<Mixer const> const& mixer, boost::shared_ptr<Track const> const& track1,
    boost::shared_ptr<Track const> const& track2)
{
    return boost::shared_ptr<SwapTrackOrderCmd>(new SwapTrackOrderCmd(mixer, track1, track2));
}

SwapTrackOrderCmd* SwapTrackOrderCmd::clone() const
{
    return new SwapTrackOrderCmd(*this);
}

bool SwapTrackOrderCmd::execute(CommandHandler* handler)
{
    handler->swapTrackOrder(m_mixer, m_track1, m_track2);
    return true;
}

bool SwapTrackOrderCmd::unexecute(CommandHandler* handler)
{
    // A swap is its own reverse.
    handler->swapTrackOrder(m_mixer, m_track1, m_track2);
    return true;
}

void SwapTrackOrderCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "SwapTrackOrderCmd";
}

void SwapTrackOrderCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options)
        .address("mixer", m_mixer)
        .address("track1", m_track1)
        .address("track2", m_track2);
}

}  // namespace tarn
