#pragma once

#include "script/Stage.h"

#include <iosfwd>
#include <string>

namespace tarn::tool {

/// One track in a line: `intro[0,90) still[90,240)`; nothing for an empty one. Ranges are
/// half-open, in edit units.
std::string rowText(Stage const& stage, Track const& track);

/// `0 "Start", 90 "End"`
std::string markerText(Timeline const& timeline);

/// `still[90,240) on V1`
std::string mediaText(Stage const& stage, boost::shared_ptr<Media const> const& media);

/// The whole project as a reader wants it: files, rows, what is special about each media, markers,
/// and how much can be undone.
void writeModel(std::ostream& out, Stage const& stage);

}  // namespace tarn::tool
