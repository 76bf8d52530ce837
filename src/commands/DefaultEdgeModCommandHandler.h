#pragma once

#include "commands/EdgeModCommandHandler.h"

namespace tarn {

/// Edits the object itself.
class TARN_API DefaultEdgeModCommandHandler : public EdgeModCommandHandler
{
public:
    void setLeftEdgeModificationLength(
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable, long long length) override;
    void setRightEdgeModificationLength(
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable, long long length) override;
    void addLeftEdgeModification(boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                                 EdgeModification const& modification) override;
    void addRightEdgeModification(boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                                  EdgeModification const& modification) override;
    EdgeModification removeLeftEdgeModification(
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
        boost::shared_ptr<Parameter<double> const> const& parameter) override;
    EdgeModification removeRightEdgeModification(
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
        boost::shared_ptr<Parameter<double> const> const& parameter) override;
};

}  // namespace tarn
