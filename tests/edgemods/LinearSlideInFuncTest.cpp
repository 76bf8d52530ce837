#include "edgemods/LinearSlideInFunc.h"

#include "edgemods/AuxEdgeModInfo.h"
#include "support/Xml.h"

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

TEST(LinearSlideInFuncTest, SlidesFromADistanceToTheValue)
{
    // (1 - p) * 50 + 8
    LinearSlideInFunc const slide(50);
    EXPECT_EQ(58, slide.execute(0, 8));
    EXPECT_EQ(45.5, slide.execute(0.25, 8));
    EXPECT_EQ(8, slide.execute(1, 8));
}

TEST(LinearSlideInFuncTest, SlidesFromTheOtherSideWithANegativeDistance)
{
    EXPECT_EQ(-42, LinearSlideInFunc(-50).execute(0, 8));
    EXPECT_EQ(-17, LinearSlideInFunc(-50).execute(0.5, 8));
}

TEST(LinearSlideInFuncTest, ACloneSlidesAsFar)
{
    boost::shared_ptr<EdgeModFunc> const copy(LinearSlideInFunc(50).clone());
    EXPECT_EQ("LinearSlideInFunc", copy->ident());
    EXPECT_EQ(45.5, copy->execute(0.25, 8));
}

TEST(LinearSlideInFuncTest, NeedsNoMixer)
{
    LinearSlideInFunc slide(50);
    slide.setAuxInfo(AuxEdgeModInfo());
    EXPECT_EQ(nullptr, slide.auxInfo());
    EXPECT_EQ(58, slide.execute(0, 8));
}

TEST(LinearSlideInFuncTest, WritesItsNameWithoutTheDistance)
{
    EXPECT_EQ("<LinearSlideInFunc id=\"#\"  >\n</LinearSlideInFunc>\n",
              xmlOf(LinearSlideInFunc(50)));
}

}  // namespace
}  // namespace test
}  // namespace tarn
