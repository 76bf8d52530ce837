#pragma once

#include "project/ReadWriteMutex.h"

#include <functional>

namespace tarn {
namespace test {

/// An action that takes the read lock and gives it back.
inline std::function<void()> readOnce(ReadWriteMutex& mutex)
{
    return [&mutex] { ReadWriteMutex::ScopedReadLock const lock(mutex); };
}

/// An action that takes the write lock and gives it back.
inline std::function<void()> writeOnce(ReadWriteMutex& mutex)
{
    return [&mutex] { ReadWriteMutex::ScopedWriteLock const lock(mutex); };
}

/// Two numbers that writers keep equal. Every lock has another within it.
class EqualPair
{
public:
    void raise(ReadWriteMutex& mutex, int times)
    {
        for (int i = 0; i < times; ++i) {
            ReadWriteMutex::ScopedWriteLock const lock(mutex);
            ++m_first;
            ReadWriteMutex::ScopedReadLock const nested(mutex);
            ++m_second;
        }
    }
    /// How often, of so many looks, a reader found them unequal.
    int countUnequal(ReadWriteMutex& mutex, int times) const
    {
        int unequal = 0;
        for (int i = 0; i < times; ++i) {
            ReadWriteMutex::ScopedReadLock const lock(mutex);
            ReadWriteMutex::ScopedReadLock const nested(mutex);
            unequal += m_first != m_second;
        }
        return unequal;
    }
    int second() const { return m_second; }

private:
    int m_first = 0;
    int m_second = 0;
};

}  // namespace test
}  // namespace tarn
