#include "project/ReadWriteMutex.h"

#include "exceptions/ThreadLockingException.h"
#include "project/StrictLock.h"

#include <boost/thread/exceptions.hpp>
#include <boost/thread/thread.hpp>
#include <pthread.h>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <map>
#include <mutex>

namespace tarn {

namespace {

/// A mutex whose making may fail as boost says it.
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

}  // namespace

/// The main mutex and both counts that others look at, in one word, so that a lock that is free is
/// taken, and given back, by one exchange. The last reader out unlocks what the first one in has
/// locked, perhaps on another thread, which a pthread_mutex_t does not allow.
///
/// A strict lock is told by a bit of that word, where it is looked at anyway, so that the default
/// costs no more for there being another policy.
class ReadWriteMutexImpl
{
public:
    explicit ReadWriteMutexImpl(LockPolicy policy)
        : m_word(policy == LockPolicy::Strict ? k_isStrict : 0)
        , m_strict(policy == LockPolicy::Strict ? std::make_unique<StrictLock>() : nullptr)
    {}

    /// Empty when readers are counted.
    StrictLock* strict() const { return m_strict.get(); }

    void acquireReadLock();
    void releaseReadLock();
    void acquireWriteLock();
    void releaseWriteLock();
    void addThreadToReaders();
    void removeThreadFromReaders();
    void assertNoReadLockFromThisThread();

private:
    using Word = std::uint64_t;

    // The main mutex: held by the writer, or on behalf of all readers together.
    static Word constexpr k_isLocked = 1;
    // Whether the writer count is not 0.
    static Word constexpr k_hasWriter = 2;
    // Whether to wake someone when the main mutex is unlocked.
    static Word constexpr k_isAwaited = 4;
    // Whether it is the strict lock that does the locking. The word never changes then, and no
    // thread is the writer here.
    static Word constexpr k_isStrict = 8;
    // The upper half counts the readers, signed.
    static Word constexpr k_reader = Word(1) << 32;

    static std::int32_t readers(Word word) { return static_cast<std::int32_t>(word >> 32); }

    bool isWriter() const;
    /// Locks the main mutex, and sets `bits` with it.
    void lockMain(Word bits);
    // Off the road that is taken when nobody waits, which then saves no registers.
    [[gnu::noinline]] void waitForMain(Word bits);
    [[gnu::noinline]] void wakeOne();

