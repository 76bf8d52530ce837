#include "datatypes/DecoratedCloneable.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

namespace {

class Item : public DecoratedCloneable<Item>
{
public:
    Item* clone() const override { return new Item(*this); }

    Item const* m_madeFrom = nullptr;
};

class NotesTheOriginal : public CloneDecorator<Item>
{
public:
    void decorateClone(Item const& original, boost::shared_ptr<Item> const& clone) const override
    {
        clone->m_madeFrom = &original;
    }
};

boost::shared_ptr<Item> decoratedItem()
{
    boost::shared_ptr<Item> const item(new Item);
    item->setCloneDecorator(boost::shared_ptr<NotesTheOriginal>(new NotesTheOriginal));
    return item;
}

}  // namespace

TEST(DecoratedCloneableTest, WithoutADecoratorACloneIsLeftAsItIs)
{
    boost::shared_ptr<Item> const item(new Item);
    EXPECT_EQ(nullptr, sharedClone<Item>(item)->m_madeFrom);
}

TEST(DecoratedCloneableTest, TheDecoratorIsGivenTheOriginalAndTheClone)
{
    boost::shared_ptr<Item> const item = decoratedItem();
    EXPECT_EQ(item.get(), sharedClone<Item>(item)->m_madeFrom);
}

TEST(DecoratedCloneableTest, AClonesClonesAreDecoratedToo)
{
    boost::shared_ptr<Item> const clone = sharedClone<Item>(decoratedItem());
    EXPECT_EQ(clone.get(), sharedClone<Item>(clone)->m_madeFrom);
}

}  // namespace test
}  // namespace tarn
