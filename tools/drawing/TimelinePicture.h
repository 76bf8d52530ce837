#pragma once

#include <TarnMediaLib/timeline/Timeline.h>

#include <iosfwd>
#include <string>

namespace tarn::drawing {

/// Draws the timeline: tracks as rows, medias as boxes with their edges, effects and key frames,
/// links as lines between rows.
void drawTimeline(Timeline const& timeline, std::ostream& out);

/// The same into a file.
/// @returns whether the file could be written
bool drawTimeline(Timeline const& timeline, std::string const& path);

}  // namespace tarn::drawing
