#include "parameters/MTVector.h"
#include "support/FakeProject.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tarn {
namespace {

using test::FakeProject;

TEST(MTVectorTest, IsAVector)
{
    boost::shared_ptr<FakeProject> const project = FakeProject::create();
    MTVector<int> numbers(project->weak());
    EXPECT_TRUE(numbers.empty());
    numbers.reserve(2);
    numbers.push_back(3);
    numbers.push_back(4);
    numbers[0] = 5;
    EXPECT_EQ(2u, numbers.size());
    EXPECT_EQ((std::vector<int>{5, 4}), std::vector<int>(numbers.begin(), numbers.end()));
}

TEST(MTVectorTest, BoundsAreTestedByAtAlone)
{
    boost::shared_ptr<FakeProject> const project = FakeProject::create();
    MTVector<int> numbers(project->weak());
    numbers.push_back(3);
    EXPECT_EQ(3, numbers.at(0));
    EXPECT_THROW(numbers.at(1), std::out_of_range);
}

TEST(MTVectorTest, KeepsTheProjectAlive)
{
    boost::shared_ptr<FakeProject> project = FakeProject::create();
    boost::weak_ptr<ThreadSafe const> const watched = project->weak();
    MTVector<int> const numbers(watched);
    project.reset();
    EXPECT_FALSE(watched.expired());
}

TEST(MTVectorTest, ReleasesTheReadLockAtItsEnd)
{
    boost::shared_ptr<FakeProject> const project = FakeProject::create();
    boost::shared_ptr<MTVector<int>> numbers(new MTVector<int>(project->weak()));
    numbers.reset();
    // Would wait for ever if the lock were still held.
    ReadWriteMutex::ScopedWriteLock lock(project->mutex());
}

TEST(MTVectorTest, ADeadProjectIsToldByBoost)
{
    boost::weak_ptr<ThreadSafe const> const dead = FakeProject::create()->weak();
    EXPECT_THROW(MTVector<int> numbers(dead), boost::bad_weak_ptr);
}

}  // namespace
}  // namespace tarn
