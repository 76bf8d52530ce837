#pragma once

#include "datatypes/Export.h"
#include "effects/EffectsFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// What effects can be put on. Their order is the order in which they are applied; a null effect
/// is an entry like any other. Edits belong into commands, which hold the write lock.
///
/// An effect belongs on one object: put on two, it runs on the clock of the later one, and taken
/// off either it runs on the timeline's.
class TARN_API Effectable
{
public:
    virtual ~Effectable() = default;

    /// At the end. @returns the effect's index
    virtual int addEffect(boost::shared_ptr<Effect> const& effect) = 0;
    /// Before `index`, which may be the number of effects.
    /// @throws IndexException(index)
    virtual void insertEffect(boost::shared_ptr<Effect> const& effect, int index) = 0;
    /// @throws IndexException of the first of the two that is out of range
    virtual void swapEffectOrder(int index1, int index2) = 0;
    /// @returns the removed effect and the index it had
    /// @throws ValueException<boost::shared_ptr<Effect const>> "trying to remove a null effect",
    /// "effect to remove isn't found"
    virtual RemovedEffect removeEffect(boost::shared_ptr<Effect const> const& effect) = 0;
    /// @returns not the removed effect, but the one that followed it, or null at the end; and
    /// `index`. Fetch the effect with effectAtIndex() first if you need it.
    /// @throws IndexException(index)
    virtual RemovedEffect removeEffect(int index) = 0;
    /// @throws IndexException(index)
    virtual boost::shared_ptr<Effect> effectAtIndex(int index) = 0;
    /// @throws IndexException(index)
    virtual boost::shared_ptr<Effect const> effectAtIndex(int index) const = 0;
    /// Null entries count.
    virtual int numEffects() const = 0;

protected:
    Effectable() = default;
    Effectable(Effectable const&) = default;
    Effectable& operator=(Effectable const&) = default;
};

}  // namespace tarn
