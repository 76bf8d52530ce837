#pragma once

#include "Terminal.h"

#include <string>
#include <vector>

namespace tarn::tool {

/// Shows what is in media files, as a table or as JSON. A file that cannot be read is told of on
/// the standard error, and the others are shown.
/// @return the exit status: 1 when some file could not be read
int probe(std::vector<std::string> const& files, bool asJson, Colors colors);

}  // namespace tarn::tool
