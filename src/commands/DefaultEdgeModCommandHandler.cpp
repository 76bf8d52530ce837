#include "commands/DefaultEdgeModCommandHandler.h"

#include "edgemods/EdgeModifiable.h"
#include "edgemods/EdgeModification.h"
#include "parameters/Parameter.h"

#include <boost/pointer_cast.hpp>

namespace tarn {

void DefaultEdgeModCommandHandler::setLeftEdgeModificationLength(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable, long long length)
{
    boost::const_pointer_cast<EdgeModifiable>(edgeModifiable)
        ->setLeftEdgeModificationLength(length);
}

void DefaultEdgeModCommandHandler::setRightEdgeModificationLength(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable, long long length)
{
    boost::const_pointer_cast<EdgeModifiable>(edgeModifiable)
        ->setRightEdgeModificationLength(length);
}

void DefaultEdgeModCommandHandler::addLeftEdgeModification(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
    EdgeModification const& modification)
{
    boost::const_pointer_cast<EdgeModifiable>(edgeModifiable)
        ->addLeftEdgeModification(modification);
}

void DefaultEdgeModCommandHandler::addRightEdgeModification(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
    EdgeModification const& modification)
{
    boost::const_pointer_cast<EdgeModifiable>(edgeModifiable)
        ->addRightEdgeModification(modification);
}

EdgeModification DefaultEdgeModCommandHandler::removeLeftEdgeModification(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
    boost::shared_ptr<Parameter<double> const> const& parameter)
{
    return boost::const_pointer_cast<EdgeModifiable>(edgeModifiable)
        ->removeLeftEdgeModification(parameter);
}

EdgeModification DefaultEdgeModCommandHandler::removeRightEdgeModification(
    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
    boost::shared_ptr<Parameter<double> const> const& parameter)
{
    return boost::const_pointer_cast<EdgeModifiable>(edgeModifiable)
        ->removeRightEdgeModification(parameter);
}

}  // namespace tarn
