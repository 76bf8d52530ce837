#include "project/SharedReadLock.h"

#include "support/LockOwner.h"
#include "support/OtherThread.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <gtest/gtest.h>

namespace tarn {
namespace test {

namespace {

std::function<void()> writeOnce(boost::shared_ptr<LockOwner> const& project)
{
    return [project] { ReadWriteMutex::ScopedWriteLock const lock(project->mutex()); };
}

}  // namespace

TEST(SharedReadLockTest, LocksWritersOutWhileOneOwnerLives)
{
    boost::shared_ptr<LockOwner> const project = LockOwner::create();
    boost::shared_ptr<SharedReadLock const> first = SharedReadLock::acquire(project);
    boost::shared_ptr<SharedReadLock const> second = first;
    first.reset();
    OtherThread writer(writeOnce(project));
    EXPECT_TRUE(writer.isWaiting());
    second.reset();
    EXPECT_TRUE(writer.finishes());
}

TEST(SharedReadLockTest, KeepsTheProjectAliveUntilTheLockIsReleased)
{
    boost::shared_ptr<LockOwner> project = LockOwner::create();
    boost::weak_ptr<LockOwner> const watch = project;
    boost::shared_ptr<SharedReadLock const> lock = SharedReadLock::acquire(project);
    project.reset();
    EXPECT_FALSE(watch.expired());
    lock.reset();
    EXPECT_TRUE(watch.expired());
}

TEST(SharedReadLockTest, CannotBeHadFromAProjectThatIsGone)
{
    boost::weak_ptr<ThreadSafe const> const gone = LockOwner::create();
    EXPECT_THROW(SharedReadLock::acquire(gone), boost::bad_weak_ptr);
}

}  // namespace test
}  // namespace tarn
