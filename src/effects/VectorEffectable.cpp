#include "effects/VectorEffectable.h"

#include "effects/Effect.h"
#include "exceptions/IndexException.h"
#include "exceptions/ValueException.h"

#include <algorithm>
#include <utility>

namespace tarn {

VectorEffectable::VectorEffectable() = default;

VectorEffectable::VectorEffectable(VectorEffectable const& other)
    : TarnObject(other), Effectable(other), Cloneable(other)
{
    m_effects.reserve(other.m_effects.size());
    for (boost::shared_ptr<Effect> const& effect : other.m_effects)
        m_effects.emplace_back(effect ? effect->clone() : nullptr);
}

VectorEffectable::~VectorEffectable() = default;

std::string VectorEffectable::description() const
{
    return std::string();
}

VectorEffectable* VectorEffectable::clone() const
{
    return new VectorEffectable(*this);
}

int VectorEffectable::addEffect(boost::shared_ptr<Effect> const& effect)
{
    m_effects.push_back(effect);
    return numEffects() - 1;
}

void VectorEffectable::insertEffect(boost::shared_ptr<Effect> const& effect, int index)
{
    if (index < 0 || index > numEffects())
        throw IndexException(index);
    m_effects.insert(m_effects.begin() + index, effect);
}

void VectorEffectable::swapEffectOrder(int index1, int index2)
{
    throwIfNoEffectAt(index1);
    throwIfNoEffectAt(index2);
    m_effects[index1].swap(m_effects[index2]);
}

RemovedEffect VectorEffectable::removeEffect(boost::shared_ptr<Effect const> const& effect)
{
    using EffectException = ValueException<boost::shared_ptr<Effect const>>;
    if (!effect)
        throw EffectException("trying to remove a null effect", effect);
    auto const found = std::find(m_effects.begin(), m_effects.end(), effect);
    if (found == m_effects.end())
        throw EffectException("effect to remove isn't found", effect);
    RemovedEffect const removed(*found, static_cast<int>(found - m_effects.begin()));
    m_effects.erase(found);
    return removed;
}

RemovedEffect VectorEffectable::removeEffect(int index)
{
    throwIfNoEffectAt(index);
    m_effects.erase(m_effects.begin() + index);
    // Kept so: callers know the result as what now stands at the index.
    return RemovedEffect(index < numEffects() ? m_effects[index] : boost::shared_ptr<Effect>(),
                         index);
}

boost::shared_ptr<Effect> VectorEffectable::effectAtIndex(int index)
{
    throwIfNoEffectAt(index);
    return m_effects[index];
}

boost::shared_ptr<Effect const> VectorEffectable::effectAtIndex(int index) const
{
    throwIfNoEffectAt(index);
    return m_effects[index];
}

int VectorEffectable::numEffects() const
{
    return static_cast<int>(m_effects.size());
}

void VectorEffectable::throwIfNoEffectAt(int index) const
{
    if (index < 0 || index >= numEffects())
        throw IndexException(index);
}

}  // namespace tarn
