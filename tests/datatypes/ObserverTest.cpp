#include "datatypes/Observer.h"

#include "datatypes/NotifyDelay.h"
#include "datatypes/Subject.h"
#include "support/CountingObserver.h"

#include <gtest/gtest.h>

#include <memory>

namespace tarn {
namespace test {

TEST(ObserverTest, IsForgottenByAWaitingSubjectWhenItDies)
{
    Subject subject;
    {
        NotifyDelay const delay;
        std::unique_ptr<CountingObserver> observer = std::make_unique<CountingObserver>();
        subject.attach(observer.get());
        subject.notify();
        observer.reset();
    }
    EXPECT_NO_THROW(subject.notify());
}

TEST(ObserverTest, MayListenToManySubjects)
{
    Subject a;
    Subject b;
    CountingObserver observer;
    a.attach(&observer);
    b.attach(&observer);
    a.notify();
    b.notify();
    EXPECT_EQ(2, observer.calls());
}

}  // namespace test
}  // namespace tarn
