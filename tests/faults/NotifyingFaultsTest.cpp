// What has changed is told, also when there is no memory to note that it must be.

#include "faults/AllocationFault.h"
#include "support/CountingObserver.h"

#include "datatypes/NotifyDelay.h"
#include "datatypes/Subject.h"
#include "datatypes/UpdateCollector.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <memory>

namespace tarn {
namespace test {
namespace {

AllocationFault::Lasting const k_forEver = AllocationFault::ForEver;

/// A subject that lets itself be collected, as the model's own do.
class CollectedSubject : public Subject, public boost::enable_shared_from_this<CollectedSubject>
{
public:
    void notify() const override
    {
        if (UpdateCollector::instance()->isCollecting())
            UpdateCollector::instance()->addObservable(shared_from_this());
        else
            Subject::notify();
    }
};

class NotifyingFaultsTest : public ::testing::Test
{
protected:
    ~NotifyingFaultsTest() override { m_subject.detach(&m_observer); }
    void SetUp() override { m_subject.attach(&m_observer); }

    /// Takes the room in the queue that nobody's notification is sure of. Memory must be failing.
    void useUpTheQueue()
    {
        while (!AllocationFault::hasFired())
            m_unobserved.notify();
    }

    Subject m_unobserved;
    Subject m_subject;
    CountingObserver m_observer;
};

TEST_F(NotifyingFaultsTest, AChangeIsToldOnceForAllThatCouldNotBeQueued)
{
    {
        NotifyDelay const delay;
        AllocationFault const fault(1, k_forEver);
        useUpTheQueue();
        m_subject.notify();
        m_subject.notify();
    }
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(NotifyingFaultsTest, SoIsTheNextOneLater)
{
    for (int round = 1; round <= 3; ++round) {
        {
            NotifyDelay const delay;
            AllocationFault const fault(1, k_forEver);
            useUpTheQueue();
            m_subject.notify();
        }
        EXPECT_EQ(round, m_observer.calls());
    }
}

TEST_F(NotifyingFaultsTest, WhatWaitsAlreadyIsToldThatOften)
{
    {
        NotifyDelay const delay;
        m_subject.notify();
        m_subject.notify();
        AllocationFault const fault(1, k_forEver);
        useUpTheQueue();
        m_subject.notify();
    }
    EXPECT_EQ(2, m_observer.calls());
}

TEST_F(NotifyingFaultsTest, EverySubjectIsTold)
{
    Subject others[5];
    for (Subject& other : others)
        other.attach(&m_observer);
    {
        NotifyDelay const delay;
        AllocationFault const fault(1, k_forEver);
        useUpTheQueue();
        for (Subject& other : others)
            other.notify();
        m_subject.notify();
    }
    EXPECT_EQ(6, m_observer.calls());
    for (Subject& other : others)
        other.detach(&m_observer);
}

TEST_F(NotifyingFaultsTest, ASubjectThatDiesWaitingLeavesItsRoomToTheOthers)
{
    {
        NotifyDelay const delay;
        {
            Subject brief;
            brief.attach(&m_observer);
            AllocationFault const fault(1, k_forEver);
            useUpTheQueue();
            brief.notify();
        }
        AllocationFault const fault(1, k_forEver);
        m_subject.notify();
    }
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(NotifyingFaultsTest, AnObserverThatDiesInADelayIsNotCalled)
{
    Subject another;
    std::unique_ptr<CountingObserver> brief(new CountingObserver);
    m_subject.attach(brief.get());
    another.attach(brief.get());
    {
        NotifyDelay const delay;
        m_subject.notify();
        another.notify();
        m_subject.notify();
        AllocationFault const fault(1, k_forEver);
        brief.reset();
    }
    EXPECT_EQ(2, m_observer.calls());
}

TEST_F(NotifyingFaultsTest, WhatCannotBeCollectedNotifiesAtOnce)
{
    boost::shared_ptr<CollectedSubject> const subject = boost::make_shared<CollectedSubject>();
    subject->attach(&m_observer);
    {
        UpdateCollector::Collection const collection;
        AllocationFault const fault(1, k_forEver);
        subject->notify();
        EXPECT_EQ(1, m_observer.calls());
        EXPECT_TRUE(UpdateCollector::instance()->isCollecting());
    }
    EXPECT_EQ(1, m_observer.calls());
    subject->detach(&m_observer);
}

}  // namespace
}  // namespace test
}  // namespace tarn
