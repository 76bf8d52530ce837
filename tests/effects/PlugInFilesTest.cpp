#include "effects/Frei0rCatalogue.h"

#include "datatypes/Point.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarn {
namespace test {
namespace {

using Category = FilterCatalogue::Category;
using Names = std::vector<std::string>;

/// Reads plug-ins of these tests: a whole one, one of an older interface, one that makes no
/// instance, and for each function that is needed one without it.
class PlugInFilesTest : public ::testing::Test
{
protected:
    PlugInFilesTest() { m_catalogue.loadAllPlugIns(); }

    std::string const k_whole = "frei0r.whole";
    std::string const k_barren = "frei0r.is_barren";
    Frei0rCatalogue m_catalogue{Names{TARN_TEST_PLUGINS}};
};

TEST_F(PlugInFilesTest, OnlyWhatIsWholeAndOfThisInterfaceIsThere)
{
    EXPECT_EQ((Names{k_barren, k_whole}), m_catalogue.filterNamesInCategory(Category::StillImage));
}

TEST_F(PlugInFilesTest, OneThatMixesThreeImagesIsInNoListForVideo)
{
    EXPECT_EQ(Names{}, m_catalogue.filterNamesInCategory(Category::Video));
    EXPECT_EQ(Names{}, m_catalogue.filterNamesInCategory(Category::Transition));
    EXPECT_EQ(Names{}, m_catalogue.filterNamesInCategory(Category::Generator));
}

TEST_F(PlugInFilesTest, ACategoryThatIsNoneHasNoFilters)
{
    EXPECT_EQ(Names{}, m_catalogue.filterNamesInCategory(static_cast<Category>(99)));
}

TEST_F(PlugInFilesTest, ImagesComeFirstAndAnInputMayHaveNoName)
{
    EXPECT_EQ((Names{"inputImage", "inputTargetImage", "inputThirdImage", "level", "", "place",
                     "strange", "text"}),
              m_catalogue.inputKeys(k_whole));
}

TEST_F(PlugInFilesTest, AParameterOfAnUnknownKindHasNoClass)
{
    EXPECT_EQ("NSNumber", m_catalogue.className(k_whole, "level"));
    EXPECT_EQ("NSNumber", m_catalogue.className(k_whole, ""));
    EXPECT_EQ("CIVector", m_catalogue.className(k_whole, "place"));
    EXPECT_EQ("NSString", m_catalogue.className(k_whole, "text"));
    EXPECT_EQ("", m_catalogue.className(k_whole, "strange"));
}

TEST_F(PlugInFilesTest, DefaultsAreTheInstancesOnTheScaleOfFractions)
{
    EXPECT_EQ(0.25, m_catalogue.defaultNumber(k_whole, "level"));
    EXPECT_EQ(1.0, m_catalogue.defaultNumber(k_whole, ""));
    EXPECT_EQ(Point(0.5, 1, 0), m_catalogue.defaultVector(k_whole, "place"));
    EXPECT_EQ(Point(0, 0, 0), m_catalogue.defaultVector(k_whole, "strange"));
}

TEST_F(PlugInFilesTest, WithoutAnInstanceEveryDefaultIsZero)
{
    EXPECT_EQ(0.0, m_catalogue.defaultNumber(k_barren, "level"));
    EXPECT_EQ(Point(0, 0, 0), m_catalogue.defaultVector(k_barren, "place"));
}

TEST_F(PlugInFilesTest, AnInputThatAFilterDoesNotHaveIsTheSameAsNoFilter)
{
    EXPECT_EQ("", m_catalogue.className(k_whole, "nothing"));
    EXPECT_EQ(0.0, m_catalogue.defaultNumber(k_whole, "nothing"));
}

TEST_F(PlugInFilesTest, OfTwoFilesOfOneNameTheFirstCounts)
{
    Frei0rCatalogue twice(Names{TARN_TEST_PLUGINS, TARN_TEST_PLUGINS});
    twice.loadAllPlugIns();
    EXPECT_EQ((Names{k_barren, k_whole}), twice.filterNamesInCategory(Category::StillImage));
    EXPECT_EQ(8u, twice.inputKeys(k_whole).size());
}

}  // namespace
}  // namespace test
}  // namespace tarn
