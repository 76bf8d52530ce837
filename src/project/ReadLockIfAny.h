#pragma once

#include "project/ReadWriteMutex.h"

#include <memory>
#include <optional>

namespace tarn {

/// A project's own read lock for a scope. A cloned project has none, and is read without.
class ReadLockIfAny
{
public:
    explicit ReadLockIfAny(std::unique_ptr<ReadWriteMutex> const& mutex)
    {
        if (mutex)
            m_lock.emplace(*mutex);
    }

private:
    std::optional<ReadWriteMutex::ScopedReadLock> m_lock;
};

}  // namespace tarn
