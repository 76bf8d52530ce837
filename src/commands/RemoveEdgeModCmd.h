#pragma once

#include "commands/Command.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/EdgeModsFwd.h"
#include "parameters/ParametersFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Takes a parameter's modification off one edge; which edge is the subclass's. Undo puts it back
/// at the end of the edge's list.
/// @throws TarnMediaLibException on execution when the parameter has none on that edge
class TARN_API RemoveEdgeModCmd : public Command
{
public:
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

protected:
    RemoveEdgeModCmd(boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                     boost::shared_ptr<Parameter<double> const> const& parameter);

    virtual EdgeModification removeEdgeMod(
        EdgeModCommandHandler* handler,
        boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
        boost::shared_ptr<Parameter<double> const> const& parameter) = 0;
    virtual void addEdgeMod(EdgeModCommandHandler* handler,
                            boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                            EdgeModification const& edgeMod) = 0;

private:
    boost::shared_ptr<EdgeModifiable const> m_edgeModifiable;
    boost::shared_ptr<Parameter<double> const> m_parameter;
    EdgeModification m_removedEdgeMod;
};

}  // namespace tarn
