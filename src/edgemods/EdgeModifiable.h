#pragma once

#include "datatypes/Export.h"
#include "edgemods/EdgeModsFwd.h"
#include "parameters/ParametersFwd.h"

#include <boost/shared_ptr.hpp>

#include <list>

namespace tarn {

/// What has two edges, each with a length in edit units and a list of modifications, of which a
/// parameter has at most one an edge.
///
/// Any length can be asked for and is kept. What the getters tell has room: when both edges do not
/// fit, the shorter keeps its length and the longer gets the rest, or each gets half. Edits belong
/// into commands, which hold the write lock; queries take the read lock.
class TARN_API EdgeModifiable
{
public:
    virtual ~EdgeModifiable() = default;

    /// Edit units from the start; notifies.
    virtual void setLeftEdgeModificationLength(long long length) = 0;
    /// Edit units back from the end; notifies.
    virtual void setRightEdgeModificationLength(long long length) = 0;
    /// Edit units, as far as there is room.
    virtual long long leftEdgeModificationLength() const = 0;
    /// Edit units, as far as there is room.
    virtual long long rightEdgeModificationLength() const = 0;
    /// Copies, in order of adding.
    virtual std::list<EdgeModification> leftEdgeModifications() const = 0;
    virtual std::list<EdgeModification> rightEdgeModifications() const = 0;
    /// @throws TarnMediaLibException "trying to add an edge mod for a parameter already with a mod"
    virtual void addLeftEdgeModification(EdgeModification const& modification) = 0;
    /// @throws TarnMediaLibException "trying to add an edge mod for a parameter already with a mod"
    virtual void addRightEdgeModification(EdgeModification const& modification) = 0;
    /// @throws TarnMediaLibException "trying to remove non existant left edge mod"
    virtual EdgeModification removeLeftEdgeModification(
        boost::shared_ptr<Parameter<double> const> const& parameter) = 0;
    /// @throws TarnMediaLibException "trying to remove non existant right edge mod"
    virtual EdgeModification removeRightEdgeModification(
        boost::shared_ptr<Parameter<double> const> const& parameter) = 0;

protected:
    EdgeModifiable() = default;
    EdgeModifiable(EdgeModifiable const&) = default;
    EdgeModifiable& operator=(EdgeModifiable const&) = default;
};

}  // namespace tarn
