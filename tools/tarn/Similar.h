#pragma once

#include <string>
#include <vector>

namespace tarn::tool {

/// `; did you mean 'x'?` for the name most like the one written, or nothing when none is like it.
std::string didYouMean(std::string const& written, std::vector<std::string> const& names);

}  // namespace tarn::tool
