#include "datatypes/Cloneable.h"

#include <boost/enable_shared_from_this.hpp>
#include <gtest/gtest.h>

namespace tarn {
namespace test {

namespace {

class Base : public Cloneable
{
public:
    Base* clone() const override { return new Base(*this); }
    virtual void setupSharedClone(boost::shared_ptr<Base> const& clone) const
    {
        clone->m_self = clone;
    }

    boost::weak_ptr<Base> m_self;
    int m_value = 0;
};

class Derived : public Base
{
public:
    Derived* clone() const override { return new Derived(*this); }
};

}  // namespace

TEST(CloneableTest, ASharedCloneIsAnotherObjectWithTheSameContent)
{
    boost::shared_ptr<Base> const original(new Base);
    original->m_value = 7;
    boost::shared_ptr<Base> const clone = sharedClone<Base>(original);
    EXPECT_NE(original, clone);
    EXPECT_EQ(7, clone->m_value);
}

TEST(CloneableTest, TheSecondStageSeesTheCloneInItsSharedPointer)
{
    boost::shared_ptr<Base> const original(new Base);
    boost::shared_ptr<Base> const clone = sharedClone<Base>(original);
    EXPECT_EQ(clone, clone->m_self.lock());
}

TEST(CloneableTest, ACloneOfAConstObjectIsMutable)
{
    boost::shared_ptr<Derived const> const original(new Derived);
    boost::shared_ptr<Derived> const clone = sharedClone(original);
    clone->m_value = 3;
    EXPECT_EQ(0, original->m_value);
}

TEST(CloneableTest, ASharedCloneKeepsTheConcreteType)
{
    boost::shared_ptr<Base const> const original(new Derived);
    boost::shared_ptr<Base> const clone = sharedClone<Base>(original);
    EXPECT_TRUE(boost::dynamic_pointer_cast<Derived>(clone));
}

TEST(CloneableTest, ACallerWhoKnowsTheConcreteTypeGetsIt)
{
    boost::shared_ptr<Base const> const original(new Derived);
    boost::shared_ptr<Derived> const clone = sharedClone<Derived>(original);
    EXPECT_TRUE(clone);
}

}  // namespace test
}  // namespace tarn
