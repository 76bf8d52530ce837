#include "commands/MoveEdgeModCmd.h"

#include "commands/CommandHandler.h"
#include "commands/RequireObjects.h"
#include "datatypes/SaturatedArithmetic.h"
#include "edgemods/EdgeModifiable.h"

namespace tarn {

MoveEdgeModCmd::MoveEdgeModCmd(boost::shared_ptr<EdgeModifiable const> const& edgeModifiable,
                               long long delta)
    : m_edgeModifiable(edgeModifiable), m_delta(delta), m_oldLength(0)
{}

bool MoveEdgeModCmd::execute(CommandHandler* handler)
{
    requireObjects(m_edgeModifiable);
    m_oldLength = edgeLength(*m_edgeModifiable);
    return reexecute(handler);
}

bool MoveEdgeModCmd::unexecute(CommandHandler* handler)
{
    setEdgeLength(handler->edgeModCommandHandler(), m_edgeModifiable, m_oldLength);
    return true;
}

bool MoveEdgeModCmd::reexecute(CommandHandler* handler)
{
    setEdgeLength(handler->edgeModCommandHandler(), m_edgeModifiable,
                  saturatedSum(m_oldLength, m_delta));
    return true;
}

}  // namespace tarn
