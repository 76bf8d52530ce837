#include "commands/RemoveEdgeModCmd.h"

#include "commands/CommandHandler.h"
#include "commands/RequireObjects.h"
#include "edgemods/EdgeModifiable.h"
#include "parameters/Parameter.h"

namespace tarn {

RemoveEdgeModCmd::RemoveEdgeModCmd(boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                                   boost::shared_ptr<Parameter<double> const> const& parameter)
    : m_edgeModifiable(edgeModifiable), m_parameter(parameter)
{}

bool RemoveEdgeModCmd::execute(CommandHandler* handler)
{
    requireObjects(m_edgeModifiable);
    m_removedEdgeMod =
        removeEdgeMod(handler->edgeModCommandHandler(), m_edgeModifiable, m_parameter);
    return true;
}

bool RemoveEdgeModCmd::unexecute(CommandHandler* handler)
{
    addEdgeMod(handler->edgeModCommandHandler(), m_edgeModifiable, m_removedEdgeMod);
    return true;
}

}  // namespace tarn
