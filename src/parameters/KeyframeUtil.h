#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"
#include "parameters/ParametersFwd.h"

namespace tarn {

namespace KeyframeUtil {

/// The stretch of parameter time that an owner's key frames span; (0, 0) without parameters.
///
/// The first parameter always counts, a later one only with more than one key frame.
/// @throws KeyFrameException(0) when the first parameter is empty
TARN_API Range<long long> keyframeRange(Parametric const* owner);

}  // namespace KeyframeUtil

}  // namespace tarn
