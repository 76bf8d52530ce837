#include "datatypes/Subject.h"

#include "datatypes/NotifyDelay.h"
#include "support/CountingObserver.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace tarn {
namespace test {

TEST(SubjectTest, TellsItsObserversAtOnce)
{
    Subject subject;
    CountingObserver observer;
    subject.attach(&observer);
    subject.notify();
    EXPECT_EQ(1, observer.calls());
}

TEST(SubjectTest, TellsNoOneWhenNoOneIsAttached)
{
    Subject const subject;
    EXPECT_NO_THROW(subject.notify());
}

TEST(SubjectTest, ADetachedObserverHearsNothing)
{
    Subject subject;
    CountingObserver observer;
    subject.attach(&observer);
    subject.detach(&observer);
    subject.notify();
    EXPECT_EQ(0, observer.calls());
}

TEST(SubjectTest, DetachingAStrangerIsSilent)
{
    Subject subject;
    CountingObserver observer;
    EXPECT_NO_THROW(subject.detach(&observer));
}

TEST(SubjectTest, DetachTakesOutAnObserverAttachedTwice)
{
    Subject subject;
    CountingObserver observer;
    subject.attach(&observer);
    subject.attach(&observer);
    subject.detach(&observer);
    subject.notify();
    EXPECT_EQ(0, observer.calls());
}

TEST(SubjectTest, WhatIsNotifiedUnderADisablerIsDropped)
{
    Subject subject;
    CountingObserver observer;
    subject.attach(&observer);
    {
        Subject::NotifyDisabler const disabler = subject.disableNotifies();
        EXPECT_FALSE(subject.isNotifying());
        subject.notify();
    }
    EXPECT_TRUE(subject.isNotifying());
    EXPECT_EQ(0, observer.calls());
}

TEST(SubjectTest, WhatIsNotifiedUnderADisablerDoesNotComeBackFromADelay)
{
    Subject subject;
    CountingObserver observer;
    subject.attach(&observer);
    {
        NotifyDelay const delay;
        Subject::NotifyDisabler const disabler = subject.disableNotifies();
        subject.notify();
    }
    EXPECT_EQ(0, observer.calls());
}

TEST(SubjectTest, ACopyOfADisablerCountsAsWell)
{
    Subject subject;
    std::unique_ptr<Subject::NotifyDisabler> first =
        std::make_unique<Subject::NotifyDisabler>(&subject);
    Subject::NotifyDisabler const second(*first);
    first.reset();
    EXPECT_FALSE(subject.isNotifying());
}

TEST(SubjectTest, ADisablerSilencesItsOwnSubjectAlone)
{
    Subject silent;
    Subject other;
    CountingObserver observer;
    other.attach(&observer);
    Subject::NotifyDisabler const disabler(&silent);
    other.notify();
    EXPECT_EQ(1, observer.calls());
}

TEST(SubjectTest, ObserversDoNotFollowACopy)
{
    Subject original;
    CountingObserver observer;
    original.attach(&observer);
    Subject const copy(original);
    copy.notify();
    EXPECT_EQ(0, observer.calls());
}

TEST(SubjectTest, ACopyOfASilencedSubjectIsNotifying)
{
    Subject original;
    Subject::NotifyDisabler const disabler(&original);
    Subject const copy(original);
    EXPECT_TRUE(copy.isNotifying());
}

TEST(SubjectTest, AnAssignedSubjectKeepsItsOwnObservers)
{
    Subject from;
    Subject to;
    CountingObserver observer;
    to.attach(&observer);
    to = from;
    to.notify();
    EXPECT_EQ(1, observer.calls());
}

TEST(SubjectTest, MayDieWhileItTells)
{
    std::unique_ptr<Subject> subject = std::make_unique<Subject>();
    CountingObserver first([&subject] { subject.reset(); });
    CountingObserver second;
    subject->attach(&first);
    subject->attach(&second);
    subject->notify();
    EXPECT_EQ(0, second.calls());
}

TEST(SubjectTest, WhatAnObserverThrowsReachesTheCaller)
{
    Subject subject;
    CountingObserver observer([] { throw std::runtime_error("host"); });
    subject.attach(&observer);
    EXPECT_THROW(subject.notify(), std::runtime_error);
}

}  // namespace test
}  // namespace tarn
