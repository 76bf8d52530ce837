#include "datatypes/UpdateCollector.h"

#include "datatypes/NotifyDelay.h"
#include "datatypes/Subject.h"
#include "support/CountingObserver.h"

#include <boost/enable_shared_from_this.hpp>
#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

#include <stdexcept>

namespace tarn {
namespace test {

namespace {

/// Changes as mixers, tracks and medias do.
class Item : public Subject, public boost::enable_shared_from_this<Item>
{
public:
    void notify() const override
    {
        if (UpdateCollector::instance()->isCollecting()) {
            UpdateCollector::instance()->addObservable(shared_from_this());
            return;
        }
        Subject::notify();
    }
};

void collectAndThrow(Item const& item)
{
    UpdateCollector::Collection const collection;
    item.notify();
    throw std::logic_error("edit");
}

void collect(Item const& item)
{
    UpdateCollector::Collection const collection;
    item.notify();
}

}  // namespace

TEST(UpdateCollectorTest, IsOneForTheProcess)
{
    EXPECT_EQ(UpdateCollector::instance(), UpdateCollector::instance());
}

TEST(UpdateCollectorTest, CollectsWithinACollectionOnly)
{
    EXPECT_FALSE(UpdateCollector::instance()->isCollecting());
    {
        UpdateCollector::Collection const collection;
        EXPECT_TRUE(UpdateCollector::instance()->isCollecting());
    }
    EXPECT_FALSE(UpdateCollector::instance()->isCollecting());
}

TEST(UpdateCollectorTest, AnObjectThatChangesTwiceNotifiesOnceAtTheEnd)
{
    boost::shared_ptr<Item> const item = boost::make_shared<Item>();
    CountingObserver observer;
    item->attach(&observer);
    {
        UpdateCollector::Collection const collection;
        item->notify();
        item->notify();
        EXPECT_EQ(0, observer.calls());
    }
    EXPECT_EQ(1, observer.calls());
}

TEST(UpdateCollectorTest, EachObjectSpeaksForItself)
{
    boost::shared_ptr<Item> const a = boost::make_shared<Item>();
    boost::shared_ptr<Item> const b = boost::make_shared<Item>();
    CountingObserver observer;
    a->attach(&observer);
    b->attach(&observer);
    {
        UpdateCollector::Collection const collection;
        a->notify();
        b->notify();
        a->notify();
    }
    EXPECT_EQ(2, observer.calls());
}

TEST(UpdateCollectorTest, WithinADelayTheCollectedObjectsWaitForTheDelay)
{
    boost::shared_ptr<Item> const item = boost::make_shared<Item>();
    CountingObserver observer;
    item->attach(&observer);
    {
        NotifyDelay const delay;
        collect(*item);
        EXPECT_EQ(0, observer.calls());
    }
    EXPECT_EQ(1, observer.calls());
}

TEST(UpdateCollectorTest, TheInnerCollectionsEndIsTheEndForTheOuterToo)
{
    boost::shared_ptr<Item> const item = boost::make_shared<Item>();
    CountingObserver observer;
    item->attach(&observer);
    UpdateCollector::Collection const outer;
    collect(*item);
    EXPECT_FALSE(UpdateCollector::instance()->isCollecting());
    EXPECT_EQ(1, observer.calls());
}

TEST(UpdateCollectorTest, WhatWasCollectedIsForgottenAfterwards)
{
    boost::shared_ptr<Item> const item = boost::make_shared<Item>();
    CountingObserver observer;
    item->attach(&observer);
    collect(*item);
    UpdateCollector::instance()->startCollecting();
    UpdateCollector::instance()->stopCollecting();
    EXPECT_EQ(1, observer.calls());
}

TEST(UpdateCollectorTest, AnObserverMayCollectAnewWhileOneEnds)
{
    boost::shared_ptr<Item> const item = boost::make_shared<Item>();
    boost::shared_ptr<Item> const other = boost::make_shared<Item>();
    CountingObserver ofOther;
    CountingObserver ofItem([&other] { collect(*other); });
    item->attach(&ofItem);
    other->attach(&ofOther);
    collect(*item);
    EXPECT_EQ(1, ofItem.calls());
    EXPECT_EQ(1, ofOther.calls());
}

TEST(UpdateCollectorTest, WhatAnObserverThrowsPassesOnceAllHaveNotified)
{
    boost::shared_ptr<Item> const a = boost::make_shared<Item>();
    boost::shared_ptr<Item> const b = boost::make_shared<Item>();
    CountingObserver observer([] { throw std::runtime_error("host"); });
    a->attach(&observer);
    b->attach(&observer);
    UpdateCollector::instance()->startCollecting();
    a->notify();
    b->notify();
    EXPECT_THROW(UpdateCollector::instance()->stopCollecting(), std::runtime_error);
    EXPECT_EQ(2, observer.calls());
}

TEST(UpdateCollectorTest, ACollectionLetsTheExceptionOfAnObserverPass)
{
    boost::shared_ptr<Item> const item = boost::make_shared<Item>();
    CountingObserver observer([] { throw std::runtime_error("host"); });
    item->attach(&observer);
    EXPECT_THROW(collect(*item), std::runtime_error);
    EXPECT_FALSE(UpdateCollector::instance()->isCollecting());
}

TEST(UpdateCollectorTest, WhileTheStackUnwindsAnObserversExceptionIsDropped)
{
    boost::shared_ptr<Item> const item = boost::make_shared<Item>();
    CountingObserver observer([] { throw std::runtime_error("host"); });
    item->attach(&observer);
    EXPECT_THROW(collectAndThrow(*item), std::logic_error);
    EXPECT_EQ(1, observer.calls());
}

TEST(UpdateCollectorTest, AnEmptyPointerIsNotCollected)
{
    UpdateCollector::instance()->startCollecting();
    UpdateCollector::instance()->addObservable(boost::shared_ptr<Observable const>());
    EXPECT_NO_THROW(UpdateCollector::instance()->stopCollecting());
}

TEST(UpdateCollectorTest, HasNoDescription)
{
    EXPECT_EQ("", UpdateCollector::instance()->description());
}

}  // namespace test
}  // namespace tarn
