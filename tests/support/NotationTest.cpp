#include "support/Notation.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tarn {
namespace test {

TEST(NotationTest, OneCellIsTenEditUnits)
{
    Strip const strip = Strip::parse("V1: ..aaa");
    ASSERT_EQ(1u, strip.rows.size());
    ASSERT_EQ(1u, strip.rows[0].second.size());
    EXPECT_EQ('a', strip.rows[0].second[0].letter);
    EXPECT_EQ(20, strip.rows[0].second[0].start);
    EXPECT_EQ(30, strip.rows[0].second[0].duration);
}

TEST(NotationTest, RowsKeepTheOrderTheyAreWrittenIn)
{
    Strip const strip = Strip::parse("A2: b / V1: a");
    ASSERT_EQ(2u, strip.rows.size());
    EXPECT_EQ("A2", strip.rows[0].first);
    EXPECT_EQ("V1", strip.rows[1].first);
}

TEST(NotationTest, AnotherLetterOrAFreeCellEndsAMedia)
{
    Strip const strip = Strip::parse("V1: aab.b");
    ASSERT_EQ(3u, strip.rows[0].second.size());
    EXPECT_EQ(20, strip.rows[0].second[1].start);
    EXPECT_EQ(10, strip.rows[0].second[1].duration);
    EXPECT_EQ(40, strip.rows[0].second[2].start);
}

TEST(NotationTest, ATextComesBackAsItWasWritten)
{
    EXPECT_EQ("A1: ....cc / V1: aaa...bb", Strip::parse("A1: ....cc / V1: aaa...bb").text());
}

TEST(NotationTest, FreeCellsAtTheEndSayNothing)
{
    EXPECT_EQ("V1: aa", Strip::parse("V1: aa...").text());
    EXPECT_EQ("V1:", Strip::parse("V1: ...").text());
}

TEST(NotationTest, ARowOffTheGridIsWrittenAsRanges)
{
    Strip strip;
    strip.rows.push_back({"V1", {{'a', 5, 35}, {'b', 65, 20}}});
    EXPECT_EQ("V1: a[5,40) b[65,85)", strip.text());
}

TEST(NotationTest, ANegativeStartIsWrittenAsARange)
{
    Strip strip;
    strip.rows.push_back({"A1", {{'a', -10, 20}}});
    EXPECT_EQ("A1: a[-10,10)", strip.text());
}

TEST(NotationTest, AnEmptyTextHasNoRows)
{
    EXPECT_TRUE(Strip::parse("").rows.empty());
}

TEST(NotationTest, WhatIsNoRowIsRefused)
{
    EXPECT_THROW(Strip::parse("X1: aaa"), std::invalid_argument);
    EXPECT_THROW(Strip::parse("V: aaa"), std::invalid_argument);
    EXPECT_THROW(Strip::parse("V0: aaa"), std::invalid_argument);
    EXPECT_THROW(Strip::parse("aaa"), std::invalid_argument);
}

TEST(NotationTest, WhatIsNoCellIsRefused)
{
    EXPECT_THROW(Strip::parse("V1: a1a"), std::invalid_argument);
    EXPECT_THROW(Strip::parse("V1: a a"), std::invalid_argument);
}

}  // namespace test
}  // namespace tarn
