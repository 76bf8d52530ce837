#include "commands/SwapEffectOrderCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "effects/Effectable.h"

#include <ostream>

namespace tarn {

SwapEffectOrderCmd::SwapEffectOrderCmd(boost::shared_ptr<Effectable const> const& effectable,
                                       int index1, int index2)
    : m_effectable(effectable), m_index1(index1), m_index2(index2)
{}

boost::shared_ptr<SwapEffectOrderCmd> SwapEffectOrderCmd::create(
    boost::shared_ptr<Effectable const> const& effectable, int index1, int index2)
{
    return boost::shared_ptr<SwapEffectOrderCmd>(
        new SwapEffectOrderCmd(effectable, index1, index2));
}

SwapEffectOrderCmd* SwapEffectOrderCmd::clone() const
{
    return new SwapEffectOrderCmd(*this);
}

bool SwapEffectOrderCmd::execute(CommandHandler* handler)
{
    handler->swapEffectOrder(m_effectable, m_index1, m_index2);
    return true;
}

bool SwapEffectOrderCmd::unexecute(CommandHandler* handler)
{
    handler->swapEffectOrder(m_effectable, m_index2, m_index1);
    return true;
}

void SwapEffectOrderCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "SwapEffectOrderCmd";
}

void SwapEffectOrderCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options)
        .address("effectable", m_effectable)
        .value("index1", m_index1)
        .value("index2", m_index2);
}

}  // namespace tarn
