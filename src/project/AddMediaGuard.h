#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/Export.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Keeps medias of foreign sources off a project's timeline. One for the process, kept for ever.
/// Runs under the write lock of the edit.
class TARN_API AddMediaGuard
{
public:
    virtual ~AddMediaGuard() = default;

    /// Only what shows a file is asked for its source; a callout, text box or transition passes.
    /// @throws TarnMediaLibException "attempting to add a media whose source doesn't belong to the
    ///         project"
    virtual void performGuard(boost::shared_ptr<SourceBin> const& sourceBin,
                              boost::shared_ptr<Media const> const& media) = 0;

    /// Made by the first call.
    static AddMediaGuard* instance();

    /// True, said before the first call of instance(), makes that a guard that lets everything
    /// pass. Not guarded: call it on the thread that drives editing.
    static void setIsTestRunner(bool isTestRunner);
};

}  // namespace tarn
