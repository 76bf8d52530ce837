#pragma once

#include "datatypes/Export.h"

#include <string>

namespace tarn {

/// Arithmetic on the text of paths. Nothing is looked up on disk. No lock, and nothing is thrown.
namespace PathUtil {

/// Whether the path starts at a root directory.
TARN_API bool isAbsolutePath(std::string const& path);

/// The path with the first occurrence of `base`, wherever it stands, cut out, behind a leading
/// "./". Empty for a path that is not absolute.
TARN_API std::string absolutePathToRelative(std::string const& path, std::string const& base);

}  // namespace PathUtil
}  // namespace tarn
