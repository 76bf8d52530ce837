#include "datatypes/LateObject.h"

#include "datatypes/XMLIdentified.h"
#include "support/FreshIdents.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>
#include <utility>

namespace tarn {
namespace test {

namespace {

/// Something of two idents.
struct Twin
{
    explicit Twin(ReservedIdent* idents) : first(idents[0]), second(idents[1]) {}

    XMLIdentified first;
    XMLIdentified second;
};

using LateTwin = LateObject<Twin, 2>;

boost::shared_ptr<Twin> made(ReservedIdent* idents)
{
    return boost::shared_ptr<Twin>(new Twin(idents));
}

/// Fails when one of the two idents is taken already.
boost::shared_ptr<Twin> halfMade(ReservedIdent* idents)
{
    XMLIdentified const first(idents[0]);
    throw std::runtime_error("no memory");
}

}  // namespace

TEST(LateObjectTest, BearsTheIdentsDrawnAtTheStart)
{
    FreshIdents const idents;
    LateTwin const twin;
    XMLIdentified const later;
    EXPECT_EQ(nullptr, twin.ifMade());
    EXPECT_EQ(idents.first(), twin.get(made)->first.xmlIdent());
    EXPECT_EQ(idents.first() + 1, twin.get(made)->second.xmlIdent());
    EXPECT_EQ(idents.first() + 2, later.xmlIdent());
}

TEST(LateObjectTest, TellsItsIdentsUntilItIsMade)
{
    FreshIdents const idents;
    LateTwin const twin;
    LateTwin::Idents waiting;
    ASSERT_TRUE(twin.waitingIdents(waiting));
    EXPECT_EQ((LateTwin::Idents{idents.first(), idents.first() + 1}), waiting);
    twin.get(made);
    EXPECT_FALSE(twin.waitingIdents(waiting));
}

TEST(LateObjectTest, NotMadeGivesItsIdentsBackAsTheObjectWould)
{
    FreshIdents const idents;
    {
        LateTwin const twin;
    }
    XMLIdentified const next;
    EXPECT_EQ(idents.first(), next.xmlIdent());
}

TEST(LateObjectTest, AVectorGivesBackEachParameterFromItsLastIdentAndThenItsOwn)
{
    FreshIdents const idents;
    {
        // Own, attribute, and two parameters of four.
        LateObject<Twin, 10> const vector;
    }
    // The last given back is used first.
    std::array<unsigned int, 10> const expected{0, 1, 6, 7, 8, 9, 2, 3, 4, 5};
    for (unsigned int const ident : expected)
        EXPECT_EQ(idents.first() + ident, IdentManager::instance()->newIdent());
}

TEST(LateObjectTest, AFailureLeavesItUnmadeWithItsIdents)
{
    FreshIdents const idents;
    LateTwin const twin;
    EXPECT_THROW(twin.get(halfMade), std::runtime_error);
    LateTwin::Idents waiting;
    ASSERT_TRUE(twin.waitingIdents(waiting));
    EXPECT_EQ((LateTwin::Idents{idents.first(), idents.first() + 1}), waiting);
    EXPECT_EQ(idents.first(), twin.get(made)->first.xmlIdent());
}

TEST(LateObjectTest, TakesIdentsOver)
{
    FreshIdents const idents;
    ReservedIdent held[2] = {ReservedIdent::draw(), ReservedIdent::draw()};
    LateTwin const twin(held);
    EXPECT_FALSE(held[0].isHeld());
    EXPECT_EQ(idents.first(), twin.get(made)->first.xmlIdent());
}

TEST(LateObjectTest, MayStartWithOneThatExists)
{
    ReservedIdent held[2] = {ReservedIdent::draw(), ReservedIdent::draw()};
    boost::shared_ptr<Twin> const existing = made(held);
    LateTwin const twin(existing);
    EXPECT_EQ(existing.get(), twin.ifMade());
}

}  // namespace test
}  // namespace tarn
