#pragma once

#include "datatypes/Export.h"

#include <memory>

namespace tarn {

class ReadWriteMutexImpl;

/// The one lock of a project: many readers or one writer.
///
/// The writer may nest write and read locks freely. A thread with only a read lock must not ask for
/// the write lock: it would wait for ever. Read locks nest too.
///
/// Kept so: readers are counted, not known. While a writer is inside, the first other reader waits;
/// a second one passes beside the writer, and its release then counts for nothing, so that writers
/// stay locked out afterwards. Let at most one other thread read while one edits.
class TARN_API ReadWriteMutex
{
public:
    /// Holds the lock for reading while it lives.
    class TARN_API ScopedReadLock
    {
    public:
        explicit ScopedReadLock(ReadWriteMutex& mutex) : m_mutex(mutex)
        {
            m_mutex.acquireReadLock();
        }
        ~ScopedReadLock() { m_mutex.releaseReadLock(); }
        ScopedReadLock(ScopedReadLock const&) = delete;
        ScopedReadLock& operator=(ScopedReadLock const&) = delete;

    private:
        ReadWriteMutex& m_mutex;
    };

    /// Holds the lock for writing while it lives.
    class TARN_API ScopedWriteLock
    {
    public:
        explicit ScopedWriteLock(ReadWriteMutex& mutex) : m_mutex(mutex)
        {
            m_mutex.acquireWriteLock();
        }
        ~ScopedWriteLock() { m_mutex.releaseWriteLock(); }
        ScopedWriteLock(ScopedWriteLock const&) = delete;
        ScopedWriteLock& operator=(ScopedWriteLock const&) = delete;

    private:
        ReadWriteMutex& m_mutex;
    };

    /// @throws boost::thread_resource_error
    ReadWriteMutex();
    ~ReadWriteMutex();
    ReadWriteMutex(ReadWriteMutex const&) = delete;
    ReadWriteMutex& operator=(ReadWriteMutex const&) = delete;

    void acquireReadLock();
    void releaseReadLock();
    void acquireWriteLock();
    /// Changes nothing when another thread than the writer calls it.
    void releaseWriteLock();

    /// @name A table of readers
    /// For a caller who would rather fail than wait for ever. The locks neither keep nor ask it.
    /// @{
    void addThreadToReaders();
    void removeThreadFromReaders();
    /// @throws ThreadLockingException "trying to aquire a write lock while reading" when the
    /// calling
    ///         thread is in the table
    void assertNoReadLockFromThisThread() const;
    /// @}

private:
    std::unique_ptr<ReadWriteMutexImpl> m_impl;
};

}  // namespace tarn
