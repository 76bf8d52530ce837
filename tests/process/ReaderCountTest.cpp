// Shows how the default lock counts readers beside a writer, and so why its rule for hosts is: at
// most one other thread reads while one edits, and no thread edits while it reads. Where the counts
// are not as they should be, threads wait for ever, so this has a process of its own and frees
// nothing that they use.

#include "project/ReadWriteMutex.h"

#include "commands/NullCmd.h"
#include "project/Project.h"
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

TEST(ReaderCountTest, ASecondReaderBesideAnEditLocksOutTheEditsThatFollow)
{
    static boost::shared_ptr<Project> const& project =
        *new boost::shared_ptr<Project>(Project::create(30, 1));
    // As within an edit.
    project->mutex().acquireWriteLock();
    static OtherThread& first = *new OtherThread([] { project->timeline(); });
    first.abandon();
    EXPECT_TRUE(first.isWaiting());
    static OtherThread& second = *new OtherThread([] { project->timeline(); });
    second.abandon();
    EXPECT_TRUE(second.finishes());
    project->mutex().releaseWriteLock();
    EXPECT_TRUE(first.finishes());

    static OtherThread& next = *new OtherThread([] { project->execute(NullCmd::create()); });
    next.abandon();
    EXPECT_TRUE(next.isWaiting());
    // The lost release, made up for.
    project->mutex().releaseReadLock();
    EXPECT_TRUE(next.finishes());
}

TEST(ReaderCountTest, AThreadThatEditsWhileItReadsWaitsForEver)
{
    static boost::shared_ptr<Project> const& project =
        *new boost::shared_ptr<Project>(Project::create(30, 1));
    static OtherThread& thread = *new OtherThread([] {
        ReadWriteMutex::ScopedReadLock const lock(project->mutex());
        project->execute(NullCmd::create());
        // Its read lock is released by who made up for it.
        project->mutex().acquireReadLock();
    });
    thread.abandon();
    EXPECT_TRUE(thread.isWaiting());
    project->mutex().releaseReadLock();
    EXPECT_TRUE(thread.finishes());
}

}  // namespace test
}  // namespace tarn
