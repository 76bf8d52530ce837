#include "project/ReadWriteMutex.h"

#include "exceptions/ThreadLockingException.h"
#include "support/MutexUse.h"
#include "support/OtherThread.h"

#include <gtest/gtest.h>

#include <memory>

namespace tarn {
namespace test {

namespace {

using Mutex = ReadWriteMutex;

std::string messageWhenReading(Mutex const& mutex)
{
    try {
        mutex.assertNoReadLockFromThisThread();
    } catch (ThreadLockingException const& exception) {
        return exception.what();
    }
    return "not reading";
}

}  // namespace

TEST(ReadWriteMutexTest, TwoThreadsReadTogether)
{
    Mutex mutex;
    Mutex::ScopedReadLock const lock(mutex);
    OtherThread reader(readOnce(mutex));
    EXPECT_TRUE(reader.finishes());
}

TEST(ReadWriteMutexTest, AReaderWaitsForTheWriter)
{
    Mutex mutex;
    mutex.acquireWriteLock();
    OtherThread reader(readOnce(mutex));
    EXPECT_TRUE(reader.isWaiting());
    mutex.releaseWriteLock();
    EXPECT_TRUE(reader.finishes());
}

TEST(ReadWriteMutexTest, AWriterWaitsForTheReader)
{
    Mutex mutex;
    mutex.acquireReadLock();
    OtherThread writer(writeOnce(mutex));
    EXPECT_TRUE(writer.isWaiting());
    mutex.releaseReadLock();
    EXPECT_TRUE(writer.finishes());
}

TEST(ReadWriteMutexTest, AWriterWaitsForTheWriter)
{
    Mutex mutex;
    mutex.acquireWriteLock();
    OtherThread writer(writeOnce(mutex));
    EXPECT_TRUE(writer.isWaiting());
    mutex.releaseWriteLock();
    EXPECT_TRUE(writer.finishes());
}

TEST(ReadWriteMutexTest, WriteLocksNest)
{
    Mutex mutex;
    mutex.acquireWriteLock();
    mutex.acquireWriteLock();
    mutex.releaseWriteLock();
    OtherThread reader(readOnce(mutex));
    EXPECT_TRUE(reader.isWaiting());
    mutex.releaseWriteLock();
    EXPECT_TRUE(reader.finishes());
}

TEST(ReadWriteMutexTest, AReadLockWithinAWriteLockLeavesTheCountsAsTheyWere)
{
    Mutex mutex;
    mutex.acquireWriteLock();
    mutex.acquireReadLock();
    mutex.releaseReadLock();
    OtherThread reader(readOnce(mutex));
    EXPECT_TRUE(reader.isWaiting());
    mutex.releaseWriteLock();
    EXPECT_TRUE(reader.finishes());
    OtherThread writer(writeOnce(mutex));
    EXPECT_TRUE(writer.finishes());
}

TEST(ReadWriteMutexTest, ReadLocksNest)
{
    Mutex mutex;
    mutex.acquireReadLock();
    mutex.acquireReadLock();
    mutex.releaseReadLock();
    OtherThread writer(writeOnce(mutex));
    EXPECT_TRUE(writer.isWaiting());
    mutex.releaseReadLock();
    EXPECT_TRUE(writer.finishes());
}

TEST(ReadWriteMutexTest, TheLastReaderLetsTheWriterInOnWhateverThread)
{
    Mutex mutex;
    mutex.acquireReadLock();
    OtherThread([&mutex] { mutex.acquireReadLock(); }).join();
    mutex.releaseReadLock();
    OtherThread writer(writeOnce(mutex));
    EXPECT_TRUE(writer.isWaiting());
    OtherThread([&mutex] { mutex.releaseReadLock(); }).join();
    EXPECT_TRUE(writer.finishes());
}

TEST(ReadWriteMutexTest, AThreadThatIsNotTheWriterReleasesNothing)
{
    Mutex mutex;
    mutex.acquireWriteLock();
    OtherThread([&mutex] { mutex.releaseWriteLock(); }).join();
    OtherThread reader(readOnce(mutex));
    EXPECT_TRUE(reader.isWaiting());
    mutex.releaseWriteLock();
    EXPECT_TRUE(reader.finishes());
}

TEST(ReadWriteMutexTest, ReleasingAWriteLockThatNoOneHoldsChangesNothing)
{
    Mutex mutex;
    mutex.releaseWriteLock();
    OtherThread writer(writeOnce(mutex));
    EXPECT_TRUE(writer.finishes());
}

TEST(ReadWriteMutexTest, OneReadingThreadBesideAWritingOneSeesNoHalfDoneWork)
{
    Mutex mutex;
    EqualPair pair;
    OtherThread writer([&] { pair.raise(mutex, 20000); });
    EXPECT_EQ(0, pair.countUnequal(mutex, 20000));
    writer.join();
    EXPECT_EQ(20000, pair.second());
}

TEST(ReadWriteMutexTest, ManyReadingThreadsNeedNoWriter)
{
    Mutex mutex;
    EqualPair const pair;
    OtherThread first([&] { pair.countUnequal(mutex, 20000); });
    OtherThread second([&] { pair.countUnequal(mutex, 20000); });
    EXPECT_EQ(0, pair.countUnequal(mutex, 20000));
    EXPECT_TRUE(first.finishes());
    EXPECT_TRUE(second.finishes());
}

TEST(ReadWriteMutexTest, TheTableOfReadersNamesAThreadThatEnteredIt)
{
    Mutex mutex;
    mutex.addThreadToReaders();
    EXPECT_EQ("ThreadLockingException: trying to aquire a write lock while reading",
              messageWhenReading(mutex));
}

TEST(ReadWriteMutexTest, TheTableOfReadersCountsEachThreadsEntries)
{
    Mutex mutex;
    mutex.addThreadToReaders();
    mutex.addThreadToReaders();
    mutex.removeThreadFromReaders();
    EXPECT_THROW(mutex.assertNoReadLockFromThisThread(), ThreadLockingException);
    mutex.removeThreadFromReaders();
    EXPECT_NO_THROW(mutex.assertNoReadLockFromThisThread());
}

TEST(ReadWriteMutexTest, TheTableOfReadersTellsThreadsApart)
{
    Mutex mutex;
    OtherThread([&mutex] { mutex.addThreadToReaders(); }).join();
    EXPECT_NO_THROW(mutex.assertNoReadLockFromThisThread());
}

TEST(ReadWriteMutexTest, LeavingATableOneIsNotInChangesNothing)
{
    Mutex mutex;
    EXPECT_NO_THROW(mutex.removeThreadFromReaders());
}

TEST(ReadWriteMutexTest, TheLocksThemselvesDoNotEnterTheTable)
{
    Mutex mutex;
    Mutex::ScopedReadLock const lock(mutex);
    EXPECT_EQ("not reading", messageWhenReading(mutex));
}

}  // namespace test
}  // namespace tarn
