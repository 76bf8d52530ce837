#pragma once

#include "datatypes/Export.h"

namespace tarn {

/// A listener. It is not owned by what it listens to, and must detach before it dies; only one that
/// dies while notifications are held back, or by its own call, is detached by its destructor, from
/// the subjects waiting.
///
/// Lock: of a project's model it hears inside the write lock, after the edit. So it may read on
/// this thread, but must not wait for another one that wants to read.
///
/// It may call anything: edit, undo and redo (which tells at once, and what was still waiting with
/// it), attach and detach, destroy itself, the subject, or the last pointer to the project. Whoever
/// is detached before its turn is not called; whoever is attached to what is being told, is.
///
/// What it throws undoes nothing. The others are told all the same, the lock is given back, and
/// then the first exception passes to whoever edited; it is dropped when the edit itself threw.
class TARN_API Observer
{
public:
    virtual ~Observer();

    /// Something observed has changed; not told what. What it throws comes out of the edit once all
    /// observers were called.
    virtual void observerUpdate() = 0;

protected:
    Observer() = default;
    Observer(Observer const&) = default;
    Observer& operator=(Observer const&) = default;
};

}  // namespace tarn
