#include "commands/AddMarkerCmd.h"

#include "commands/MarkerUtil.h"

#include <ostream>

namespace tarn {

AddMarkerCmd::AddMarkerCmd(boost::shared_ptr<Timeline const> const& timeline, long long time,
                           std::string const& name)
    : AddKeyFrameCmd<std::string>(MarkerUtil::markersOf(timeline), time, name)
{}

boost::shared_ptr<AddMarkerCmd> AddMarkerCmd::create(
    boost::shared_ptr<Timeline const> const& timeline, long long time, std::string const& name)
{
    return boost::shared_ptr<AddMarkerCmd>(new AddMarkerCmd(timeline, time, name));
}

AddMarkerCmd* AddMarkerCmd::clone() const
{
    return new AddMarkerCmd(*this);
}

void AddMarkerCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "AddMarkerCmd";
}

}  // namespace tarn
