#include "commands/PutClippingCmd.h"

#include "clipbin/Clipping.h"
#include "commands/RequireObjects.h"
#include "commands/XmlAttributes.h"
#include "timeline/Timeline.h"

#include <ostream>

namespace tarn {

PutClippingCmd::PutClippingCmd(boost::shared_ptr<Clipping> const& clipping, long long time)
    : TrackMapCommand(clipping ? clipping->timeline() : nullptr, time)
    , m_clipping(clipping)
    , m_time(time)
{}

boost::shared_ptr<PutClippingCmd> PutClippingCmd::create(
    boost::shared_ptr<Clipping> const& clipping, long long time)
{
    return boost::shared_ptr<PutClippingCmd>(new PutClippingCmd(clipping, time));
}

PutClippingCmd* PutClippingCmd::clone() const
{
    return new PutClippingCmd(*this);
}

void PutClippingCmd::executeCommands(CommandHandler const*)
{
    requireObjects(m_clipping);
    addMappedTracks();
}

void PutClippingCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "PutClippingCmd";
}

void PutClippingCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("clipping", m_clipping).value("time", m_time);
}

}  // namespace tarn
