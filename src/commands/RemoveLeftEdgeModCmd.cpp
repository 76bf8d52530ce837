#include "commands/RemoveLeftEdgeModCmd.h"

#include "commands/EdgeModCommandHandler.h"
#include "edgemods/EdgeModifiable.h"
#include "parameters/Parameter.h"

#include <ostream>

namespace tarn {

RemoveLeftEdgeModCmd::RemoveLeftEdgeModCmd(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
    boost::shared_ptr<Parameter<double> const> const& parameter)
    : RemoveEdgeModCmd(edgeModifiable, parameter)
{}

boost::shared_ptr<RemoveLeftEdgeModCmd> RemoveLeftEdgeModCmd::create(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
    boost::shared_ptr<Parameter<double> const> const& parameter)
{
    return boost::shared_ptr<RemoveLeftEdgeModCmd>(
        new RemoveLeftEdgeModCmd(edgeModifiable, parameter));
}

RemoveLeftEdgeModCmd* RemoveLeftEdgeModCmd::clone() const
{
    return new RemoveLeftEdgeModCmd(*this);
}

EdgeModification RemoveLeftEdgeModCmd::removeEdgeMod(
    EdgeModCommandHandler* handler, boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
    boost::shared_ptr<Parameter<double> const> const& parameter)
{
    return handler->removeLeftEdgeModification(edgeModifiable, parameter);
}

void RemoveLeftEdgeModCmd::addEdgeMod(EdgeModCommandHandler* handler,
                                      boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                                      EdgeModification const& edgeMod)
{
    handler->addLeftEdgeModification(edgeModifiable, edgeMod);
}

void RemoveLeftEdgeModCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "RemoveLeftEdgeModCmd";
}

}  // namespace tarn
