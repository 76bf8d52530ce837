#include "project/ReadWriteMutex.h"

#include "exceptions/ThreadLockingException.h"

#include <boost/thread/exceptions.hpp>
#include <boost/thread/thread.hpp>
#include <pthread.h>

#include <condition_variable>
#include <map>
#include <mutex>

namespace tarn {

namespace {

/// A mutex for the few instructions that read and change the counts.
class StateMutex
{
public:
    StateMutex()
    {
        int const failure = pthread_mutex_init(&m_mutex, nullptr);
        if (failure != 0) {
            throw boost::thread_resource_error(failure, "pthread_mutex_init");
        }
    }
    ~StateMutex() { pthread_mutex_destroy(&m_mutex); }
    StateMutex(StateMutex const&) = delete;
    StateMutex& operator=(StateMutex const&) = delete;

    void lock() { pthread_mutex_lock(&m_mutex); }
    void unlock() { pthread_mutex_unlock(&m_mutex); }

private:
    pthread_mutex_t m_mutex;
};

using StateLock = std::lock_guard<StateMutex>;

/// The main mutex. The last reader out unlocks what the first one in has locked, perhaps on another
/// thread, which a pthread_mutex_t does not allow.
class Gate
{
public:
    void lock()
    {
        std::unique_lock<std::mutex> guard(m_mutex);
        m_opened.wait(guard, [this] { return !m_isClosed; });
        m_isClosed = true;
    }

    void unlock()
    {
        {
            std::lock_guard<std::mutex> const guard(m_mutex);
            m_isClosed = false;
        }
        m_opened.notify_one();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_opened;
    bool m_isClosed = false;
};

}  // namespace

class ReadWriteMutexImpl
{
public:
    void acquireReadLock();
    void releaseReadLock();
    void acquireWriteLock();
    void releaseWriteLock();
    void addThreadToReaders();
    void removeThreadFromReaders();
    void assertNoReadLockFromThisThread();

private:
    /// Counts the calling thread in, unless it is the writer.
    bool isFirstReader();
    /// Counts one reader out, unless a writer is inside.
    bool wasLastReader();
    bool isNestedWriter();

    // Held by the writer, or on behalf of all readers together.
    Gate m_mainMutex;
    // The default is no thread.
    boost::thread::id m_writer;
    int m_writerCount = 0;
    std::map<boost::thread::id, int> m_readers;
    // Guards every other field. The main mutex is never locked while this is held.
    StateMutex m_stateMutex;
    int m_readerCount = 0;
};

bool ReadWriteMutexImpl::isFirstReader()
{
    StateLock const state(m_stateMutex);
    if (m_writer == boost::this_thread::get_id()) {
        return false;
    }
    ++m_readerCount;
    return m_readerCount == 1;
}

void ReadWriteMutexImpl::acquireReadLock()
{
    if (isFirstReader()) {
        m_mainMutex.lock();
    }
}

bool ReadWriteMutexImpl::wasLastReader()
{
    StateLock const state(m_stateMutex);
    // Kept so: the writer's own nested read locks were not counted in, and are told from other
    // readers by the writer count alone. So a reader that slipped in beside a writer, and leaves
    // before it, is never counted out.
    if (m_writerCount != 0) {
        return false;
    }
    --m_readerCount;
    return m_readerCount == 0;
}

void ReadWriteMutexImpl::releaseReadLock()
{
    if (wasLastReader()) {
        m_mainMutex.unlock();
    }
}

bool ReadWriteMutexImpl::isNestedWriter()
{
    StateLock const state(m_stateMutex);
    if (m_writer != boost::this_thread::get_id()) {
        return false;
    }
    ++m_writerCount;
    return true;
}

void ReadWriteMutexImpl::acquireWriteLock()
{
    if (isNestedWriter()) {
        return;
    }
    m_mainMutex.lock();
    StateLock const state(m_stateMutex);
    m_writer = boost::this_thread::get_id();
    m_writerCount = 1;
}

void ReadWriteMutexImpl::releaseWriteLock()
{
    StateLock const state(m_stateMutex);
    if (m_writer != boost::this_thread::get_id()) {
        return;
    }
    --m_writerCount;
    if (m_writerCount < 1) {
        m_mainMutex.unlock();
        m_writer = boost::thread::id();
    }
}

void ReadWriteMutexImpl::addThreadToReaders()
{
    StateLock const state(m_stateMutex);
    ++m_readers[boost::this_thread::get_id()];
}

void ReadWriteMutexImpl::removeThreadFromReaders()
{
    StateLock const state(m_stateMutex);
    auto const entry = m_readers.find(boost::this_thread::get_id());
    if (entry == m_readers.end()) {
        return;
    }
    --entry->second;
    if (entry->second < 1) {
        m_readers.erase(entry);
    }
}

void ReadWriteMutexImpl::assertNoReadLockFromThisThread()
{
    StateLock const state(m_stateMutex);
    if (m_readers.count(boost::this_thread::get_id()) != 0) {
        throw ThreadLockingException("trying to aquire a write lock while reading");
    }
}

ReadWriteMutex::ReadWriteMutex() : m_impl(std::make_unique<ReadWriteMutexImpl>()) {}

ReadWriteMutex::~ReadWriteMutex() = default;

void ReadWriteMutex::acquireReadLock()
{
    m_impl->acquireReadLock();
}

void ReadWriteMutex::releaseReadLock()
{
    m_impl->releaseReadLock();
}

void ReadWriteMutex::acquireWriteLock()
{
    m_impl->acquireWriteLock();
}

void ReadWriteMutex::releaseWriteLock()
{
    m_impl->releaseWriteLock();
}

void ReadWriteMutex::addThreadToReaders()
{
    m_impl->addThreadToReaders();
}

void ReadWriteMutex::removeThreadFromReaders()
{
    m_impl->removeThreadFromReaders();
}

void ReadWriteMutex::assertNoReadLockFromThisThread() const
{
    m_impl->assertNoReadLockFromThisThread();
}

}  // namespace tarn
