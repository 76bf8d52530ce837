#include "clipbin/MediaFileStatsMac.h"

#include <cstdlib>
#include <memory>

namespace tarn {

MediaFileStatsMac::MediaFileStatsMac() = default;

MediaFileStatsMac::MediaFileStatsMac(std::string const& file) : MediaFileStats(file) {}

std::string MediaFileStatsMac::toAbsolutePath(std::string const& path)
{
    // realpath allocates the result itself: no limit of the platform can cut it.
    std::unique_ptr<char, decltype(&std::free)> const resolved(realpath(path.c_str(), nullptr),
                                                               &std::free);
    return resolved ? std::string(resolved.get()) : path;
}

}  // namespace tarn
