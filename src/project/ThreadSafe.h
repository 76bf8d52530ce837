#pragma once

#include "datatypes/Export.h"
#include "project/ProjectFwd.h"

namespace tarn {

/// What is guarded by a lock that others share.
class TARN_API ThreadSafe
{
public:
    virtual ~ThreadSafe() = default;

    /// The project's lock; lives as long as the project. @throws boost::bad_weak_ptr for a dead
    /// project
    virtual ReadWriteMutex& mutex() const = 0;

protected:
    ThreadSafe() = default;
    ThreadSafe(ThreadSafe const&) = default;
    ThreadSafe& operator=(ThreadSafe const&) = default;
};

}  // namespace tarn
