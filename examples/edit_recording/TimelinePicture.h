#pragma once

#include <TarnMediaLib/timeline/Timeline.h>

#include <string>

/// Draws the timeline: tracks as rows, medias as boxes with their edges, effects and key frames,
/// links as lines between rows.
/// @returns whether the file could be written
bool drawTimeline(tarn::Timeline const& timeline, std::string const& path);
