#pragma once

#include "datatypes/Export.h"
#include "edgemods/EdgeModsFwd.h"
#include "parameters/ParametersFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// The primitive edits of edges, as commands see them. Each acts at once and records nothing. Every
/// call comes under the write lock that the running edit holds.
class TARN_API EdgeModCommandHandler
{
public:
    virtual ~EdgeModCommandHandler() = default;

    /// Edit units; any length is kept.
    virtual void setLeftEdgeModificationLength(
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable, long long length) = 0;
    /// Edit units; any length is kept.
    virtual void setRightEdgeModificationLength(
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable, long long length) = 0;
    /// @throws TarnMediaLibException when the parameter has a modification on that edge
    virtual void addLeftEdgeModification(
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
        EdgeModification const& modification) = 0;
    /// @throws TarnMediaLibException when the parameter has a modification on that edge
    virtual void addRightEdgeModification(
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
        EdgeModification const& modification) = 0;
    /// @returns the removed modification
    /// @throws TarnMediaLibException when the parameter has no modification on that edge
    virtual EdgeModification removeLeftEdgeModification(
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
        boost::shared_ptr<Parameter<double> const> const& parameter) = 0;
    /// @returns the removed modification
    /// @throws TarnMediaLibException when the parameter has no modification on that edge
    virtual EdgeModification removeRightEdgeModification(
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
        boost::shared_ptr<Parameter<double> const> const& parameter) = 0;

protected:
    EdgeModCommandHandler() = default;
    EdgeModCommandHandler(EdgeModCommandHandler const&) = default;
    EdgeModCommandHandler& operator=(EdgeModCommandHandler const&) = default;
};

}  // namespace tarn
