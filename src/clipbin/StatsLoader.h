#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/Export.h"

#include <string>

namespace tarn {

/// Reads the statistics of one family of files. A host adds its own by
/// MediaFileStats::addStatsLoader.
///
/// Both operations may run under a project's write lock: they must not wait for a thread that wants
/// to read.
///
/// What they throw reaches whoever asked for the file, as it is, and neither bin nor history has
/// changed; a canOpenFile that throws keeps the loaders after it from being asked. They may read,
/// ask for other files, and add loaders, which are asked from now on or from the next file on, by
/// their address. While a command loads, an edit, undo or redo is refused, see CommandHistory.
/// A loader is never destroyed once it is added.
class TARN_API StatsLoader
{
public:
    virtual ~StatsLoader();

    /// Asked of every loader for every file; the last willing one, in the order of their addresses,
    /// reads it.
    virtual bool canOpenFile(std::string const& file) = 0;
    /// Fills `stats`, or throws and leaves it partly filled.
    virtual void loadStats(std::string const& file, MediaFileStats* stats) = 0;
};

}  // namespace tarn
