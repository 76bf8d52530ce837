#pragma once

#include "datatypes/Export.h"
#include "project/ProjectFwd.h"

namespace tarn {

/// What is guarded by a lock that others share.
class TARN_API ThreadSafe
{
public:
    virtual ~ThreadSafe() = default;

    virtual ReadWriteMutex& mutex() const = 0;

protected:
    ThreadSafe() = default;
    ThreadSafe(ThreadSafe const&) = default;
    ThreadSafe& operator=(ThreadSafe const&) = default;
};

}  // namespace tarn
