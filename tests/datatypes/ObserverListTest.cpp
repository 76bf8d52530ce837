#include "datatypes/ObserverList.h"

#include "support/CountingObserver.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace tarn {
namespace test {

TEST(ObserverListTest, CallsFromFrontToBack)
{
    std::string order;
    CountingObserver first([&order] { order += "a"; });
    CountingObserver second([&order] { order += "b"; });
    ObserverList list;
    list.attach(&first);
    list.attach(&second);
    list.notify();
    EXPECT_EQ("ab", order);
}

TEST(ObserverListTest, AttachedTwiceMeansCalledTwice)
{
    CountingObserver observer;
    ObserverList list;
    list.attach(&observer);
    list.attach(&observer);
    list.notify();
    EXPECT_EQ(2u, list.size());
    EXPECT_EQ(2, observer.calls());
}

TEST(ObserverListTest, DetachTakesOutEveryEntryOfThatObserver)
{
    CountingObserver observer;
    CountingObserver other;
    ObserverList list;
    list.attach(&observer);
    list.attach(&other);
    list.attach(&observer);
    list.detach(&observer);
    EXPECT_EQ(1u, list.size());
    EXPECT_FALSE(list.isAttached(&observer));
    EXPECT_TRUE(list.isAttached(&other));
}

TEST(ObserverListTest, DetachingWhatIsNotThereChangesNothing)
{
    CountingObserver observer;
    CountingObserver stranger;
    ObserverList list;
    list.attach(&observer);
    list.detach(&stranger);
    EXPECT_EQ(1u, list.size());
}

TEST(ObserverListTest, AnEmptyPointerIsNotListed)
{
    ObserverList list;
    list.attach(nullptr);
    list.notify();
    EXPECT_EQ(0u, list.size());
    EXPECT_FALSE(list.isAttached(nullptr));
}

TEST(ObserverListTest, OneAttachedDuringTheWalkIsStillCalled)
{
    CountingObserver late;
    ObserverList list;
    CountingObserver last([&] { list.attach(&late); });
    list.attach(&last);
    list.notify();
    EXPECT_EQ(1, late.calls());
}

TEST(ObserverListTest, OneDetachedBeforeItsTurnIsNotCalled)
{
    CountingObserver second;
    ObserverList list;
    CountingObserver first([&] { list.detach(&second); });
    list.attach(&first);
    list.attach(&second);
    list.notify();
    EXPECT_EQ(0, second.calls());
    EXPECT_EQ(1u, list.size());
}

TEST(ObserverListTest, TheOneInProgressMayDetachItself)
{
    ObserverList list;
    CountingObserver once;
    once.setAction([&] { list.detach(&once); });
    CountingObserver next;
    list.attach(&once);
    list.attach(&next);
    list.notify();
    list.notify();
    EXPECT_EQ(1, once.calls());
    EXPECT_EQ(2, next.calls());
}

TEST(ObserverListTest, TheLastOneMayLeaveAndBringItsSuccessor)
{
    ObserverList list;
    CountingObserver successor;
    CountingObserver last;
    last.setAction([&] {
        list.detach(&last);
        list.attach(&successor);
    });
    list.attach(&last);
    list.notify();
    EXPECT_EQ(1, successor.calls());
    EXPECT_EQ(1u, list.size());
}

TEST(ObserverListTest, SizeLeavesOutWhatWasDetachedDuringTheWalk)
{
    std::size_t sizeMeanwhile = 9;
    ObserverList list;
    CountingObserver observer;
    observer.setAction([&] {
        list.detach(&observer);
        sizeMeanwhile = list.size();
    });
    list.attach(&observer);
    list.notify();
    EXPECT_EQ(0u, sizeMeanwhile);
}

TEST(ObserverListTest, AWalkWithinAWalkIsWhole)
{
    ObserverList list;
    CountingObserver inner;
    CountingObserver outer;
    outer.setAction([&] {
        outer.setAction(nullptr);
        list.detach(&inner);
        list.attach(&inner);
        list.notify();
    });
    list.attach(&outer);
    list.attach(&inner);
    list.notify();
    EXPECT_EQ(2, outer.calls());
    EXPECT_EQ(2, inner.calls());
    EXPECT_EQ(2u, list.size());
}

TEST(ObserverListTest, AListThatDiesDuringTheWalkCallsNoOneMore)
{
    std::unique_ptr<ObserverList> list = std::make_unique<ObserverList>();
    CountingObserver first([&list] { list.reset(); });
    CountingObserver second;
    list->attach(&first);
    list->attach(&second);
    list->notify();
    EXPECT_EQ(1, first.calls());
    EXPECT_EQ(0, second.calls());
}

TEST(ObserverListTest, WhatAnObserverThrowsPassesAndLeavesTheListWhole)
{
    ObserverList list;
    CountingObserver thrower;
    thrower.setAction([&] {
        list.detach(&thrower);
        throw std::runtime_error("host");
    });
    list.attach(&thrower);
    EXPECT_THROW(list.notify(), std::runtime_error);
    EXPECT_EQ(0u, list.size());
}

}  // namespace test
}  // namespace tarn
