#pragma once

#include "script/Stage.h"

#include <string>

namespace tarn::tool {

/// What is wrong with the model, whatever was done to it; empty for a sound one. Medias stand under
/// their start on the track that owns them, have a length, do not overlap, and are linked both ways
/// to medias of equal range.
std::string unsoundness(Stage const& stage);

}  // namespace tarn::tool
