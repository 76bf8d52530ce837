#pragma once

#include <TarnMediaLib/datatypes/Point.h>
#include <TarnMediaLib/timeline/VisualMixer.h>

#include <string>

/// Draws the picture plane at one time: the quad of every media through the matrices of camera,
/// projection, mixer, track and media, in drawing order, with the clicked point and the media that
/// the hit test names there.
/// @returns whether the file could be written
bool drawFrame(boost::shared_ptr<tarn::VisualMixer const> const& mixer, long long time,
               tarn::Point const& click, std::string const& path);
