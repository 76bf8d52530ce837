#include "parameters/KeyframeUtil.h"

#include "datatypes/Range.h"
#include "datatypes/SaturatedArithmetic.h"
#include "parameters/MTVector.h"
#include "parameters/ParameterInterface.h"
#include "parameters/Parametric.h"

#include <algorithm>

namespace tarn {

namespace KeyframeUtil {

namespace {

Range<long long> widened(Range<long long> const& a, Range<long long> const& b)
{
    long long const start = std::min(a.start, b.start);
    return Range<long long>(start, saturatedDifference(std::max(a.end(), b.end()), start));
}

}  // namespace

Range<long long> keyframeRange(Parametric const* owner)
{
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> const parameters =
        owner->parameterVector();
    Range<long long> result;
    bool isFirst = true;
    for (boost::shared_ptr<ParameterInterface const> const& parameter : *parameters) {
        if (!parameter)
            continue;
        // Kept so: the first counts however few key frames it has; it stands for the owner.
        if (isFirst)
            result = parameter->keyframeRange();
        else if (parameter->numKeyFrames() > 1)
            result = widened(result, parameter->keyframeRange());
        isFirst = false;
    }
    return result;
}

}  // namespace KeyframeUtil

}  // namespace tarn
