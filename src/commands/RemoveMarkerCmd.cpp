#include "commands/RemoveMarkerCmd.h"

#include "commands/MarkerUtil.h"

#include <ostream>

namespace tarn {

RemoveMarkerCmd::RemoveMarkerCmd(boost::shared_ptr<Timeline const> const& timeline, long long time)
    : RemoveKeyFrameCmd<std::string>(MarkerUtil::markersOf(timeline), time)
{}

boost::shared_ptr<RemoveMarkerCmd> RemoveMarkerCmd::create(
    boost::shared_ptr<Timeline const> const& timeline, long long time)
{
    return boost::shared_ptr<RemoveMarkerCmd>(new RemoveMarkerCmd(timeline, time));
}

RemoveMarkerCmd* RemoveMarkerCmd::clone() const
{
    return new RemoveMarkerCmd(*this);
}

void RemoveMarkerCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "RemoveMarkerCmd";
}

}  // namespace tarn
