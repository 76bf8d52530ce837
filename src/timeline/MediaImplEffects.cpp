#include "timeline/MediaImpl.h"

#include "effects/Effect.h"
#include "effects/VectorEffectable.h"

namespace tarn {

VectorEffectable const& MediaImpl::effects() const
{
    // Never freed, as medias of a host may die last.
    static VectorEffectable const& s_none = *new VectorEffectable;
    return m_effects ? *m_effects : s_none;
}

VectorEffectable& MediaImpl::effects()
{
    if (!m_effects)
        m_effects.reset(new VectorEffectable);
    return *m_effects;
}

int MediaImpl::addEffect(boost::shared_ptr<Effect> const& effect)
{
    int const index = effects().addEffect(effect);
    if (effect)
        effect->setEffectTimeConverter(this);
    notify();
    return index;
}

void MediaImpl::insertEffect(boost::shared_ptr<Effect> const& effect, int index)
{
    effects().insertEffect(effect, index);
    if (effect)
        effect->setEffectTimeConverter(this);
    notify();
}

void MediaImpl::swapEffectOrder(int index1, int index2)
{
    effects().swapEffectOrder(index1, index2);
    notify();
}

RemovedEffect MediaImpl::removeEffect(boost::shared_ptr<Effect const> const& effect)
{
    RemovedEffect const removed = effects().removeEffect(effect);
    if (removed.first)
        removed.first->setEffectTimeConverter(nullptr);
    notify();
    return removed;
}

RemovedEffect MediaImpl::removeEffect(int index)
{
    // The list tells what follows the removed effect, so the effect itself is fetched first.
    boost::shared_ptr<Effect> const effect = effects().effectAtIndex(index);
    RemovedEffect const following = effects().removeEffect(index);
    if (effect)
        effect->setEffectTimeConverter(nullptr);
    notify();
    return following;
}

boost::shared_ptr<Effect> MediaImpl::effectAtIndex(int index)
{
    return effects().effectAtIndex(index);
}

boost::shared_ptr<Effect const> MediaImpl::effectAtIndex(int index) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return effects().effectAtIndex(index);
}

int MediaImpl::numEffects() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return effects().numEffects();
}

}  // namespace tarn
