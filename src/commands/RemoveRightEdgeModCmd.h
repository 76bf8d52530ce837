#pragma once

#include "commands/RemoveEdgeModCmd.h"

namespace tarn {

/// Takes a parameter's modification off the edge at a media's end.
class TARN_API RemoveRightEdgeModCmd : public RemoveEdgeModCmd
{
public:
    static boost::shared_ptr<RemoveRightEdgeModCmd> create(
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
        boost::shared_ptr<Parameter<double> const> const& parameter);

    RemoveRightEdgeModCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;

protected:
    EdgeModification removeEdgeMod(
        EdgeModCommandHandler* handler,
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
        boost::shared_ptr<Parameter<double> const> const& parameter) override;
    void addEdgeMod(EdgeModCommandHandler* handler,
                    boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                    EdgeModification const& edgeMod) override;

private:
    RemoveRightEdgeModCmd(boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                          boost::shared_ptr<Parameter<double> const> const& parameter);
};

}  // namespace tarn