    std::atomic<Word> m_word;
    // No thread is 0.
    std::atomic<pthread_t> m_writer{0};
    // The writer's own business.
    int m_writerCount = 0;
    std::unique_ptr<StrictLock> const m_strict;
    // Guards what follows. Never held while anyone waits.
    StateMutex m_stateMutex;
    std::condition_variable_any m_unlocked;
    int m_numWaiting = 0;
    std::map<boost::thread::id, int> m_readers;
};

bool ReadWriteMutexImpl::isWriter() const
{
    return m_writer.load(std::memory_order_relaxed) == pthread_self();
}

void ReadWriteMutexImpl::lockMain(Word bits)
{
    Word word = m_word.load(std::memory_order_relaxed);
    while ((word & k_isLocked) == 0) {
        if (m_word.compare_exchange_weak(word, word | k_isLocked | bits, std::memory_order_acquire,
                                         std::memory_order_relaxed)) {
            return;
        }
    }
    waitForMain(bits);
}

void ReadWriteMutexImpl::waitForMain(Word bits)
{
    std::unique_lock<StateMutex> state(m_stateMutex);
    ++m_numWaiting;
    Word word = m_word.load(std::memory_order_relaxed);
    for (;;) {
        if ((word & k_isLocked) == 0) {
            Word const others = m_numWaiting > 1 ? k_isAwaited : 0;
            Word const taken = (word & ~k_isAwaited) | others | k_isLocked | bits;
            if (m_word.compare_exchange_weak(word, taken, std::memory_order_acquire,
                                             std::memory_order_relaxed)) {
                break;
            }
        } else if ((word & k_isAwaited) == 0) {
            // Who unlocks after this sees it, and cannot wake before the wait below has begun.
            m_word.compare_exchange_weak(word, word | k_isAwaited, std::memory_order_relaxed,
                                         std::memory_order_relaxed);
            word = m_word.load(std::memory_order_relaxed);
        } else {
            m_unlocked.wait(state);
            word = m_word.load(std::memory_order_relaxed);
        }
    }
    --m_numWaiting;
}

void ReadWriteMutexImpl::wakeOne()
{
    StateLock const state(m_stateMutex);
    m_unlocked.notify_one();
}

void ReadWriteMutexImpl::acquireReadLock()
{
    if (isWriter()) {
        return;
    }
    Word word = m_word.load(std::memory_order_relaxed);
    if ((word & k_isStrict) != 0) {
        m_strict->acquireReadLock();
        return;
    }
    Word counted;
    do {
        counted = word + k_reader;
        // The first one in locks the main mutex, if nobody holds it, in the same step.
        if (readers(counted) == 1) {
            counted |= k_isLocked;
        }
    } while (!m_word.compare_exchange_weak(word, counted, std::memory_order_acquire,
                                           std::memory_order_relaxed));
    if (readers(counted) == 1 && (word & k_isLocked) != 0) {
        lockMain(0);
    }
}

void ReadWriteMutexImpl::releaseReadLock()
{
    Word word = m_word.load(std::memory_order_relaxed);
    Word counted;
    do {
        if ((word & (k_hasWriter | k_isStrict)) != 0) {
            // Kept so: the writer's own nested read locks were not counted in, and are told from
            // other readers by the writer count alone. So a reader that slipped in beside a writer,
            // and leaves before it, is never counted out.
            if (m_strict) {
                m_strict->releaseReadLock();
            }
            return;
        }
        counted = word - k_reader;
        if (readers(counted) == 0) {
            counted &= ~k_isLocked;
        }
    } while (!m_word.compare_exchange_weak(word, counted, std::memory_order_release,
                                           std::memory_order_relaxed));
    if (readers(counted) == 0 && (word & k_isAwaited) != 0) {
        wakeOne();
    }
}

void ReadWriteMutexImpl::acquireWriteLock()
{
    if (isWriter()) {
        ++m_writerCount;
        return;
    }
    if (m_strict) {
        m_strict->acquireWriteLock();
        return;
    }
    lockMain(k_hasWriter);
    m_writer.store(pthread_self(), std::memory_order_relaxed);
    m_writerCount = 1;
}

void ReadWriteMutexImpl::releaseWriteLock()
{
    if (!isWriter()) {
        if (m_strict) {
            m_strict->releaseWriteLock();
        }
        return;
    }
    --m_writerCount;
    if (m_writerCount > 0) {
        return;
    }
    m_writer.store(0, std::memory_order_relaxed);
    Word const before = m_word.fetch_and(~(k_isLocked | k_hasWriter), std::memory_order_release);
    if ((before & k_isAwaited) != 0) {
        wakeOne();
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

ReadWriteMutex::ReadWriteMutex(LockPolicy policy)
    : m_impl(std::make_unique<ReadWriteMutexImpl>(policy))
{}

ReadWriteMutex::~ReadWriteMutex() = default;

LockPolicy ReadWriteMutex::policy() const
{
    return m_impl->strict() ? LockPolicy::Strict : LockPolicy::Counted;
}

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

bool ReadWriteMutex::isWriterWaiting() const
{
    return m_impl->strict() && m_impl->strict()->isWriterWaiting();
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
    if (StrictLock const* const strict = m_impl->strict()) {
        strict->assertNoReadLockFromThisThread();
    }
    m_impl->assertNoReadLockFromThisThread();
}

}  // namespace tarn
