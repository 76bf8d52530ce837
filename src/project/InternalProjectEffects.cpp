// The primitives on effects and key frames.
#include "project/InternalProject.h"

#include "datatypes/ClampedCast.h"
#include "effects/Effect.h"
#include "effects/Effectable.h"
#include "parameters/ParameterInterface.h"
#include "parameters/Parametric.h"
#include "project/MutablePointer.h"

namespace tarn {

int InternalProject::addEffect(boost::shared_ptr<Effectable const> const& effectable,
                               boost::shared_ptr<Effect const> const& effect)
{
    return mutableObject(effectable).addEffect(mutablePointer(effect));
}

void InternalProject::insertEffect(boost::shared_ptr<Effectable const> const& effectable,
                                   boost::shared_ptr<Effect const> const& effect, int index)
{
    mutableObject(effectable).insertEffect(mutablePointer(effect), index);
}

void InternalProject::swapEffectOrder(boost::shared_ptr<Effectable const> const& effectable,
                                      int index1, int index2)
{
    mutableObject(effectable).swapEffectOrder(index1, index2);
}

RemovedEffect InternalProject::removeEffect(boost::shared_ptr<Effectable const> const& effectable,
                                            boost::shared_ptr<Effect const> const& effect)
{
    return mutableObject(effectable).removeEffect(effect);
}

void InternalProject::moveParameterKeyFrame(
    boost::shared_ptr<Parametric const> const& owner,
    boost::shared_ptr<ParameterInterface const> const& parameter, long long from, long long to)
{
    boost::shared_ptr<Parametric> const clock = mutablePointer(owner);
    mutableObject(parameter).moveKeyFrame(
        clampedTruncate(clock->toParameterTime(static_cast<double>(from))),
        clampedTruncate(clock->toParameterTime(static_cast<double>(to))));
}

}  // namespace tarn
