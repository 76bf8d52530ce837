#include "effects/EffectLibrary.h"

#include "exceptions/TarnMediaLibException.h"
#include "support/FakeFilterCatalogue.h"
#include "support/Thrown.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace tarn {
namespace test {
namespace {

using Names = std::vector<std::string>;

/// A library of a machine without filters, and one of a machine with one of everything.
class EffectLibraryTest : public ::testing::Test
{
protected:
    static FakeFilterCatalogue oneOfEverything()
    {
        FakeFilterCatalogue catalogue;
        fillWithOneOfEverything(catalogue);
        return catalogue;
    }

    /// "name type minimum..maximum=default" of each parameter; a point's default by its stream
    /// form.
    static Names parametersOf(EffectLibrary const& library, std::string const& effect)
    {
        Names result;
        for (EffectDef::ParamDef const& def : library.effectDef(effect)) {
            std::ostringstream text;
            text.precision(16);
            text << def.name << ' ' << def.type << ' ' << boost::any_cast<double>(def.minimum)
                 << ".." << boost::any_cast<double>(def.maximum) << '=';
            if (Point const* const point = boost::any_cast<Point>(&def.defaultValue))
                text << *point;
            else
                text << boost::any_cast<double>(def.defaultValue);
            result.push_back(text.str());
        }
        return result;
    }

