#pragma once

#include "clipbin/MediaFileStats.h"

namespace tarn {

/// The statistics of a file of this platform, which is what MediaFileStats::create makes.
class TARN_API MediaFileStatsMac : public MediaFileStats
{
public:
    MediaFileStatsMac();
    /// @throws IOException as MediaFileStats::create(file)
    explicit MediaFileStatsMac(std::string const& file);

    /// The path with links and dots resolved; the path as given if it does not exist.
    static std::string toAbsolutePath(std::string const& path);
};

}  // namespace tarn
