#pragma once

#include "project/ReadWriteMutex.h"

#include <memory>

namespace tarn {

/// A project's own read lock for a scope. A cloned project has none, and is read without.
class ReadLockIfAny
{
public:
    explicit ReadLockIfAny(std::unique_ptr<ReadWriteMutex> const& mutex) : m_mutex(mutex.get())
    {
        if (m_mutex)
            m_mutex->acquireReadLock();
    }
    ~ReadLockIfAny()
    {
        if (m_mutex)
            m_mutex->releaseReadLock();
    }
    ReadLockIfAny(ReadLockIfAny const&) = delete;
    ReadLockIfAny& operator=(ReadLockIfAny const&) = delete;

private:
    ReadWriteMutex* m_mutex;
};

}  // namespace tarn
