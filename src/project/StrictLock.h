#pragma once

#include "project/FairGate.h"

#include <cstdint>

namespace tarn {

/// The lock of LockPolicy::Strict: it knows how often each thread reads and writes, so that a
/// thread passes the gate once, however deep its locks nest.
///
/// What a thread holds is kept by the thread, not here, so that nested locks touch nothing shared.
/// A release on a thread that holds nothing changes nothing.
class StrictLock
{
public:
    StrictLock();
    StrictLock(StrictLock const&) = delete;
    StrictLock& operator=(StrictLock const&) = delete;

    /// @throws std::bad_alloc when the thread holds many strict locks at once, before it waits
    void acquireReadLock();
    void releaseReadLock();
    /// @throws ThreadLockingException "trying to aquire a write lock while reading", and
    ///         std::bad_alloc as acquireReadLock() does
    void acquireWriteLock();
    /// The thread goes on reading if it still holds read locks.
    void releaseWriteLock();

    /// @throws ThreadLockingException as acquireWriteLock() does
    void assertNoReadLockFromThisThread() const;
    bool isWriterWaiting() const { return m_gate.isAwaitedByOneAlone(); }

private:
    // Never that of another lock, as an address may be.
    std::uint64_t const m_number;
    FairGate m_gate;
};

}  // namespace tarn
