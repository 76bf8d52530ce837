#include "datatypes/NotifyDelay.h"

#include "datatypes/Subject.h"
#include "support/CountingObserver.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace tarn {
namespace test {

namespace {

/// A host's own kind of observable: it counts what it is asked for.
class HostObservable : public Observable
{
public:
    ~HostObservable() override { NotifyDelay::removeObservable(this); }

    void attach(Observer*) const override {}
    void detach(Observer* observer) const override { m_detached = observer; }
    void notify() const override { ++m_notified; }

    mutable Observer* m_detached = nullptr;
    mutable int m_notified = 0;
};

/// A delay that lives for as long as somebody wants.
struct Opened
{
    NotifyDelay delay;
};

void notifyBothUnderADelay(Subject const& first, Subject const& second)
{
    NotifyDelay const delay;
    first.notify();
    second.notify();
}

void notifyUnderADelayAndThrow(Subject const& subject, std::string const& message)
{
    NotifyDelay const delay;
    subject.notify();
    throw std::runtime_error(message);
}

std::string messageOf(void (*function)(Subject const&, std::string const&), Subject const& subject,
                      std::string const& message)
{
    try {
        function(subject, message);
    } catch (std::runtime_error const& exception) {
        return exception.what();
    }
    return "nothing thrown";
}

}  // namespace

TEST(NotifyDelayTest, IsActiveWhileOneIsOpen)
{
    EXPECT_FALSE(NotifyDelay::isActive());
    {
        NotifyDelay const delay;
        EXPECT_TRUE(NotifyDelay::isActive());
    }
    EXPECT_FALSE(NotifyDelay::isActive());
}

TEST(NotifyDelayTest, HoldsBackUntilItCloses)
{
    Subject subject;
    CountingObserver observer;
    subject.attach(&observer);
    {
        NotifyDelay const delay;
        subject.notify();
        EXPECT_EQ(0, observer.calls());
    }
    EXPECT_EQ(1, observer.calls());
}

TEST(NotifyDelayTest, ThreeNotificationsAreThreeCalls)
{
    Subject subject;
    CountingObserver observer;
    subject.attach(&observer);
    {
        NotifyDelay const delay;
        subject.notify();
        subject.notify();
        subject.notify();
    }
    EXPECT_EQ(3, observer.calls());
}

TEST(NotifyDelayTest, DeliversInOrderOfArrival)
{
    std::string order;
    Subject a;
    Subject b;
    CountingObserver ofA([&order] { order += "a"; });
    CountingObserver ofB([&order] { order += "b"; });
    a.attach(&ofA);
    b.attach(&ofB);
    {
        NotifyDelay const delay;
        b.notify();
        a.notify();
        b.notify();
    }
    EXPECT_EQ("bab", order);
}

TEST(NotifyDelayTest, ClosingAnInnerOneDeliversNothing)
{
    Subject subject;
    CountingObserver observer;
    subject.attach(&observer);
    {
        NotifyDelay const outer;
        {
            NotifyDelay const inner;
            subject.notify();
        }
        EXPECT_EQ(0, observer.calls());
    }
    EXPECT_EQ(1, observer.calls());
}

TEST(NotifyDelayTest, ASubjectDestroyedInsideIsNotCalled)
{
    CountingObserver observer;
    {
        NotifyDelay const delay;
        Subject subject;
        subject.attach(&observer);
        subject.notify();
        subject.notify();
    }
    EXPECT_EQ(0, observer.calls());
}

TEST(NotifyDelayTest, AnObserverDestroyedInsideIsDetachedFromEveryQueuedSubject)
{
    Subject a;
    Subject b;
    CountingObserver staying;
    a.attach(&staying);
    {
        NotifyDelay const delay;
        CountingObserver dying;
        a.attach(&dying);
        b.attach(&dying);
        a.notify();
        b.notify();
    }
    EXPECT_EQ(1, staying.calls());
}

TEST(NotifyDelayTest, AnObserverThatDiesWithAnEmptyQueueDisturbsNothing)
{
    Subject subject;
    CountingObserver observer;
    subject.attach(&observer);
    std::make_unique<CountingObserver>().reset();
    subject.notify();
    EXPECT_EQ(1, observer.calls());
}

TEST(NotifyDelayTest, WhatIsNotifiedDuringDeliveryGoesOutAtOnce)
{
    Subject a;
    Subject b;
    CountingObserver ofB;
    CountingObserver ofA([&b] { b.notify(); });
    a.attach(&ofA);
    b.attach(&ofB);
    {
        NotifyDelay const delay;
        a.notify();
        b.notify();
    }
    EXPECT_EQ(2, ofB.calls());
}

TEST(NotifyDelayTest, AnObserverMayOpenADelayDuringDelivery)
{
    Subject a;
    Subject b;
    CountingObserver ofB;
    CountingObserver ofA([&b] {
        NotifyDelay const inner;
        b.notify();
    });
    a.attach(&ofA);
    b.attach(&ofB);
    {
        NotifyDelay const delay;
        a.notify();
        b.notify();
    }
    EXPECT_EQ(1, ofA.calls());
    EXPECT_EQ(2, ofB.calls());
    EXPECT_FALSE(NotifyDelay::isActive());
}

TEST(NotifyDelayTest, ASubjectMayDieWhileItIsToldOf)
{
    std::unique_ptr<Subject> subject = std::make_unique<Subject>();
    CountingObserver first([&subject] { subject.reset(); });
    CountingObserver second;
    subject->attach(&first);
    subject->attach(&second);
    {
        NotifyDelay const delay;
        subject->notify();
        subject->notify();
    }
    EXPECT_EQ(1, first.calls());
    EXPECT_EQ(0, second.calls());
}

TEST(NotifyDelayTest, AnObserverMayDieWhileItsSubjectIsToldOf)
{
    Subject subject;
    std::unique_ptr<CountingObserver> second = std::make_unique<CountingObserver>();
    CountingObserver first([&second] { second.reset(); });
    subject.attach(&first);
    subject.attach(second.get());
    {
        NotifyDelay const delay;
        subject.notify();
    }
    subject.notify();
    EXPECT_EQ(2, first.calls());
}

TEST(NotifyDelayTest, DeliveryIsFinishedBeforeAnObserversExceptionPasses)
{
    Subject a;
    Subject b;
    CountingObserver ofA([] { throw std::runtime_error("first"); });
    CountingObserver ofB;
    a.attach(&ofA);
    b.attach(&ofB);
    EXPECT_THROW(notifyBothUnderADelay(a, b), std::runtime_error);
    EXPECT_EQ(1, ofB.calls());
    EXPECT_FALSE(NotifyDelay::isActive());
}

TEST(NotifyDelayTest, TheFirstExceptionOfSeveralPasses)
{
    Subject subject;
    CountingObserver first([] { throw std::runtime_error("first"); });
    subject.attach(&first);
    auto const twice = [](Subject const& told, std::string const&) {
        NotifyDelay const delay;
        told.notify();
        told.notify();
    };
    EXPECT_EQ("first", messageOf(twice, subject, ""));
    EXPECT_EQ(2, first.calls());
}

TEST(NotifyDelayTest, WhileTheStackUnwindsAnObserversExceptionIsDropped)
{
    Subject subject;
    CountingObserver observer([] { throw std::runtime_error("observer"); });
    subject.attach(&observer);
    EXPECT_EQ("edit", messageOf(notifyUnderADelayAndThrow, subject, "edit"));
    EXPECT_EQ(1, observer.calls());
    EXPECT_FALSE(NotifyDelay::isActive());
}

TEST(NotifyDelayTest, TakesAHostsOwnKindOfObservable)
{
    HostObservable observable;
    {
        NotifyDelay const delay;
        NotifyDelay::addObservable(&observable);
        NotifyDelay::addObservable(&observable);
        EXPECT_EQ(0, observable.m_notified);
    }
    EXPECT_EQ(2, observable.m_notified);
}

TEST(NotifyDelayTest, RemoveObservableDropsEveryEntry)
{
    HostObservable observable;
    {
        NotifyDelay const delay;
        NotifyDelay::addObservable(&observable);
        NotifyDelay::addObservable(&observable);
        NotifyDelay::removeObservable(&observable);
    }
    EXPECT_EQ(0, observable.m_notified);
}

TEST(NotifyDelayTest, RemoveObserverAsksEachQueuedObservableToDetach)
{
    HostObservable observable;
    CountingObserver observer;
    NotifyDelay const delay;
    NotifyDelay::addObservable(&observable);
    NotifyDelay::removeObserver(&observer);
    EXPECT_EQ(&observer, observable.m_detached);
}

TEST(NotifyDelayTest, ASubjectQueuedByItsBaseIsForgottenWhenItDies)
{
    CountingObserver observer;
    {
        NotifyDelay const delay;
        Subject subject;
        subject.attach(&observer);
        NotifyDelay::addObservable(static_cast<Observable const*>(&subject));
    }
    EXPECT_EQ(0, observer.calls());
}

TEST(NotifyDelayTest, ADelayThatAnObserverLeavesOpenHoldsBackTheRest)
{
    Subject a;
    Subject b;
    std::unique_ptr<Opened> left;
    CountingObserver ofA([&left] { left = std::make_unique<Opened>(); });
    CountingObserver ofB;
    a.attach(&ofA);
    b.attach(&ofB);
    notifyBothUnderADelay(a, b);
    EXPECT_EQ(1, ofA.calls());
    EXPECT_EQ(0, ofB.calls());
    left.reset();
    EXPECT_EQ(1, ofB.calls());
}

TEST(NotifyDelayTest, AnObserverMayDieAfterAWaitingSubjectHas)
{
    auto dying = std::make_unique<Subject>();
    Subject staying;
    auto observer = std::make_unique<CountingObserver>();
    CountingObserver other;
    staying.attach(observer.get());
    staying.attach(&other);
    {
        NotifyDelay const delay;
        dying->notify();
        staying.notify();
        dying.reset();
        observer.reset();
    }
    EXPECT_EQ(1, other.calls());
}

TEST(NotifyDelayTest, AnObserverMayDieAfterTheSubjectThatIsToldOfHas)
{
    auto dying = std::make_unique<Subject>();
    Subject staying;
    int callsOfTheDead = 0;
    auto observer = std::make_unique<CountingObserver>([&callsOfTheDead] { ++callsOfTheDead; });
    CountingObserver other;
    CountingObserver killer([&] {
        dying.reset();
        observer.reset();
    });
    dying->attach(&killer);
    staying.attach(observer.get());
    staying.attach(&other);
    notifyBothUnderADelay(*dying, staying);
    EXPECT_EQ(0, callsOfTheDead);
    EXPECT_EQ(1, other.calls());
}

TEST(NotifyDelayTest, AnObserverThatDiesInADeliveryWithinADeliveryIsNotCalledByTheOuterOne)
{
    Subject outer;
    Subject inner;
    int callsOfTheDead = 0;
    auto observer = std::make_unique<CountingObserver>([&callsOfTheDead] { ++callsOfTheDead; });
    CountingObserver editing([&inner] {
        NotifyDelay const delay;
        inner.notify();
    });
    CountingObserver killer([&observer] { observer.reset(); });
    outer.attach(&editing);
    outer.attach(observer.get());
    inner.attach(&killer);
    {
        NotifyDelay const delay;
        outer.notify();
    }
    EXPECT_EQ(1, killer.calls());
    EXPECT_EQ(0, callsOfTheDead);
}

TEST(NotifyDelayTest, DescribesItselfByNothing)
{
    EXPECT_EQ("", NotifyDelay().description());
}

}  // namespace test
}  // namespace tarn
