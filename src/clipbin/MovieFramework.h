#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/Export.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace tarn {

/// All that the library asks of a platform's media framework. QTStatsLoader keeps the logic and the
/// messages; what stands behind this interface only answers. Called on the thread that loads, under
/// the write lock when a command does: it must not wait for a thread that wants to read.
class TARN_API MovieFramework
{
public:
    virtual ~MovieFramework();

    /// Whether the file looks like a movie, a sound or a picture. Cheap: judges by the file's head.
    virtual bool canOpenFile(std::string const& file) const = 0;
    /// Opens the file synchronously, without playing it. Empty if it cannot be opened.
    virtual boost::shared_ptr<Movie const> openMovie(std::string const& file) const = 0;
};

}  // namespace tarn
