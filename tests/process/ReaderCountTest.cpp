// Shows how readers are counted beside a writer. Where the counts are not as they should be,
// threads wait for ever, so this has a process of its own and frees nothing that they use.

#include "project/ReadWriteMutex.h"

#include "support/OtherThread.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(ReaderCountTest, TheSecondReaderPassesBesideTheWriterAndItsReleaseIsLost)
{
    static ReadWriteMutex& mutex = *new ReadWriteMutex;
    mutex.acquireWriteLock();

    static OtherThread& first = *new OtherThread([] { mutex.acquireReadLock(); });
    first.abandon();
    EXPECT_TRUE(first.isWaiting());
    static OtherThread& second = *new OtherThread([] {
        mutex.acquireReadLock();
        mutex.releaseReadLock();
    });
    second.abandon();
    EXPECT_TRUE(second.finishes());
    EXPECT_TRUE(first.isWaiting());

    mutex.releaseWriteLock();
    EXPECT_TRUE(first.finishes());
    // Two were counted in; this counts the one out that is left to count.
    mutex.releaseReadLock();

    static OtherThread& writer = *new OtherThread([] { mutex.acquireWriteLock(); });
    writer.abandon();
    EXPECT_TRUE(writer.isWaiting());
    // The lost release, made up for.
    mutex.releaseReadLock();
    EXPECT_TRUE(writer.finishes());
}

}  // namespace test
}  // namespace tarn
