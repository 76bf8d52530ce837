#pragma once

#include "clipbin/MovieFramework.h"

namespace tarn {

/// The movie framework served by FFmpeg's libraries.
///
/// Reads regular files only, through a descriptor of its own: no other file and no address is
/// opened, whatever the file or its name says. Works on the calling thread, prints nothing, takes
/// at most ten seconds and holds nothing open afterwards. Safe on several threads at once.
class TARN_API FFmpegFramework : public MovieFramework
{
public:
    bool canOpenFile(std::string const& file) const override;
    boost::shared_ptr<Movie const> openMovie(std::string const& file) const override;
};

}  // namespace tarn
