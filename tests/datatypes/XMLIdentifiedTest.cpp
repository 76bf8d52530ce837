#include "datatypes/XMLIdentified.h"

#include <gtest/gtest.h>

#include <memory>

namespace tarn {
namespace test {

TEST(XMLIdentifiedTest, LivingObjectsHaveDifferentIdents)
{
    XMLIdentified const a;
    XMLIdentified const b;
    EXPECT_NE(a.xmlIdent(), b.xmlIdent());
}

TEST(XMLIdentifiedTest, ACopyHasItsOwnIdent)
{
    XMLIdentified const original;
    XMLIdentified const copy(original);
    EXPECT_NE(original.xmlIdent(), copy.xmlIdent());
}

TEST(XMLIdentifiedTest, AssigningLeavesBothIdentsAsTheyAre)
{
    XMLIdentified a;
    XMLIdentified b;
    unsigned int const identOfA = a.xmlIdent();
    unsigned int const identOfB = b.xmlIdent();
    a = b;
    EXPECT_EQ(identOfA, a.xmlIdent());
    EXPECT_EQ(identOfB, b.xmlIdent());
}

TEST(XMLIdentifiedTest, TheIdentLastGivenBackIsUsedFirst)
{
    std::unique_ptr<XMLIdentified> first = std::make_unique<XMLIdentified>();
    std::unique_ptr<XMLIdentified> second = std::make_unique<XMLIdentified>();
    unsigned int const firstIdent = first->xmlIdent();
    unsigned int const secondIdent = second->xmlIdent();
    first.reset();
    second.reset();
    XMLIdentified const next;
    XMLIdentified const afterNext;
    EXPECT_EQ(secondIdent, next.xmlIdent());
    EXPECT_EQ(firstIdent, afterNext.xmlIdent());
}

}  // namespace test
}  // namespace tarn
