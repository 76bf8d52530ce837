#include "tool/ToolTest.h"

namespace tarn {
namespace test {
namespace {

class EffectsTest : public testing::Test
{
};

TEST_F(EffectsTest, OneEffectIsShownWithItsParameters)
{
    EXPECT_TRUE(succeeds(tarnTool("effects Reflection"),
                         "EFFECT      USE      PARAMETER  TYPE    DEFAULT  RANGE\n"
                         "Reflection  picture  distance   double  0        0 to 50\n"
                         "                     opacity    double  0.5      0 to 1\n"));
}

TEST_F(EffectsTest, TheCatalogueHoldsTheLibrarysOwnSix)
{
    std::string const names = "\n" + tarnTool("effects --names").out;
    for (char const* name : {"ColorAdjustment", "Colorize", "DropShadow",
                             "FrontMostWindowHighlight", "Glow", "Reflection"})
        EXPECT_NE(names.find("\n" + std::string(name) + "\n"), std::string::npos) << name;
}

TEST_F(EffectsTest, JsonTellsTheSame)
{
    EXPECT_TRUE(succeeds(tarnTool("effects --json Glow"),
                         "[\n  {\n    \"name\": \"Glow\",\n    \"use\": \"picture\",\n"
                         "    \"parameters\": [\n      {\n        \"name\": \"radius\",\n"
                         "        \"type\": \"double\",\n        \"default\": 10,\n"
                         "        \"minimum\": 0,\n        \"maximum\": 100\n      },\n      {\n"
                         "        \"name\": \"intensity\",\n        \"type\": \"double\",\n"
                         "        \"default\": 1,\n        \"minimum\": 0,\n"
                         "        \"maximum\": 1\n      }\n    ]\n  }\n]\n"));
}

TEST_F(EffectsTest, AnUnknownEffectIsTold)
{
    EXPECT_TRUE(stops(tarnTool("effects Glwo"),
                      "tarn: this machine has no effect 'Glwo'; did you mean 'Glow'?"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
