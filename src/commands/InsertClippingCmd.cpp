#include "commands/InsertClippingCmd.h"

#include "clipbin/Clipping.h"
#include "commands/CommandHandler.h"
#include "commands/RequireObjects.h"
#include "commands/RippleUtil.h"
#include "commands/SplittingRippleMoveCmd.h"
#include "commands/XmlAttributes.h"
#include "timeline/AudioMixer.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"
#include "timeline/VisualMixer.h"

#include <ostream>

namespace tarn {

namespace {

void appendTracks(boost::shared_ptr<Mixer const> const& mixer, RippleUtil::ConstTrackVector* tracks)
{
    if (!mixer)
        return;
    for (unsigned int index = 0; index < mixer->numTracks(); ++index)
        tracks->push_back(mixer->trackAtIndex(index));
}

}  // namespace

InsertClippingCmd::InsertClippingCmd(boost::shared_ptr<Clipping> const& clipping, long long time)
    : TrackMapCommand(clipping ? clipping->timeline() : nullptr, time)
    , m_clipping(clipping)
    , m_time(time)
{}

boost::shared_ptr<InsertClippingCmd> InsertClippingCmd::create(
    boost::shared_ptr<Clipping> const& clipping, long long time)
{
    return boost::shared_ptr<InsertClippingCmd>(new InsertClippingCmd(clipping, time));
}

InsertClippingCmd* InsertClippingCmd::clone() const
{
    return new InsertClippingCmd(*this);
}

void InsertClippingCmd::executeCommands(CommandHandler const* handler)
{
    requireObjects(m_clipping);
    RippleUtil::ConstTrackVector tracks;
    appendTracks(handler->visualMixer(), &tracks);
    appendTracks(handler->audioMixer(), &tracks);

    if (RippleUtil::needsGroupedMoves(tracks, m_time)) {
        openGap(tracks);
    } else {
        for (boost::shared_ptr<Track const> const& track : tracks)
            openGap(RippleUtil::ConstTrackVector(1, track));
    }
    addMappedTracks();
}

void InsertClippingCmd::openGap(std::vector<boost::shared_ptr<Track const>> const& tracks)
{
    boost::shared_ptr<SplittingRippleMoveCmd> const ripple =
        SplittingRippleMoveCmd::create(m_time, m_clipping->timeline()->duration());
    for (boost::shared_ptr<Track const> const& track : tracks)
        ripple->addTrack(track);
    MultiCommand::execute(ripple);
}

void InsertClippingCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "InsertClippingCmd";
}

void InsertClippingCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("clipping", m_clipping).value("time", m_time);
}

}  // namespace tarn
