#include "exceptions/KeyFrameException.h"
#include "parameters/InterpolatingParam.h"
#include "support/FakeProject.h"

#include <gtest/gtest.h>

#include <memory>

namespace tarn {
namespace {

using test::FakeProject;

class ParameterIteratorTest : public ::testing::Test
{
protected:
    boost::shared_ptr<FakeProject> project = FakeProject::create();
    boost::shared_ptr<InterpolatingParam<double>> const parameter{
        new InterpolatingParam<double>(project->weak(), "level")};
};

TEST_F(ParameterIteratorTest, BeginIsEndOfAnEmptyParameter)
{
    EXPECT_TRUE(parameter->begin() == parameter->end());
}

TEST_F(ParameterIteratorTest, WalksKeyFramesByTime)
{
    parameter->addKeyFrame(10, 2.5);
    parameter->addKeyFrame(-3, 1.5);
    ParameterIterator<double> it = parameter->begin();
    EXPECT_EQ(-3, it->time);
    EXPECT_EQ(1.5, it->value);
    ++it;
    EXPECT_EQ(10, it->time);
    EXPECT_EQ(2.5, (*it).value);
    ++it;
    EXPECT_TRUE(it == parameter->end());
}

TEST_F(ParameterIteratorTest, WhatItHandsOutLivesAsLongAsItDoes)
{
    parameter->addKeyFrame(0, 1.0);
    parameter->addKeyFrame(5, 2.0);
    ParameterIterator<double> it = parameter->begin();
    ParameterIterator<double>::Entry const* const first = it.operator->();
    ++it;
    ParameterIterator<double>::Entry const* const second = it.operator->();
    EXPECT_EQ(1.0, first->value);
    EXPECT_EQ(2.0, second->value);
}

TEST_F(ParameterIteratorTest, WhatItHandedOutOutlivesAnAssignment)
{
    parameter->addKeyFrame(0, 1.0);
    parameter->addKeyFrame(5, 2.0);
    ParameterIterator<double> it = parameter->begin();
    ParameterIterator<double>::Entry const* const first = it.operator->();
    it = ++parameter->begin();
    EXPECT_EQ(5, it->time);
    EXPECT_EQ(0, first->time);
    EXPECT_EQ(1.0, first->value);
}

TEST_F(ParameterIteratorTest, PostIncrementGivesThePlaceBefore)
{
    parameter->addKeyFrame(0, 1.0);
    parameter->addKeyFrame(5, 2.0);
    ParameterIterator<double> it = parameter->begin();
    ParameterIterator<double> const before = it++;
    EXPECT_EQ(0, before->time);
    EXPECT_EQ(5, it->time);
}

TEST_F(ParameterIteratorTest, IteratorsOfTwoParametersDiffer)
{
    boost::shared_ptr<InterpolatingParam<double>> const other(
        new InterpolatingParam<double>(project->weak(), "other"));
    EXPECT_TRUE(parameter->begin() != other->begin());
}

TEST_F(ParameterIteratorTest, AssignsPlaceAndLock)
{
    parameter->addKeyFrame(0, 1.0);
    parameter->addKeyFrame(5, 2.0);
    ParameterIterator<double> it = parameter->begin();
    ParameterIterator<double> other = parameter->end();
    other = it;
    ++it;
    EXPECT_EQ(0, other->time);
    EXPECT_TRUE(other != it);
}

TEST_F(ParameterIteratorTest, KeepsTheProjectAliveWithItsLock)
{
    parameter->addKeyFrame(0, 1.0);
    boost::weak_ptr<ThreadSafe const> const watched = project->weak();
    std::unique_ptr<ParameterIterator<double>> it(
        new ParameterIterator<double>(parameter->begin()));
    project.reset();
    EXPECT_FALSE(watched.expired());
    it.reset();
    EXPECT_TRUE(watched.expired());
}

TEST_F(ParameterIteratorTest, ReleasesTheReadLockWithItsLastCopy)
{
    std::unique_ptr<ParameterIterator<double>> it(
        new ParameterIterator<double>(parameter->begin()));
    std::unique_ptr<ParameterIterator<double>> copy(new ParameterIterator<double>(*it));
    it.reset();
    copy.reset();
    // Would wait for ever if the lock were still held.
    ReadWriteMutex::ScopedWriteLock lock(project->mutex());
}

TEST_F(ParameterIteratorTest, StandsWithoutALockOnADeadProject)
{
    parameter->addKeyFrame(0, 1.0);
    project.reset();
    EXPECT_TRUE(parameter->begin() != parameter->end());
    EXPECT_THROW(parameter->begin().operator->(), boost::bad_weak_ptr);
}

}  // namespace
}  // namespace tarn
