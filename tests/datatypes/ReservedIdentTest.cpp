#include "datatypes/ReservedIdent.h"

#include "datatypes/XMLIdentified.h"

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace tarn {
namespace test {

TEST(ReservedIdentTest, NobodyElseGetsAnIdentThatIsHeld)
{
    ReservedIdent const held = ReservedIdent::draw();
    XMLIdentified const other;
    EXPECT_TRUE(held.isHeld());
    EXPECT_NE(held.ident(), other.xmlIdent());
}

TEST(ReservedIdentTest, AnObjectTakesItOver)
{
    ReservedIdent held = ReservedIdent::draw();
    unsigned int const ident = held.ident();
    XMLIdentified const object(held);
    EXPECT_EQ(ident, object.xmlIdent());
    EXPECT_FALSE(held.isHeld());
}

TEST(ReservedIdentTest, WhatNobodyTookIsGivenBack)
{
    unsigned int ident = 0;
    {
        ReservedIdent const held = ReservedIdent::draw();
        ident = held.ident();
    }
    XMLIdentified const next;
    EXPECT_EQ(ident, next.xmlIdent());
}

TEST(ReservedIdentTest, WhatWasTakenIsGivenBackByTheObjectAlone)
{
    auto held = std::make_unique<ReservedIdent>(ReservedIdent::draw());
    XMLIdentified const object(*held);
    held.reset();
    XMLIdentified const next;
    EXPECT_NE(object.xmlIdent(), next.xmlIdent());
}

TEST(ReservedIdentTest, MovingLeavesTheOtherWithout)
{
    ReservedIdent held = ReservedIdent::draw();
    unsigned int const ident = held.ident();
    ReservedIdent const moved(std::move(held));
    EXPECT_EQ(ident, moved.ident());
    EXPECT_TRUE(moved.isHeld());
    EXPECT_FALSE(held.isHeld());
}

TEST(ReservedIdentTest, WithoutOneAnObjectDrawsItsOwn)
{
    ReservedIdent none;
    XMLIdentified const other;
    XMLIdentified const object(none);
    EXPECT_NE(other.xmlIdent(), object.xmlIdent());
}

}  // namespace test
}  // namespace tarn
