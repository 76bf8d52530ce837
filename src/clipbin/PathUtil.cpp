#include "clipbin/PathUtil.h"

#include <boost/algorithm/string/erase.hpp>
#include <boost/filesystem/path.hpp>

namespace tarn {
namespace PathUtil {

bool isAbsolutePath(std::string const& path)
{
    return boost::filesystem::path(path).has_root_directory();
}

// Kept so: an operation on text. It never climbs with "..", and a base that stands in the middle of
// the path is cut out just the same.
std::string absolutePathToRelative(std::string const& path, std::string const& base)
{
    if (!isAbsolutePath(path))
        return std::string();
    std::string const rest = boost::algorithm::erase_first_copy(path, base);
    return (boost::filesystem::path(".") / rest).string();
}

}  // namespace PathUtil
}  // namespace tarn
