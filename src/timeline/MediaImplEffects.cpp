#include "timeline/MediaImpl.h"

#include "effects/Effect.h"
#include "effects/VectorEffectable.h"

namespace tarn {

int MediaImpl::addEffect(boost::shared_ptr<Effect> const& effect)
{
    int const index = m_effects->addEffect(effect);
    if (effect)
        effect->setEffectTimeConverter(this);
    notify();
    return index;
}

void MediaImpl::insertEffect(boost::shared_ptr<Effect> const& effect, int index)
{
    m_effects->insertEffect(effect, index);
    if (effect)
        effect->setEffectTimeConverter(this);
    notify();
}

void MediaImpl::swapEffectOrder(int index1, int index2)
{
    m_effects->swapEffectOrder(index1, index2);
    notify();
}

RemovedEffect MediaImpl::removeEffect(boost::shared_ptr<Effect const> const& effect)
{
    RemovedEffect const removed = m_effects->removeEffect(effect);
    if (removed.first)
        removed.first->setEffectTimeConverter(nullptr);
    notify();
    return removed;
}

RemovedEffect MediaImpl::removeEffect(int index)
{
    // The list tells what follows the removed effect, so the effect itself is fetched first.
    boost::shared_ptr<Effect> const effect = m_effects->effectAtIndex(index);
    RemovedEffect const following = m_effects->removeEffect(index);
    if (effect)
        effect->setEffectTimeConverter(nullptr);
    notify();
    return following;
}

boost::shared_ptr<Effect> MediaImpl::effectAtIndex(int index)
{
    return m_effects->effectAtIndex(index);
}

boost::shared_ptr<Effect const> MediaImpl::effectAtIndex(int index) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    VectorEffectable const& effects = *m_effects;
    return effects.effectAtIndex(index);
}

int MediaImpl::numEffects() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_effects->numEffects();
}

}  // namespace tarn
