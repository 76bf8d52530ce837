#include "effects/Frei0rCatalogue.h"

#include <gtest/gtest.h>

#include <malloc.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

namespace tarn {
namespace test {
namespace {

using Category = FilterCatalogue::Category;
using Names = std::vector<std::string>;

/// Which filters there are depends on the machine, so this holds with any or none of them.
class Frei0rCatalogueTest : public ::testing::Test
{
protected:
    Frei0rCatalogueTest() { m_catalogue.loadAllPlugIns(); }

    static Names in(Frei0rCatalogue const& catalogue, Category category)
    {
        return catalogue.filterNamesInCategory(category);
    }
    static Names sortedOnce(Names const& names)
    {
        std::set<std::string> const sorted(names.begin(), names.end());
        return Names(sorted.begin(), sorted.end());
    }
    static bool includes(Names const& all, Names const& some)
    {
        return std::includes(all.begin(), all.end(), some.begin(), some.end());
    }
    static Names common(Names const& a, Names const& b)
    {
        Names result;
        std::set_intersection(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(result));
        return result;
    }
    /// Everything that a catalogue tells, one input a line.
    static std::string all(Frei0rCatalogue const& catalogue)
    {
        std::ostringstream text;
        text.precision(17);
        for (std::string const& filter : in(catalogue, Category::StillImage)) {
            for (std::string const& key : catalogue.inputKeys(filter)) {
                text << filter << '|' << key << '|' << catalogue.className(filter, key) << '|'
                     << catalogue.defaultNumber(filter, key) << '|'
                     << catalogue.defaultVector(filter, key) << '|'
                     << catalogue.sliderMinimum(filter, key) << '|'
                     << catalogue.sliderMaximum(filter, key) << '\n';
            }
        }
        return text.str();
    }
    static Names kinds(Frei0rCatalogue const& catalogue)
    {
        Names result;
        for (std::string const& filter : in(catalogue, Category::StillImage)) {
            for (std::string const& key : catalogue.inputKeys(filter))
                result.push_back(catalogue.className(filter, key));
        }
        return sortedOnce(result);
    }
    /// What a test says of an input, for all inputs of a class; the first that does not hold.
    template <class Predicate>
    std::string firstWithout(std::string const& className, Predicate const& holds) const
    {
        for (std::string const& filter : in(m_catalogue, Category::StillImage)) {
            for (std::string const& key : m_catalogue.inputKeys(filter)) {
                if (m_catalogue.className(filter, key) == className && !holds(filter, key))
                    return filter + " " + key;
            }
        }
        return std::string();
    }
    static bool isFraction(double value) { return value >= 0 && value <= 1; }

