#pragma once

#include "datatypes/Cloneable.h"
#include "datatypes/TarnObject.h"
#include "effects/Effectable.h"

#include <string>
#include <vector>

namespace tarn {

/// The list of effects that medias, tracks and mixers hold and forward to.
///
/// It has no lock, sends no notification and gives no clock: all of that is its owner's business.
/// Every edit leaves the list unchanged when it throws.
class TARN_API VectorEffectable : public virtual TarnObject, public Effectable, public Cloneable
{
public:
    VectorEffectable();
    /// Clones every effect.
    VectorEffectable(VectorEffectable const& other);
    VectorEffectable& operator=(VectorEffectable const& other) = delete;
    ~VectorEffectable() override;

    std::string description() const override;
    VectorEffectable* clone() const override;

    int addEffect(boost::shared_ptr<Effect> const& effect) override;
    void insertEffect(boost::shared_ptr<Effect> const& effect, int index) override;
    void swapEffectOrder(int index1, int index2) override;
    RemovedEffect removeEffect(boost::shared_ptr<Effect const> const& effect) override;
    RemovedEffect removeEffect(int index) override;
    boost::shared_ptr<Effect> effectAtIndex(int index) override;
    boost::shared_ptr<Effect const> effectAtIndex(int index) const override;
    int numEffects() const override;

private:
    void throwIfNoEffectAt(int index) const;

    std::vector<boost::shared_ptr<Effect>> m_effects;
};

}  // namespace tarn
