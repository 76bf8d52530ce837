#pragma once

#include "datatypes/Export.h"
#include "project/LockPolicy.h"

#include <memory>

namespace tarn {

class ReadWriteMutexImpl;

/// The one lock of a project: many readers or one writer. The writer may nest write and read locks
/// freely, and read locks nest too.
///
/// LockPolicy::Counted, the default. Kept so: readers are counted, not known. While a writer is
/// inside, the first other reader waits; a second one passes beside the writer, and its release
/// then counts for nothing, so that writers stay locked out afterwards. The rule for hosts is
/// therefore: edits on one thread at a time, and at most one other thread reads while one edits. A
/// thread with only a read lock must not ask for the write lock: it would wait for ever. Threads
/// that wait get in by no order.
///
/// LockPolicy::Strict. Any number of threads read, any may write, and they get in by the order in
/// which they came: a writer waits for those who came before it and for nobody else, and so does a
/// reader. A thread that is inside reads on although others wait. One with only a read lock that
/// asks for the write lock is told by an exception. A read lock taken while writing may outlast the
/// write lock; the thread then goes on as a reader. A read lock ends on the thread that took it, so
/// const iterators and their like are not handed to other threads: released there, it changes
/// nothing, and the first thread goes on reading for the lock.
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
    explicit ReadWriteMutex(LockPolicy policy = LockPolicy::Counted);
    ~ReadWriteMutex();
    ReadWriteMutex(ReadWriteMutex const&) = delete;
    ReadWriteMutex& operator=(ReadWriteMutex const&) = delete;

    LockPolicy policy() const;

    /// Waits for the thread that writes, if it is another.
    void acquireReadLock();
    /// On the thread that acquired it; see the policies for another.
    void releaseReadLock();
    /// Waits for the threads inside.
    /// @throws ThreadLockingException "trying to aquire a write lock while reading" when the lock
    ///         is strict and the calling thread holds it for reading only
    void acquireWriteLock();
    /// Changes nothing when another thread than the writer calls it.
    void releaseWriteLock();

    /// Whether a thread waits for the write lock now: a sign for those who read for long. Always
    /// false when readers are counted.
    bool isWriterWaiting() const;

    /// @name A table of readers
    /// For a caller who would rather fail than wait for ever. The locks neither keep nor ask it.
    /// @{
    void addThreadToReaders();
    void removeThreadFromReaders();
    /// @throws ThreadLockingException "trying to aquire a write lock while reading" when the
    ///         calling thread is in the table, or holds a strict lock for reading only
    void assertNoReadLockFromThisThread() const;
    /// @}

private:
    std::unique_ptr<ReadWriteMutexImpl> m_impl;
};

}  // namespace tarn
