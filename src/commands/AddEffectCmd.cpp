#include "commands/AddEffectCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "effects/Effect.h"
#include "effects/Effectable.h"

#include <ostream>

namespace tarn {

AddEffectCmd::AddEffectCmd(boost::shared_ptr<Effectable const> const& effectable,
                           boost::shared_ptr<Effect const> const& effectToAdd)
    : m_effectable(effectable), m_effectToAdd(effectToAdd), m_removedEffectIndex(-1)
{}

boost::shared_ptr<AddEffectCmd> AddEffectCmd::create(
    boost::shared_ptr<Effectable const> const& effectable,
    boost::shared_ptr<Effect const> const& effectToAdd)
{
    return boost::shared_ptr<AddEffectCmd>(new AddEffectCmd(effectable, effectToAdd));
}

AddEffectCmd* AddEffectCmd::clone() const
{
    return new AddEffectCmd(*this);
}

bool AddEffectCmd::execute(CommandHandler* handler)
{
    if (m_removedEffect)
        handler->insertEffect(m_effectable, m_removedEffect, m_removedEffectIndex);
    else
        handler->addEffect(m_effectable, m_effectToAdd);
    return true;
}

bool AddEffectCmd::unexecute(CommandHandler* handler)
{
    RemovedEffect const removed = handler->removeEffect(m_effectable, m_effectToAdd);
    m_removedEffect = removed.first;
    m_removedEffectIndex = removed.second;
    return true;
}

void AddEffectCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "AddEffectCmd";
}

void AddEffectCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options)
        .address("effectable", m_effectable)
        .address("effectToAdd", m_effectToAdd)
        .address("removedEffect", m_removedEffect)
        .value("removedEffectIndex", m_removedEffectIndex);
}

}  // namespace tarn
