#pragma once

#include "datatypes/Export.h"
#include "parameters/ParametersFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Tells a host when it need not draw again.
class TARN_API ParametricTemporalDifferentiater
{
public:
    /// Whether any stored value of the owner's parameters differs between two local times (edit
    /// units). Does not see edge modifications. Takes read locks as it goes.
    /// @throws KeyFrameException(0) when it meets a parameter without key frames
    static bool timesDiffer(boost::shared_ptr<Parametric const> const& owner, long long time1,
                            long long time2);
};

}  // namespace tarn
