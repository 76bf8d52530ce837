#pragma once

#include "datatypes/Export.h"
#include "effects/EffectsFwd.h"
#include "parameters/ParametersFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// For an owner that lists its effects' parameters among its own.
namespace ParametricEffectableUtil {

/// Appends what each effect lists: effects by index, parameters in each effect's order.
TARN_API void addEffectablesParameters(
    Effectable const* effectable,
    MTVector<boost::shared_ptr<ParameterInterface const>>* parameters);

}  // namespace ParametricEffectableUtil

}  // namespace tarn
