#include "support/ModelTest.h"

#include "exceptions/CollisionException.h"
#include "exceptions/TarnMediaLibException.h"
#include "timeline/Media.h"

namespace tarn {
namespace test {

using FixtureTest = ModelTest;

TEST_F(FixtureTest, WhatIsGivenIsWhatTheStripShows)
{
    given("A1: aa..b / V1: aa..ss / V2: .cc");
    EXPECT_EQ("A1: aa..b / V1: aa..ss / V2: .cc", strip());
}

TEST_F(FixtureTest, OneLetterOnTwoRowsIsOneLinkGroup)
{
    given("A1: aa / V1: aa..b");
    EXPECT_TRUE(media("V1.a")->isLinkedWith(media("A1.a")));
    EXPECT_FALSE(media("V1.b")->isLinkedWith(media("A1.a")));
}

TEST_F(FixtureTest, GivenMediasStartFiveHundredIntoTheirSource)
{
    given("V1: .aaa");
    EXPECT_EQ(Range<long long>(10, 30), media("V1.a")->trackRange());
    EXPECT_EQ(Range<double>(500, 30), media("V1.a")->mediaRange());
}

TEST_F(FixtureTest, AMoveEditsAndComesBack)
{
    given("A1: ....cc / V1: aaa...bb");
    EXPECT_TRUE(edits(move("V1.a", +3), "A1: ....cc / V1: ...aaabb"));
}

TEST_F(FixtureTest, AWrongExpectationFails)
{
    given("V1: aaa...bb");
    EXPECT_FALSE(edits(move("V1.a", +3), "V1: ..aaa.bb"));
}

TEST_F(FixtureTest, ARefusalIsToldByTypeAndText)
{
    given("V1: aaa...bb");
    EXPECT_TRUE(refuses<CollisionException>(move("V1.a", +4)));
    EXPECT_FALSE(refuses<TarnMediaLibException>(move("V1.a", +4), "another text"));
}

TEST_F(FixtureTest, WhatIsNotRefusedIsAFailure)
{
    given("V1: aaa...bb");
    EXPECT_FALSE(refuses<CollisionException>(move("V1.a", +1)));
}

TEST_F(FixtureTest, ANewMediaTakesTheNextLetterAndLinkedOnesShareIt)
{
    given("A1: aaaa / V1: aaaa");
    EXPECT_TRUE(edits(split("V1", 1), "A1: abbb / V1: abbb"));
}

}  // namespace test
}  // namespace tarn
