#include "datatypes/XmlRepresentation.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

TEST(XmlRepresentationTest, AnEmptyTextStaysEmpty)
{
    EXPECT_EQ("", xml_representation(""));
}

TEST(XmlRepresentationTest, OrdinaryTextStaysAsItIs)
{
    EXPECT_EQ("/home/films/First take.mov", xml_representation("/home/films/First take.mov"));
}

TEST(XmlRepresentationTest, AnAmpersandBecomesAnEntity)
{
    EXPECT_EQ("a&amp;b", xml_representation("a&b"));
}

TEST(XmlRepresentationTest, AnEntityAlreadyThereIsNotRecognised)
{
    EXPECT_EQ("&amp;lt;", xml_representation("&lt;"));
}

TEST(XmlRepresentationTest, TheFiveSpecialCharactersBecomeEntities)
{
    EXPECT_EQ("&lt;a b=&quot;c&apos;d&quot;&gt;&amp;", xml_representation("<a b=\"c'd\">&"));
}

TEST(XmlRepresentationTest, ALineFeedBecomesAnEntityWithASmallDigit)
{
    EXPECT_EQ("a&#xa;b", xml_representation("a\nb"));
}

TEST(XmlRepresentationTest, ACarriageReturnBecomesAnEntityWithACapitalDigit)
{
    EXPECT_EQ("a&#xD;b", xml_representation("a\rb"));
}

TEST(XmlRepresentationTest, ATabStaysAsItIs)
{
    EXPECT_EQ("a\tb", xml_representation("a\tb"));
}

TEST(XmlRepresentationTest, TwoByteTextStaysAsItIs)
{
    EXPECT_EQ("caf\xC3\xA9", xml_representation("caf\xC3\xA9"));
}

TEST(XmlRepresentationTest, ThreeByteTextIsWrittenInTheLibrarysOwnCoding)
{
    // E2 82 AC is read as (2 << 13) + (2 << 7) + 0x2C = 0x412C, above 0xFFF: four bytes.
    EXPECT_EQ("\xF0\x82\x82\xAC", xml_representation("\xE2\x82\xAC"));
}

TEST(XmlRepresentationTest, WhatFollowsAZeroByteIsLost)
{
    EXPECT_EQ("a&lt;", xml_representation(std::string("a<\0b", 4)));
    EXPECT_EQ("a", xml_representation(std::string("a\0b", 3)));
}

TEST(XmlRepresentationTest, ConstAndMutableTextsAreTreatedAlike)
{
    std::string text = "a&b";
    std::string const constText = text;
    EXPECT_EQ("a&amp;b", xml_representation<std::string>(text));
    EXPECT_EQ("a&amp;b", xml_representation<std::string const>(constText));
    EXPECT_EQ("a&b", text);
}

}  // namespace test
}  // namespace tarn
