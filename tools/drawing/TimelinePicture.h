#pragma once

#include <TarnMediaLib/timeline/Timeline.h>

#include <functional>
#include <iosfwd>
#include <string>

namespace tarn::drawing {

/// What a media is called in the picture.
using Label = std::function<std::string(Media const&)>;

/// Draws the timeline: tracks as rows, medias as boxes with their edges, effects and key frames,
/// links as lines between rows, markers on the ruler.
void drawTimeline(Timeline const& timeline, Label const& label, std::ostream& out);

/// The same into a file.
/// @returns whether the file could be written
bool drawTimeline(Timeline const& timeline, Label const& label, std::string const& path);
/// With what medias are called by themselves.
bool drawTimeline(Timeline const& timeline, std::string const& path);

}  // namespace tarn::drawing
