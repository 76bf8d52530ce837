// What depends on no object having had an ident before: a process of its own.

#include "datatypes/XMLIdentified.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>

namespace tarn {
namespace test {

namespace {

std::unique_ptr<XMLIdentified> make()
{
    return std::make_unique<XMLIdentified>();
}

}  // namespace

TEST(FirstIdentTest, IdentsCountFromZeroAndTheLastGivenBackIsUsedFirst)
{
    std::array<std::unique_ptr<XMLIdentified>, 8> objects{make(), make(), make(), make(),
                                                          make(), make(), make(), make()};
    EXPECT_EQ(0u, objects[0]->xmlIdent());
    EXPECT_EQ(1u, objects[1]->xmlIdent());
    EXPECT_EQ(7u, objects[7]->xmlIdent());
    objects[5].reset();
    objects[7].reset();
    EXPECT_EQ(7u, (objects[7] = make())->xmlIdent());
    EXPECT_EQ(5u, (objects[5] = make())->xmlIdent());
    XMLIdentified const next;
    EXPECT_EQ(8u, next.xmlIdent());
}

}  // namespace test
}  // namespace tarn