    Frei0rCatalogue m_catalogue;
};

TEST_F(Frei0rCatalogueTest, EveryListIsSortedAndNamesNothingTwice)
{
    Names const stills = in(m_catalogue, Category::StillImage);
    Names const videos = in(m_catalogue, Category::Video);
    EXPECT_EQ(stills, sortedOnce(stills));
    EXPECT_EQ(videos, sortedOnce(videos));
}

TEST_F(Frei0rCatalogueTest, EveryNameSaysWhereItComesFrom)
{
    Names const stills = in(m_catalogue, Category::StillImage);
    EXPECT_TRUE(std::all_of(stills.begin(), stills.end(), [](std::string const& name) {
        return name.compare(0, 7, "frei0r.") == 0 && name.size() > 7;
    }));
}

TEST_F(Frei0rCatalogueTest, EveryFilterIsAStillImageFilter)
{
    Names const stills = in(m_catalogue, Category::StillImage);
    EXPECT_TRUE(includes(stills, in(m_catalogue, Category::Video)));
    EXPECT_TRUE(includes(stills, in(m_catalogue, Category::Transition)));
    EXPECT_TRUE(includes(stills, in(m_catalogue, Category::Generator)));
}

TEST_F(Frei0rCatalogueTest, TransitionsAndGeneratorsAreVideoFiltersApart)
{
    Names const transitions = in(m_catalogue, Category::Transition);
    Names const generators = in(m_catalogue, Category::Generator);
    EXPECT_TRUE(includes(in(m_catalogue, Category::Video), transitions));
    EXPECT_TRUE(includes(in(m_catalogue, Category::Video), generators));
    EXPECT_EQ(Names(), common(transitions, generators));
}

TEST_F(Frei0rCatalogueTest, ATransitionTakesTwoImagesAndTheyComeFirst)
{
    Names const transitions = in(m_catalogue, Category::Transition);
    EXPECT_TRUE(std::all_of(transitions.begin(), transitions.end(), [&](std::string const& filter) {
        Names const keys = m_catalogue.inputKeys(filter);
        return keys.size() >= 2 && keys[0] == "inputImage" && keys[1] == "inputTargetImage" &&
               m_catalogue.className(filter, keys[0]) == "CIImage" &&
               m_catalogue.className(filter, keys[1]) == "CIImage";
    }));
}

TEST_F(Frei0rCatalogueTest, AGeneratorTakesNoImage)
{
    Names const generators = in(m_catalogue, Category::Generator);
    EXPECT_TRUE(std::none_of(generators.begin(), generators.end(), [&](std::string const& filter) {
        Names const keys = m_catalogue.inputKeys(filter);
        return std::any_of(keys.begin(), keys.end(), [&](std::string const& key) {
            return m_catalogue.className(filter, key) == "CIImage";
        });
    }));
}

TEST_F(Frei0rCatalogueTest, EveryInputIsOfAKnownKind)
{
    EXPECT_TRUE(
        includes({"CIColor", "CIImage", "CIVector", "NSNumber", "NSString"}, kinds(m_catalogue)));
}

TEST_F(Frei0rCatalogueTest, EveryNumberIsAFraction)
{
    EXPECT_EQ("", firstWithout("NSNumber", [&](std::string const& filter, std::string const& key) {
                  return isFraction(m_catalogue.defaultNumber(filter, key)) &&
                         m_catalogue.sliderMinimum(filter, key) == 0 &&
                         m_catalogue.sliderMaximum(filter, key) == 1;
              }));
}

TEST_F(Frei0rCatalogueTest, EveryPositionIsOnTheFrame)
{
    EXPECT_EQ("", firstWithout("CIVector", [&](std::string const& filter, std::string const& key) {
                  Point const position = m_catalogue.defaultVector(filter, key);
                  return std::isfinite(position.x) && std::isfinite(position.y) && position.z == 0;
              }));
}

TEST_F(Frei0rCatalogueTest, NoKeyWouldBreakTheXml)
{
    EXPECT_EQ(std::string::npos, all(m_catalogue).find_first_of("&<>\""));
}

TEST_F(Frei0rCatalogueTest, TwoReadsGiveTheSame)
{
    Frei0rCatalogue second;
    second.loadAllPlugIns();
    EXPECT_EQ(all(m_catalogue), all(second));
    EXPECT_EQ(in(m_catalogue, Category::Transition), in(second, Category::Transition));
    EXPECT_EQ(in(m_catalogue, Category::Generator), in(second, Category::Generator));
    EXPECT_EQ(in(m_catalogue, Category::Video), in(second, Category::Video));
}

TEST_F(Frei0rCatalogueTest, NoDefaultComesFromMemoryThatWasNeverWritten)
{
    // Plug-ins that read what malloc gave them see other bytes in each of the three reads.
    Frei0rCatalogue second;
    Frei0rCatalogue third;
    mallopt(M_PERTURB, 0x5a);
    second.loadAllPlugIns();
    mallopt(M_PERTURB, 0xff);
    third.loadAllPlugIns();
    mallopt(M_PERTURB, 0);
    EXPECT_EQ(all(m_catalogue), all(second));
    EXPECT_EQ(all(m_catalogue), all(third));
}

TEST_F(Frei0rCatalogueTest, PrintsNothing)
{
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    Frei0rCatalogue catalogue;
    catalogue.loadAllPlugIns();
    all(catalogue);
    EXPECT_EQ("", ::testing::internal::GetCapturedStdout());
    EXPECT_EQ("", ::testing::internal::GetCapturedStderr());
}

TEST_F(Frei0rCatalogueTest, TellsNothingOfWhatItDoesNotHave)
{
    EXPECT_EQ(Names(), m_catalogue.inputKeys("nobody"));
    EXPECT_EQ("", m_catalogue.className("nobody", "nothing"));
    EXPECT_EQ(0, m_catalogue.defaultNumber("nobody", "nothing"));
    EXPECT_EQ(Point(), m_catalogue.defaultVector("nobody", "nothing"));
    EXPECT_EQ(0, m_catalogue.sliderMaximum("nobody", "nothing"));
    EXPECT_EQ(0, m_catalogue.sliderMinimum("nobody", "nothing"));
}

TEST_F(Frei0rCatalogueTest, HasNothingBeforeItIsLoaded)
{
    EXPECT_EQ(Names(), in(Frei0rCatalogue(), Category::StillImage));
}

TEST_F(Frei0rCatalogueTest, AMissingFolderAndForeignFilesAreNothing)
{
    std::string const folder = ::testing::TempDir();
    std::ofstream(folder + "/no_plug_in.so") << "no plug-in\n";
    Frei0rCatalogue catalogue({folder + "/there/is/none", folder});
    ::testing::internal::CaptureStderr();
    catalogue.loadAllPlugIns();
    EXPECT_EQ("", ::testing::internal::GetCapturedStderr());
    EXPECT_EQ(Names(), in(catalogue, Category::StillImage));
    std::remove((folder + "/no_plug_in.so").c_str());
}

TEST_F(Frei0rCatalogueTest, WhatReadsBeyondItsMemoryIsNotAskedForItsValues)
{
    // Zero also where the plug-in is not there.
    EXPECT_EQ(0, m_catalogue.defaultNumber("frei0r.lightgraffiti", "statsBrightness"));
    EXPECT_EQ(0, m_catalogue.defaultNumber("frei0r.aech0r", "Direction"));
    EXPECT_EQ(0, m_catalogue.defaultNumber("frei0r.bluescreen0r", "Invert"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
