#include "exceptions/ThreadLockingException.h"
#include "project/ReadWriteMutex.h"
#include "support/MutexUse.h"
#include "support/OtherThread.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>

#include <atomic>
#include <list>
#include <memory>
#include <thread>
#include <vector>

namespace tarn {
namespace test {

namespace {

using Mutex = ReadWriteMutex;

int const k_readers = 8;

template <class Condition>
void waitUntil(Condition const& condition)
{
    while (!condition()) {
        std::this_thread::yield();
    }
}

void waitForWriter(Mutex const& mutex)
{
    waitUntil([&mutex] { return mutex.isWriterWaiting(); });
}

/// As many threads doing the same.
class Threads
{
public:
    Threads(int count, std::function<void()> const& action)
    {
        for (int i = 0; i < count; ++i) {
            m_threads.emplace_back(action);
        }
    }

    bool allFinish()
    {
        bool result = true;
        for (OtherThread& thread : m_threads) {
            result = thread.finishes() && result;
        }
        return result;
    }

private:
    std::list<OtherThread> m_threads;
};

}  // namespace

class StrictLockTest : public ::testing::Test
{
protected:
    Mutex mutex{LockPolicy::Strict};
};

TEST_F(StrictLockTest, KnowsItsPolicy)
{
    EXPECT_EQ(LockPolicy::Strict, mutex.policy());
    EXPECT_EQ(LockPolicy::Counted, Mutex().policy());
}

TEST_F(StrictLockTest, ManyThreadsReadAtTheSameTime)
{
    std::atomic<int> inside{0};
    Threads readers(k_readers, [&] {
        Mutex::ScopedReadLock const lock(mutex);
        ++inside;
        waitUntil([&inside] { return inside == k_readers; });
    });
    EXPECT_TRUE(readers.allFinish());
}

TEST_F(StrictLockTest, WritersAreAloneBesideManyReaders)
{
    EqualPair pair;
    std::atomic<int> unequal{0};
    Threads writers(2, [&] { pair.raise(mutex, 2000); });
    Threads readers(k_readers, [&] { unequal += pair.countUnequal(mutex, 2000); });
    EXPECT_TRUE(writers.allFinish());
    EXPECT_TRUE(readers.allFinish());
    EXPECT_EQ(0, unequal);
    EXPECT_EQ(4000, pair.second());
}

TEST_F(StrictLockTest, ManyReadersWaitForTheWriter)
{
    std::atomic<int> asking{0};
    std::atomic<int> inside{0};
    mutex.acquireWriteLock();
    Threads readers(k_readers, [&] {
        ++asking;
        Mutex::ScopedReadLock const lock(mutex);
        ++inside;
    });
    waitUntil([&asking] { return asking == k_readers; });
    EXPECT_EQ(0, inside);
    mutex.releaseWriteLock();
    EXPECT_TRUE(readers.allFinish());
    EXPECT_EQ(k_readers, inside);
    OtherThread writer(writeOnce(mutex));
    EXPECT_TRUE(writer.finishes());
}

TEST_F(StrictLockTest, TheWriterNestsReadAndWriteLocks)
{
    mutex.acquireWriteLock();
    mutex.acquireReadLock();
    mutex.acquireWriteLock();
    mutex.releaseWriteLock();
    mutex.releaseReadLock();
    std::atomic<bool> isIn{false};
    OtherThread reader([&] {
        Mutex::ScopedReadLock const lock(mutex);
        isIn = true;
    });
    OtherThread writer(writeOnce(mutex));
    waitForWriter(mutex);
    EXPECT_FALSE(isIn);
    mutex.releaseWriteLock();
    EXPECT_TRUE(reader.finishes());
    EXPECT_TRUE(writer.finishes());
}

TEST_F(StrictLockTest, AThreadThatReadsIsToldNotToWrite)
{
    std::string const text = "ThreadLockingException: trying to aquire a write lock while reading";
    Mutex::ScopedReadLock const lock(mutex);
    EXPECT_EQ(text, thrownBy<ThreadLockingException>([&] { mutex.acquireWriteLock(); }).what());
    EXPECT_EQ(text, thrownBy<ThreadLockingException>([&] {
                        mutex.assertNoReadLockFromThisThread();
                    }).what());
}

TEST_F(StrictLockTest, AWriterThatWasRefusedHoldsNothingMore)
{
    mutex.acquireReadLock();
    EXPECT_THROW(mutex.acquireWriteLock(), ThreadLockingException);
    mutex.releaseReadLock();
    EXPECT_NO_THROW(mutex.assertNoReadLockFromThisThread());
    OtherThread writer(writeOnce(mutex));
    EXPECT_TRUE(writer.finishes());
    EXPECT_NO_THROW(writeOnce(mutex)());
}

TEST_F(StrictLockTest, AThreadIsNotRefusedForWhatOthersRead)
{
    mutex.acquireReadLock();
    OtherThread writer(writeOnce(mutex));
    waitForWriter(mutex);
    mutex.releaseReadLock();
    EXPECT_NO_THROW(writer.join());
}

TEST_F(StrictLockTest, AReaderReadsOnWhileAWriterWaits)
{
    mutex.acquireReadLock();
    OtherThread writer(writeOnce(mutex));
    waitForWriter(mutex);
    mutex.acquireReadLock();
    mutex.releaseReadLock();
    EXPECT_TRUE(mutex.isWriterWaiting());
    mutex.releaseReadLock();
    EXPECT_TRUE(writer.finishes());
    EXPECT_FALSE(mutex.isWriterWaiting());
}

TEST_F(StrictLockTest, AWriterGetsInBeforeTheReadersThatCameAfterIt)
{
    std::atomic<int> asking{0};
    std::atomic<int> inside{0};
    int insideBeforeTheWriter = -1;
    mutex.acquireReadLock();
    OtherThread writer([&] {
        Mutex::ScopedWriteLock const lock(mutex);
        insideBeforeTheWriter = inside;
    });
    waitForWriter(mutex);
    Threads readers(k_readers, [&] {
        ++asking;
        Mutex::ScopedReadLock const lock(mutex);
        ++inside;
    });
    waitUntil([&asking] { return asking == k_readers; });
    mutex.releaseReadLock();
    EXPECT_TRUE(writer.finishes());
    EXPECT_TRUE(readers.allFinish());
    EXPECT_EQ(0, insideBeforeTheWriter);
    EXPECT_EQ(k_readers, inside);
}

TEST_F(StrictLockTest, AReaderGetsInBesideWritersThatNeverStop)
{
    std::atomic<bool> isOver{false};
    Threads writers(3, [&] {
        while (!isOver) {
            Mutex::ScopedWriteLock const lock(mutex);
        }
    });
    OtherThread reader([&] {
        for (int i = 0; i < 1000; ++i) {
            Mutex::ScopedReadLock const lock(mutex);
        }
    });
    EXPECT_TRUE(reader.finishes());
    isOver = true;
    EXPECT_TRUE(writers.allFinish());
}

TEST_F(StrictLockTest, AReadLockTakenWhileWritingMayOutlastIt)
{
    mutex.acquireWriteLock();
    mutex.acquireReadLock();
    mutex.releaseWriteLock();
    OtherThread reader(readOnce(mutex));
    EXPECT_TRUE(reader.finishes());
    EXPECT_THROW(mutex.acquireWriteLock(), ThreadLockingException);
    OtherThread writer(writeOnce(mutex));
    waitForWriter(mutex);
    mutex.releaseReadLock();
    EXPECT_TRUE(writer.finishes());
}

TEST_F(StrictLockTest, AThreadThatHoldsNothingReleasesNothing)
{
    mutex.releaseReadLock();
    mutex.releaseWriteLock();
    mutex.acquireReadLock();
    mutex.releaseWriteLock();
    OtherThread([this] {
        mutex.releaseReadLock();
        mutex.releaseWriteLock();
    }).join();
    OtherThread writer(writeOnce(mutex));
    waitForWriter(mutex);
    mutex.releaseReadLock();
    EXPECT_TRUE(writer.finishes());
}

TEST_F(StrictLockTest, AThreadHoldsAnyNumberOfLocks)
{
    std::list<Mutex> mutexes;
    for (int i = 0; i < 50; ++i) {
        mutexes.emplace_back(LockPolicy::Strict);
        mutexes.back().acquireReadLock();
        mutexes.back().acquireReadLock();
    }
    for (Mutex& held : mutexes) {
        EXPECT_THROW(held.acquireWriteLock(), ThreadLockingException);
        held.releaseReadLock();
        EXPECT_THROW(held.acquireWriteLock(), ThreadLockingException);
        held.releaseReadLock();
        EXPECT_NO_THROW(writeOnce(held)());
    }
    OtherThread writer([&mutexes] {
        for (Mutex& free : mutexes) {
            writeOnce(free)();
        }
    });
    EXPECT_TRUE(writer.finishes());
}

TEST_F(StrictLockTest, LocksOfTwoProjectsAreTwo)
{
    Mutex other(LockPolicy::Strict);
    Mutex::ScopedReadLock const reading(mutex);
    EXPECT_NO_THROW(writeOnce(other)());
}

TEST_F(StrictLockTest, TheTableOfReadersIsAnotherMatter)
{
    mutex.addThreadToReaders();
    EXPECT_THROW(mutex.assertNoReadLockFromThisThread(), ThreadLockingException);
    EXPECT_NO_THROW(writeOnce(mutex)());
    mutex.removeThreadFromReaders();
    EXPECT_NO_THROW(mutex.assertNoReadLockFromThisThread());
}

TEST(CountedLockTest, DoesNotKnowWhetherAWriterWaits)
{
    Mutex mutex;
    mutex.acquireReadLock();
    OtherThread writer(writeOnce(mutex));
    EXPECT_TRUE(writer.isWaiting());
    EXPECT_FALSE(mutex.isWriterWaiting());
    mutex.releaseReadLock();
    EXPECT_TRUE(writer.finishes());
}

}  // namespace test
}  // namespace tarn
