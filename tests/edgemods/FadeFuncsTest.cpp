#include "edgemods/AuxEdgeModInfo.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/FadeOutFunc.h"
#include "support/Xml.h"

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

TEST(FadeFuncsTest, FadesInFromNothingToTheValue)
{
    FadeInFunc const fade;
    EXPECT_EQ(0, fade.execute(0, 8));
    EXPECT_EQ(2, fade.execute(0.25, 8));
    EXPECT_EQ(8, fade.execute(1, 8));
}

TEST(FadeFuncsTest, FadesOutFromTheValueToNothing)
{
    FadeOutFunc const fade;
    EXPECT_EQ(8, fade.execute(0, 8));
    EXPECT_EQ(6, fade.execute(0.25, 8));
    EXPECT_EQ(0, fade.execute(1, 8));
}

TEST(FadeFuncsTest, GoOnBeyondTheEdge)
{
    EXPECT_EQ(-4, FadeInFunc().execute(-0.5, 8));
    EXPECT_EQ(-2, FadeOutFunc().execute(1.25, 8));
}

TEST(FadeFuncsTest, AreCalledByTheirClass)
{
    EXPECT_EQ("FadeInFunc", FadeInFunc().ident());
    EXPECT_EQ("FadeOutFunc", FadeOutFunc().ident());
}

TEST(FadeFuncsTest, WriteTheirNameAlone)
{
    EXPECT_EQ("<FadeInFunc id=\"#\"  >\n</FadeInFunc>\n", xmlOf(FadeInFunc()));
    EXPECT_EQ("<FadeOutFunc id=\"#\"  >\n</FadeOutFunc>\n", xmlOf(FadeOutFunc()));
}

TEST(FadeFuncsTest, NeedNoMixer)
{
    FadeInFunc fadeIn;
    FadeOutFunc fadeOut;
    fadeIn.setAuxInfo(AuxEdgeModInfo());
    fadeOut.setAuxInfo(AuxEdgeModInfo());
    EXPECT_EQ(nullptr, fadeIn.auxInfo());
    EXPECT_EQ(nullptr, fadeOut.auxInfo());
    EXPECT_EQ(4, fadeIn.execute(0.5, 8));
    EXPECT_EQ(4, fadeOut.execute(0.5, 8));
}

TEST(FadeFuncsTest, AreCloned)
{
    boost::shared_ptr<EdgeModFunc> const in(FadeInFunc().clone());
    boost::shared_ptr<EdgeModFunc> const out(FadeOutFunc().clone());
    EXPECT_EQ(2, in->execute(0.25, 8));
    EXPECT_EQ(6, out->execute(0.25, 8));
}

}  // namespace
}  // namespace test
}  // namespace tarn
