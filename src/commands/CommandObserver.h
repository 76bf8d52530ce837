#pragma once

#include "commands/CommandsFwd.h"
#include "datatypes/Export.h"

namespace tarn {

/// What a host attaches to a project to hear of each edit before it runs.
///
/// What it throws passes to whoever edited, and nothing has changed. It may edit: that edit is over
/// before the one announced begins, and announced here as well, so detach first or know it. It may
/// detach and destroy itself, attach another (heard from the next edit on), and drop the project,
/// which lives until the edit is over.
class TARN_API CommandObserver
{
public:
    virtual ~CommandObserver() = default;

    /// Before an execute, without a lock; before an undo, redo or restore, with the write lock
    /// held.
    virtual void onPreCommand() = 0;
};

/// Does nothing for an empty pointer.
TARN_API void notifyPreCommandObservers(CommandObserver* observer);

}  // namespace tarn