    FakeFilterCatalogue m_nothing;
    EffectLibrary m_bare{m_nothing};
    FakeFilterCatalogue m_catalogue = oneOfEverything();
    EffectLibrary m_full{m_catalogue};
};

TEST_F(EffectLibraryTest, HasItsOwnEffectsWithoutAnyFilter)
{
    EXPECT_TRUE(m_bare.hasEffect("Reflection"));
    EXPECT_TRUE(m_bare.hasEffect("DropShadow"));
    EXPECT_TRUE(m_bare.hasEffect("Colorize"));
    EXPECT_TRUE(m_bare.hasEffect("ColorAdjustment"));
    EXPECT_TRUE(m_bare.hasEffect("Glow"));
    EXPECT_TRUE(m_bare.hasEffect("FrontMostWindowHighlight"));
    EXPECT_FALSE(m_bare.hasEffect("glow"));
    EXPECT_FALSE(m_bare.hasEffect(""));
}

TEST_F(EffectLibraryTest, ListsItsOwnEffectsInOrder)
{
    EXPECT_EQ((Names{"Reflection", "DropShadow", "Colorize", "ColorAdjustment", "Glow"}),
              m_bare.visualEffects());
    EXPECT_EQ(Names{"FrontMostWindowHighlight"}, m_bare.screenRecordingEffects());
    EXPECT_EQ(Names(), m_bare.visualTransitions());
    EXPECT_EQ(Names(), m_bare.sourceOverlays());
    EXPECT_EQ(Names(), m_bare.visualGenerators());
}

TEST_F(EffectLibraryTest, ReflectionIsDefined)
{
    EXPECT_EQ((Names{"distance double 0..50=0", "opacity double 0..1=0.5"}),
              parametersOf(m_bare, "Reflection"));
}

TEST_F(EffectLibraryTest, DropShadowIsDefined)
{
    EXPECT_EQ((Names{"angle double 0..6.283185307179586=5.497787143782138",
                     "offset double 0..50=10", "blur double 0..50=10", "opacity double 0..1=0.75",
                     "color-red double 0..1=0.2196", "color-green double 0..1=0.2196",
                     "color-blue double 0..1=0.2196", "color-alpha double 0..1=1"}),
              parametersOf(m_bare, "DropShadow"));
}

TEST_F(EffectLibraryTest, ColorizeIsDefined)
{
    EXPECT_EQ(
        (Names{"color-red double 0..1=1", "color-green double 0..1=0", "color-blue double 0..1=1",
               "color-alpha double 0..1=1", "amount double 0..1=0.5"}),
        parametersOf(m_bare, "Colorize"));
}

TEST_F(EffectLibraryTest, ColorAdjustmentIsDefined)
{
    EXPECT_EQ((Names{"brightness double -1..1=0", "contrast double 0.25..4=1"}),
              parametersOf(m_bare, "ColorAdjustment"));
}

TEST_F(EffectLibraryTest, GlowIsDefined)
{
    EXPECT_EQ((Names{"radius double 0..100=10", "intensity double 0..1=1"}),
              parametersOf(m_bare, "Glow"));
}

TEST_F(EffectLibraryTest, FrontMostWindowHighlightIsDefined)
{
    EXPECT_EQ((Names{"zoomUp double 1..5=1", "blur double 0..50=10", "feather double 0..20=0",
                     "opacity double 0..1=0.35"}),
              parametersOf(m_bare, "FrontMostWindowHighlight"));
}

TEST_F(EffectLibraryTest, TellsVisualFromScreenRecordingEffects)
{
    EXPECT_TRUE(m_bare.isVisualEffectName("Glow"));
    EXPECT_FALSE(m_bare.isScreenRecordingEffect("Glow"));
    EXPECT_FALSE(m_bare.isVisualEffectName("FrontMostWindowHighlight"));
    EXPECT_TRUE(m_bare.isScreenRecordingEffect("FrontMostWindowHighlight"));
}

TEST_F(EffectLibraryTest, AnUnknownEffectHasNoDefinition)
{
    EXPECT_STREQ("unrecognized name effect",
                 thrownBy<TarnMediaLibException>([&] { m_bare.effectDef("Sepia"); }).what());
    EXPECT_FALSE(m_bare.hasEffect("Sepia"));
}

TEST_F(EffectLibraryTest, EveryClassWordMakesItsParameters)
{
    EXPECT_EQ(
        (Names{"inputImage image 0..0=0", "inputAmount double -1..2=0.25",
               "inputCenter point 0..0=(1,2,3)", "inputTint-red double 0..1=1",
               "inputTint-green double 0..1=1", "inputTint-blue double 0..1=1",
               "inputTint-alpha double 0..1=1", "inputPlace matrix 0..0=0", "inputBlob data 0..0=0",
               "inputText unknown 0..0=0", "inputNothing unknown 0..0=0"}),
        parametersOf(m_full, "fake.every"));
    EXPECT_EQ("fake.every", m_full.effectDef("fake.every").name());
}

TEST_F(EffectLibraryTest, OddValuesStandAsTheyAreAndMissingOnesAreZero)
{
    EXPECT_EQ((Names{"beyond its range double 2..1=12", "endless (X) double -inf..inf=inf",
                     "missing double 0..0=0", "nsnumber unknown 0..0=0"}),
              parametersOf(m_full, "fake.odd"));
}

TEST_F(EffectLibraryTest, AFilterNeedsNoParameters)
{
    EXPECT_TRUE(m_full.hasEffect("fake.bare"));
    EXPECT_EQ(0, m_full.effectDef("fake.bare").numParameters());
}

TEST_F(EffectLibraryTest, AFilterTakesTheNameOfAnOwnEffect)
{
    EXPECT_EQ(Names{"strength double 1..9=3"}, parametersOf(m_full, "Reflection"));
    EXPECT_EQ((Names{"radius double 0..100=10", "intensity double 0..1=1"}),
              parametersOf(m_full, "Glow"));
}

TEST_F(EffectLibraryTest, VisualEffectsAreVideoFiltersThatAreNoTransitionsNorGenerators)
{
    EXPECT_EQ((Names{"Reflection", "DropShadow", "Colorize", "ColorAdjustment", "Glow",
                     "fake.every", "Reflection", "fake.odd", "fake.video"}),
              m_full.visualEffects());
    EXPECT_TRUE(m_full.isVisualEffectName("fake.odd"));
    EXPECT_FALSE(m_full.isVisualEffectName("fake.dissolve"));
    EXPECT_FALSE(m_full.isVisualEffectName("fake.noise"));
    EXPECT_FALSE(m_full.isVisualEffectName("fake.bare"));
}

TEST_F(EffectLibraryTest, ListsTheTransitions)
{
    EXPECT_EQ(Names{"fake.dissolve"}, m_full.visualTransitions());
    EXPECT_TRUE(m_full.isVisualTransitionName("fake.dissolve"));
    EXPECT_FALSE(m_full.isVisualTransitionName("fake.every"));
}

TEST_F(EffectLibraryTest, GeneratorsAndOverlaysAreInNoList)
{
    EXPECT_TRUE(m_full.hasEffect("fake.noise"));
    EXPECT_EQ(Names(), m_full.visualGenerators());
    EXPECT_EQ(Names(), m_full.sourceOverlays());
    EXPECT_FALSE(m_full.isVisualGeneratorName("fake.noise"));
    EXPECT_FALSE(m_full.isSourceOverlayName("fake.noise"));
}

TEST_F(EffectLibraryTest, OnlyStillImageFiltersAreDefined)
{
    EXPECT_FALSE(m_full.hasEffect("fake.video"));
    EXPECT_TRUE(m_full.isVisualEffectName("fake.video"));
}

TEST_F(EffectLibraryTest, LoadsThePlugInsOnceAndFirst)
{
    ASSERT_FALSE(m_catalogue.calls().empty());
    EXPECT_EQ("load", m_catalogue.calls().front());
    EXPECT_EQ(1, std::count(m_catalogue.calls().begin(), m_catalogue.calls().end(), "load"));
}

TEST_F(EffectLibraryTest, DescribesItsEffectsByName)
{
    // Six significant digits: 7 pi / 4 is 5.49779, 2 pi is 6.28319.
    EXPECT_EQ("EffectsLibrary\n"
              "\tEffect: ColorAdjustment\n"
              "\t\tParameter: brightness double default: 0 max: 1 min: -1\n"
              "\t\tParameter: contrast double default: 1 max: 4 min: 0.25\n"
              "\tEffect: Colorize\n"
              "\t\tParameter: color-red double default: 1 max: 1 min: 0\n"
              "\t\tParameter: color-green double default: 0 max: 1 min: 0\n"
              "\t\tParameter: color-blue double default: 1 max: 1 min: 0\n"
              "\t\tParameter: color-alpha double default: 1 max: 1 min: 0\n"
              "\t\tParameter: amount double default: 0.5 max: 1 min: 0\n"
              "\tEffect: DropShadow\n"
              "\t\tParameter: angle double default: 5.49779 max: 6.28319 min: 0\n"
              "\t\tParameter: offset double default: 10 max: 50 min: 0\n"
              "\t\tParameter: blur double default: 10 max: 50 min: 0\n"
              "\t\tParameter: opacity double default: 0.75 max: 1 min: 0\n"
              "\t\tParameter: color-red double default: 0.2196 max: 1 min: 0\n"
              "\t\tParameter: color-green double default: 0.2196 max: 1 min: 0\n"
              "\t\tParameter: color-blue double default: 0.2196 max: 1 min: 0\n"
              "\t\tParameter: color-alpha double default: 1 max: 1 min: 0\n"
              "\tEffect: FrontMostWindowHighlight\n"
              "\t\tParameter: zoomUp double default: 1 max: 5 min: 1\n"
              "\t\tParameter: blur double default: 10 max: 50 min: 0\n"
              "\t\tParameter: feather double default: 0 max: 20 min: 0\n"
              "\t\tParameter: opacity double default: 0.35 max: 1 min: 0\n"
              "\tEffect: Glow\n"
              "\t\tParameter: radius double default: 10 max: 100 min: 0\n"
              "\t\tParameter: intensity double default: 1 max: 1 min: 0\n"
              "\tEffect: Reflection\n"
              "\t\tParameter: distance double default: 0 max: 50 min: 0\n"
              "\t\tParameter: opacity double default: 0.5 max: 1 min: 0\n",
              m_bare.description());
}

TEST_F(EffectLibraryTest, DescribesOtherTypesWithoutTheirRange)
{
    EXPECT_NE(std::string::npos,
              m_full.description().find("\tEffect: fake.every\n"
                                        "\t\tParameter: inputImage image\n"
                                        "\t\tParameter: inputAmount double default: 0.25 max: 2 "
                                        "min: -1\n"
                                        "\t\tParameter: inputCenter point default: (1,2,3)\n"));
    EXPECT_NE(std::string::npos, m_full.description().find("\t\tParameter: inputBlob data\n"
                                                           "\t\tParameter: inputText unknown\n"));
}

TEST_F(EffectLibraryTest, TheProcessHasOneOfTheCatalogueSetBeforeTheFirstUse)
{
    EffectLibrary* const library = EffectLibrary::instance();
    EXPECT_TRUE(library->hasEffect("fake.every"));
    EffectLibrary::setCatalogue(boost::shared_ptr<FilterCatalogue>(new FakeFilterCatalogue));
    EXPECT_EQ(library, EffectLibrary::instance());
    EXPECT_TRUE(library->hasEffect("fake.every"));
}

/// Every test of this program meets the process's library as a machine with one of everything.
class LibraryOfOneOfEverything : public ::testing::Environment
{
public:
    void SetUp() override
    {
        EffectLibrary::setCatalogue(boost::shared_ptr<FilterCatalogue>(new FakeFilterCatalogue));
        boost::shared_ptr<FakeFilterCatalogue> const catalogue(new FakeFilterCatalogue);
        fillWithOneOfEverything(*catalogue);
        EffectLibrary::setCatalogue(catalogue);
    }
};

::testing::Environment* const k_library =
    ::testing::AddGlobalTestEnvironment(new LibraryOfOneOfEverything);

}  // namespace
}  // namespace test
}  // namespace tarn
