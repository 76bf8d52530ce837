#include "edgemods/RotateFunc.h"

#include "support/Xml.h"

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

double const k_turn = 6.283185307179586;

TEST(RotateFuncTest, TurnsOnFromTheValue)
{
    RotateFunc const rotate(2);
    EXPECT_EQ(0.5, rotate.execute(0, 0.5));
    EXPECT_DOUBLE_EQ(0.5 + k_turn / 2, rotate.execute(0.25, 0.5));
    EXPECT_DOUBLE_EQ(0.5 + 2 * k_turn, rotate.execute(1, 0.5));
}

TEST(RotateFuncTest, TurnsBackWithANegativeNumber)
{
    EXPECT_DOUBLE_EQ(0.5 - k_turn, RotateFunc(-1).execute(1, 0.5));
}

TEST(RotateFuncTest, WithoutTurnsTheValueStays)
{
    EXPECT_EQ(0.5, RotateFunc(0).execute(0.75, 0.5));
}

TEST(RotateFuncTest, KeepsButDoesNotNeedAMixer)
{
    RotateFunc rotate(1);
    ASSERT_NE(nullptr, rotate.auxInfo());
    rotate.setAuxInfo(AuxEdgeModInfo());
    EXPECT_FALSE(rotate.auxInfo()->visualMixer().lock());
    EXPECT_EQ(k_turn, rotate.execute(1, 0));
}

TEST(RotateFuncTest, ACloneTurnsAsOften)
{
    boost::shared_ptr<EdgeModFunc> const copy(RotateFunc(3).clone());
    EXPECT_EQ("Rotate", copy->ident());
    EXPECT_DOUBLE_EQ(3 * k_turn, copy->execute(1, 0));
}

TEST(RotateFuncTest, WritesItsTurns)
{
    EXPECT_EQ("<Rotate id=\"#\"  numRotations=\"-2\" >\n</Rotate>\n", xmlOf(RotateFunc(-2)));
}

}  // namespace
}  // namespace test
}  // namespace tarn
