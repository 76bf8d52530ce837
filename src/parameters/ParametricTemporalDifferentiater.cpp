#include "parameters/ParametricTemporalDifferentiater.h"

#include "datatypes/ClampedCast.h"
#include "parameters/MTVector.h"
#include "parameters/ParameterInterface.h"
#include "parameters/Parametric.h"

namespace tarn {

bool ParametricTemporalDifferentiater::timesDiffer(boost::shared_ptr<Parametric const> const& owner,
                                                   long long time1, long long time2)
{
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> const parameters =
        owner->parameterVector();
    for (boost::shared_ptr<ParameterInterface const> const& parameter : *parameters) {
        if (!parameter)
            continue;
        long long const first = clampedTruncate(owner->toParameterTime(static_cast<double>(time1)));
        long long const second =
            clampedTruncate(owner->toParameterTime(static_cast<double>(time2)));
        if (parameter->valuesDifferAtTimes(first, second))
            return true;
    }
    return false;
}

}  // namespace tarn
