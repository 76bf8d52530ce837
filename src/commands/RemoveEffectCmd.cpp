#include "commands/RemoveEffectCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "effects/Effect.h"
#include "effects/Effectable.h"

#include <ostream>

namespace tarn {

RemoveEffectCmd::RemoveEffectCmd(boost::shared_ptr<Effectable const> const& effectable,
                                 boost::shared_ptr<Effect const> const& effectToRemove)
    : m_effectable(effectable), m_effectToRemove(effectToRemove), m_removedEffectIndex(-1)
{}

boost::shared_ptr<RemoveEffectCmd> RemoveEffectCmd::create(
    boost::shared_ptr<Effectable const> const& effectable,
    boost::shared_ptr<Effect const> const& effectToRemove)
{
    return boost::shared_ptr<RemoveEffectCmd>(new RemoveEffectCmd(effectable, effectToRemove));
}

RemoveEffectCmd* RemoveEffectCmd::clone() const
{
    return new RemoveEffectCmd(*this);
}

bool RemoveEffectCmd::execute(CommandHandler* handler)
{
    RemovedEffect const removed = handler->removeEffect(m_effectable, m_effectToRemove);
    m_removedEffect = removed.first;
    m_removedEffectIndex = removed.second;
    return true;
}

bool RemoveEffectCmd::unexecute(CommandHandler* handler)
{
    handler->insertEffect(m_effectable, m_removedEffect, m_removedEffectIndex);
    return true;
}

void RemoveEffectCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "RemoveEffectCmd";
}

void RemoveEffectCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options)
        .address("effectable", m_effectable)
        .address("effectToRemove", m_effectToRemove)
        .address("removedEffect", m_removedEffect)
        .value("removedEffectIndex", m_removedEffectIndex);
}

}  // namespace tarn
