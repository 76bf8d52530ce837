#pragma once

#include "datatypes/Point.h"
#include "effects/FilterCatalogue.h"

#include <limits>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tarn {
namespace test {

/// A catalogue of whatever filters a test puts into it; it tells what it was asked.
class FakeFilterCatalogue : public FilterCatalogue
{
public:
    struct Input
    {
        std::string key;
        std::string className;
        double defaultNumber = 0;
        double maximum = 0;
        double minimum = 0;
        Point defaultVector = Point();
    };

    /// In every category named; each category lists its filters in the order of adding.
    void add(std::string const& filter, std::vector<Category> const& categories,
             std::vector<Input> const& inputs)
    {
        for (Category const category : categories)
            m_names[category].push_back(filter);
        m_inputs[filter] = inputs;
    }

    /// "load" for loading and "names" for each category asked for, in order.
    std::vector<std::string> const& calls() const { return m_calls; }

    void loadAllPlugIns() override { m_calls.push_back("load"); }
    std::vector<std::string> filterNamesInCategory(Category category) const override
    {
        m_calls.push_back("names");
        auto const found = m_names.find(category);
        return found == m_names.end() ? std::vector<std::string>() : found->second;
    }
    std::vector<std::string> inputKeys(std::string const& filter) const override
    {
        std::vector<std::string> keys;
        for (Input const& input : inputs(filter))
            keys.push_back(input.key);
        return keys;
    }
    std::string className(std::string const& filter, std::string const& key) const override
    {
        return input(filter, key).className;
    }
    double defaultNumber(std::string const& filter, std::string const& key) const override
    {
        return input(filter, key).defaultNumber;
    }
    Point defaultVector(std::string const& filter, std::string const& key) const override
    {
        return input(filter, key).defaultVector;
    }
    double sliderMaximum(std::string const& filter, std::string const& key) const override
    {
        return input(filter, key).maximum;
    }
    double sliderMinimum(std::string const& filter, std::string const& key) const override
    {
        return input(filter, key).minimum;
    }

private:
    std::vector<Input> inputs(std::string const& filter) const
    {
        auto const found = m_inputs.find(filter);
        return found == m_inputs.end() ? std::vector<Input>() : found->second;
    }
    Input input(std::string const& filter, std::string const& key) const
    {
        for (Input const& candidate : inputs(filter)) {
            if (candidate.key == key)
                return candidate;
        }
        return Input();
    }

    std::map<Category, std::vector<std::string>> m_names;
    std::map<std::string, std::vector<Input>> m_inputs;
    mutable std::vector<std::string> m_calls;
};

/// One of everything: every class word, filters of every category, odd and missing values.
inline void fillWithOneOfEverything(FakeFilterCatalogue& catalogue)
{
    using Category = FilterCatalogue::Category;
    double const k_infinity = std::numeric_limits<double>::infinity();

    catalogue.add("fake.every", {Category::StillImage, Category::Video},
                  {{"inputImage", "CIImage"},
                   {"inputAmount", "NSNumber", 0.25, 2, -1},
                   {"inputCenter", "CIVector", 7, 8, 9, Point(1, 2, 3)},
                   {"inputTint", "CIColor", 0.5, 5, -5},
                   {"inputPlace", "NSAffineTransform", 4, 5, 6},
                   {"inputBlob", "NSData", 4, 5, 6},
                   {"inputText", "NSString", 4, 5, 6},
                   {"inputNothing", "", 4, 5, 6}});
    // Called like one of the library's own.
    catalogue.add("Reflection", {Category::StillImage, Category::Video},
                  {{"strength", "NSNumber", 3, 9, 1}});
    catalogue.add("fake.dissolve", {Category::StillImage, Category::Transition, Category::Video},
                  {{"inputImage", "CIImage"},
                   {"inputTargetImage", "CIImage"},
                   {"inputTime", "NSNumber", 0, 1, 0}});
    catalogue.add("fake.noise", {Category::StillImage, Category::Generator, Category::Video},
                  {{"seed", "NSNumber", 0, 1, 0}});
    catalogue.add("fake.odd", {Category::StillImage, Category::Video},
                  {{"beyond its range", "NSNumber", 12, 1, 2},
                   {"endless (X)", "NSNumber", k_infinity, k_infinity, -k_infinity},
                   {"missing", "NSNumber"},
                   {"nsnumber", "nsnumber", 1, 2, 3}});
    catalogue.add("fake.bare", {Category::StillImage}, {});
    catalogue.add("fake.video", {Category::Video}, {{"amount", "NSNumber", 0, 1, 0}});
    // For its XML: out of order, and with an entry that makes no parameter.
    catalogue.add(
        "fake & co", {Category::StillImage},
        {{"zeta", "NSNumber", 0.5, 1, 0}, {"blob", "NSData"}, {"alpha", "NSNumber", 2, 3, 1}});
}

}  // namespace test
}  // namespace tarn
