#include "commands/MoveLeftEdgeModCmd.h"

#include "commands/EdgeModCommandHandler.h"
#include "edgemods/EdgeModifiable.h"

#include <ostream>

namespace tarn {

MoveLeftEdgeModCmd::MoveLeftEdgeModCmd(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable, long long delta)
    : MoveEdgeModCmd(edgeModifiable, delta)
{}

boost::shared_ptr<MoveLeftEdgeModCmd> MoveLeftEdgeModCmd::create(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable, long long delta)
{
    return boost::shared_ptr<MoveLeftEdgeModCmd>(new MoveLeftEdgeModCmd(edgeModifiable, delta));
}

MoveLeftEdgeModCmd* MoveLeftEdgeModCmd::clone() const
{
    return new MoveLeftEdgeModCmd(*this);
}

long long MoveLeftEdgeModCmd::edgeLength(EdgeModifiable const& edgeModifiable) const
{
    return edgeModifiable.leftEdgeModificationLength();
}

void MoveLeftEdgeModCmd::setEdgeLength(
    EdgeModCommandHandler* handler, boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
    long long length)
{
    handler->setLeftEdgeModificationLength(edgeModifiable, length);
}

void MoveLeftEdgeModCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "MoveLeftEdgeModCmd";
}

}  // namespace tarn
