#include "effects/ParametricEffectableUtil.h"

#include "effects/Effect.h"
#include "effects/Effectable.h"
#include "parameters/MTVector.h"
#include "parameters/ParameterInterface.h"

namespace tarn {

void ParametricEffectableUtil::addEffectablesParameters(
    Effectable const* effectable, MTVector<boost::shared_ptr<ParameterInterface const>>* parameters)
{
    for (int i = 0; i < effectable->numEffects(); ++i) {
        boost::shared_ptr<Effect const> const effect = effectable->effectAtIndex(i);
        if (!effect)
            continue;
        auto const own = effect->parameterVector();
        for (boost::shared_ptr<ParameterInterface const> const& parameter : *own)
            parameters->push_back(parameter);
    }
}

}  // namespace tarn
