#include "timeline/Temporal.h"

namespace tarn {

Range<long long> Temporal::timeRange() const
{
    return Range<long long>(startTime(), duration());
}

}  // namespace tarn
