#include "commands/MoveRightEdgeModCmd.h"

#include "commands/EdgeModCommandHandler.h"
#include "edgemods/EdgeModifiable.h"

#include <ostream>

namespace tarn {

MoveRightEdgeModCmd::MoveRightEdgeModCmd(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable, long long delta)
    : MoveEdgeModCmd(edgeModifiable, delta)
{}

boost::shared_ptr<MoveRightEdgeModCmd> MoveRightEdgeModCmd::create(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable, long long delta)
{
    return boost::shared_ptr<MoveRightEdgeModCmd>(new MoveRightEdgeModCmd(edgeModifiable, delta));
}

MoveRightEdgeModCmd* MoveRightEdgeModCmd::clone() const
{
    return new MoveRightEdgeModCmd(*this);
}

long long MoveRightEdgeModCmd::edgeLength(EdgeModifiable const& edgeModifiable) const
{
    return edgeModifiable.rightEdgeModificationLength();
}

void MoveRightEdgeModCmd::setEdgeLength(
    EdgeModCommandHandler* handler, boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
    long long length)
{
    handler->setRightEdgeModificationLength(edgeModifiable, length);
}

void MoveRightEdgeModCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "MoveRightEdgeModCmd";
}

}  // namespace tarn
