#include "commands/StackOrQueue.h"

#include "support/ModelTest.h"

#include <deque>

namespace tarn {
namespace test {
namespace {

using Medias = StackOrQueue<boost::shared_ptr<Media const>>;

class StackOrQueueTest : public ModelTest
{
protected:
    StackOrQueueTest() { given("V1: abc"); }

    void pushAll(Medias& medias) const
    {
        medias.push(media("V1.a"));
        medias.push(media("V1.b"));
        medias.push(media("V1.c"));
    }
};

TEST_F(StackOrQueueTest, AStackGivesTheLastPushedFirst)
{
    Medias stack(static_cast<StackOrQueueEnum>(0));
    pushAll(stack);
    EXPECT_EQ(media("V1.c"), stack.pop());
    EXPECT_EQ(media("V1.b"), stack.pop());
    EXPECT_EQ(media("V1.a"), stack.pop());
}

TEST_F(StackOrQueueTest, AQueueGivesTheFirstPushedFirst)
{
    Medias queue(static_cast<StackOrQueueEnum>(1));
    pushAll(queue);
    EXPECT_EQ(media("V1.a"), queue.pop());
    EXPECT_EQ(media("V1.b"), queue.pop());
    EXPECT_EQ(media("V1.c"), queue.pop());
}

TEST_F(StackOrQueueTest, IsEmptyOnceAllIsTaken)
{
    Medias stack(StackOrder);
    EXPECT_TRUE(stack.empty());
    stack.push(media("V1.a"));
    EXPECT_FALSE(stack.empty());
    EXPECT_EQ(1u, stack.size());
    stack.pop();
    EXPECT_TRUE(stack.empty());
}

TEST_F(StackOrQueueTest, WhatIsPushedBetweenComesByThePolicy)
{
    Medias queue(QueueOrder);
    queue.push(media("V1.a"));
    queue.push(media("V1.b"));
    EXPECT_EQ(media("V1.a"), queue.pop());
    queue.push(media("V1.c"));
    EXPECT_EQ(media("V1.b"), queue.pop());
    EXPECT_EQ(media("V1.c"), queue.pop());
}

TEST_F(StackOrQueueTest, ShowsWhatComesSoManyTurnsLater)
{
    Medias stack(StackOrder);
    pushAll(stack);
    EXPECT_EQ(media("V1.c"), stack.ahead(0));
    EXPECT_EQ(media("V1.a"), stack.ahead(2));
    Medias queue(QueueOrder);
    pushAll(queue);
    EXPECT_EQ(media("V1.b"), queue.ahead(1));
    EXPECT_EQ(3u, queue.size());
}

TEST_F(StackOrQueueTest, ThePoliciesPushAtOppositeEnds)
{
    std::deque<int> elements{5};
    StackPush<int>().push(elements, 1);
    QueuePush<int>().push(elements, 9);
    EXPECT_EQ((std::deque<int>{1, 5, 9}), elements);
}

}  // namespace
}  // namespace test
}  // namespace tarn
