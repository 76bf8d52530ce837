#pragma once

#include "parameters/LeftParameter.h"
#include "timeline/Timeline.h"

namespace tarn {

namespace MarkerUtil {

/// The key frames that a timeline's markers are; empty without a timeline, so that the edit is
/// refused when it runs, as every edit of an empty pointer is.
inline boost::shared_ptr<Parameter<std::string> const> markersOf(
    boost::shared_ptr<Timeline const> const& timeline)
{
    if (!timeline)
        return boost::shared_ptr<Parameter<std::string> const>();
    return timeline->markerParam();
}

}  // namespace MarkerUtil

}  // namespace tarn
