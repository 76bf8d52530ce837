#pragma once

#include "datatypes/Export.h"

namespace tarn {

/// A listener. It is not owned by what it listens to, and must detach before it dies; only one that
/// dies while notifications are held back is detached by its destructor, from the subjects waiting.
///
/// It may run inside the project's write lock, so it may read the model, but must not wait for
/// another thread that wants to read it.
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
