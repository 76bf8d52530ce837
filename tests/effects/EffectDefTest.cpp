#include "effects/EffectDef.h"

#include <gtest/gtest.h>

namespace tarn {
namespace {

TEST(EffectDefTest, StartsWithoutNameAndParameters)
{
    EffectDef const def;
    EXPECT_EQ("", def.name());
    EXPECT_EQ(0, def.numParameters());
    EXPECT_TRUE(def.begin() == def.end());
}

TEST(EffectDefTest, HasTheNameItWasMadeWith)
{
    EXPECT_EQ("Glow", EffectDef("Glow").name());
    EXPECT_EQ("", EffectDef("Glow").description());
}

TEST(EffectDefTest, KeepsItsParametersInOrderOfAdding)
{
    EffectDef def("Glow");
    def.addParamDef("radius", "double", 10.0, 100.0, 0.0);
    def.addParamDef("mask", "image", 0.0, 0.0, 0.0);
    ASSERT_EQ(2, def.numParameters());
    EXPECT_EQ("radius", def.begin()->name);
    EXPECT_EQ("mask", (def.begin() + 1)->name);
    EXPECT_TRUE(def.begin() + 2 == def.end());
}

TEST(EffectDefTest, TakesDefaultMaximumMinimumInThatOrder)
{
    EffectDef def("Glow");
    def.addParamDef("radius", "double", 10.0, 100.0, -1.0);
    EffectDef const& constDef = def;
    EXPECT_EQ("double", constDef.begin()->type);
    EXPECT_EQ(10, boost::any_cast<double>(constDef.begin()->defaultValue));
    EXPECT_EQ(100, boost::any_cast<double>(constDef.begin()->maximum));
    EXPECT_EQ(-1, boost::any_cast<double>(constDef.begin()->minimum));
}

TEST(EffectDefTest, KeepsTwoParametersOfOneName)
{
    EffectDef def("Glow");
    def.addParamDef("radius", "double", 1.0, 1.0, 1.0);
    def.addParamDef("radius", "double", 2.0, 2.0, 2.0);
    EXPECT_EQ(2, def.numParameters());
}

TEST(EffectDefTest, ACopyIsIndependent)
{
    EffectDef def("Glow");
    EffectDef const copy = def;
    def.addParamDef("radius", "double", 1.0, 1.0, 1.0);
    EXPECT_EQ("Glow", copy.name());
    EXPECT_EQ(0, copy.numParameters());
}

}  // namespace
}  // namespace tarn
