#include "commands/RenameMarkerCmd.h"

#include "commands/MarkerUtil.h"

#include <ostream>

namespace tarn {

RenameMarkerCmd::RenameMarkerCmd(boost::shared_ptr<Timeline const> const& timeline, long long time,
                                 std::string const& name)
    : ChangeKeyFrameCmd<std::string>(MarkerUtil::markersOf(timeline), time, name)
{}

boost::shared_ptr<RenameMarkerCmd> RenameMarkerCmd::create(
    boost::shared_ptr<Timeline const> const& timeline, long long time, std::string const& name)
{
    return boost::shared_ptr<RenameMarkerCmd>(new RenameMarkerCmd(timeline, time, name));
}

RenameMarkerCmd* RenameMarkerCmd::clone() const
{
    return new RenameMarkerCmd(*this);
}

void RenameMarkerCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "RenameMarkerCmd";
}

}  // namespace tarn
