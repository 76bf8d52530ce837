#include "datatypes/DecoratedCloneable.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

namespace {

class Node : public DecoratedCloneable<Node>
{
public:
    Node* clone() const override { return new Node(*this); }

    Node const* m_madeFrom = nullptr;
};

class NotesTheOriginal : public CloneDecorator<Node>
{
public:
    void decorateClone(Node const& original, boost::shared_ptr<Node> const& clone) const override
    {
        clone->m_madeFrom = &original;
    }
};

boost::shared_ptr<Node> decoratedItem()
{
    boost::shared_ptr<Node> const item(new Node);
    item->setCloneDecorator(boost::shared_ptr<NotesTheOriginal>(new NotesTheOriginal));
    return item;
}

}  // namespace

TEST(DecoratedCloneableTest, WithoutADecoratorACloneIsLeftAsItIs)
{
    boost::shared_ptr<Node> const item(new Node);
    EXPECT_EQ(nullptr, sharedClone<Node>(item)->m_madeFrom);
}

TEST(DecoratedCloneableTest, TheDecoratorIsGivenTheOriginalAndTheClone)
{
    boost::shared_ptr<Node> const item = decoratedItem();
    EXPECT_EQ(item.get(), sharedClone<Node>(item)->m_madeFrom);
}

TEST(DecoratedCloneableTest, AClonesClonesAreDecoratedToo)
{
    boost::shared_ptr<Node> const clone = sharedClone<Node>(decoratedItem());
    EXPECT_EQ(clone.get(), sharedClone<Node>(clone)->m_madeFrom);
}

}  // namespace test
}  // namespace tarn
