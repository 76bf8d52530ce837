#pragma once

#include "commands/CommandsFwd.h"
#include "datatypes/Export.h"

namespace tarn {

/// What a host attaches to a project to hear of each edit before it runs.
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
