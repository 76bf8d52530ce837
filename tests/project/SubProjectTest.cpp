#include "project/SubProject.h"

#include "support/LockOwner.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(SubProjectTest, UsesTheLockOfItsProject)
{
    boost::shared_ptr<LockOwner> const project = LockOwner::create();
    SubProject const owned(project);
    EXPECT_EQ(&project->mutex(), &owned.mutex());
}

TEST(SubProjectTest, AChildIsBuiltOnTheSameProject)
{
    boost::shared_ptr<LockOwner> const project = LockOwner::create();
    SubProject const parent(project);
    SubProject const child(parent.projectMutex());
    EXPECT_EQ(&project->mutex(), &child.mutex());
}

TEST(SubProjectTest, DoesNotKeepItsProjectAlive)
{
    boost::shared_ptr<LockOwner> project = LockOwner::create();
    SubProject const owned(project);
    project.reset();
    EXPECT_TRUE(owned.projectMutex().expired());
}

TEST(SubProjectTest, HasNoLockOnceItsProjectIsGone)
{
    boost::shared_ptr<LockOwner> project = LockOwner::create();
    SubProject const owned(project);
    project.reset();
    EXPECT_THROW(owned.mutex(), boost::bad_weak_ptr);
}

TEST(SubProjectTest, TheFailureHasBoostsOwnWords)
{
    EXPECT_STREQ("tr1::bad_weak_ptr", boost::bad_weak_ptr().what());
}

TEST(SubProjectTest, HasNoDescription)
{
    EXPECT_EQ("", SubProject(LockOwner::create()).description());
}

}  // namespace test
}  // namespace tarn
