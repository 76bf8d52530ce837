#include "commands/RemoveRightEdgeModCmd.h"

#include "commands/EdgeModCommandHandler.h"
#include "edgemods/EdgeModifiable.h"
#include "parameters/Parameter.h"

#include <ostream>

namespace tarn {

RemoveRightEdgeModCmd::RemoveRightEdgeModCmd(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
    boost::shared_ptr<Parameter<double> const> const& parameter)
    : RemoveEdgeModCmd(edgeModifiable, parameter)
{}

boost::shared_ptr<RemoveRightEdgeModCmd> RemoveRightEdgeModCmd::create(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
    boost::shared_ptr<Parameter<double> const> const& parameter)
{
    return boost::shared_ptr<RemoveRightEdgeModCmd>(
        new RemoveRightEdgeModCmd(edgeModifiable, parameter));
}

RemoveRightEdgeModCmd* RemoveRightEdgeModCmd::clone() const
{
    return new RemoveRightEdgeModCmd(*this);
}

EdgeModification RemoveRightEdgeModCmd::removeEdgeMod(
    EdgeModCommandHandler* handler, boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
    boost::shared_ptr<Parameter<double> const> const& parameter)
{
    return handler->removeRightEdgeModification(edgeModifiable, parameter);
}

void RemoveRightEdgeModCmd::addEdgeMod(
    EdgeModCommandHandler* handler, boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
    EdgeModification const& edgeMod)
{
    handler->addRightEdgeModification(edgeModifiable, edgeMod);
}

void RemoveRightEdgeModCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "RemoveRightEdgeModCmd";
}

}  // namespace tarn
