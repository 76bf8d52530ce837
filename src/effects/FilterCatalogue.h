#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"

#include <string>
#include <vector>

namespace tarn {

/// The filters that a machine offers, as the effect library asks for them.
///
/// Nothing here throws: an unknown filter or key, and a value that the catalogue does not have,
/// read as an empty text, an empty list or 0.
class TARN_API FilterCatalogue
{
public:
    /// A filter may be in several. Only what is a StillImage filter gets a definition.
    enum class Category
    {
        StillImage,
        Transition,
        Video,
        Generator
    };

    virtual ~FilterCatalogue() = default;

    /// Called once, before anything else is asked.
    virtual void loadAllPlugIns() = 0;
    /// In the catalogue's own order.
    virtual std::vector<std::string> filterNamesInCategory(Category category) const = 0;
    /// In the filter's own order.
    virtual std::vector<std::string> inputKeys(std::string const& filter) const = 0;

    /// The kind of value that a key takes: "NSNumber", "CIImage", "CIVector", "CIColor",
    /// "NSAffineTransform", "NSData". Any other text, or none, is a kind that has no parameter.
    virtual std::string className(std::string const& filter, std::string const& key) const = 0;
    /// Of an "NSNumber".
    virtual double defaultNumber(std::string const& filter, std::string const& key) const = 0;
    /// Of a "CIVector".
    virtual Point defaultVector(std::string const& filter, std::string const& key) const = 0;
    /// The largest number that a user should be offered.
    virtual double sliderMaximum(std::string const& filter, std::string const& key) const = 0;
    /// The smallest number that a user should be offered.
    virtual double sliderMinimum(std::string const& filter, std::string const& key) const = 0;

protected:
    FilterCatalogue() = default;
    FilterCatalogue(FilterCatalogue const&) = default;
    FilterCatalogue& operator=(FilterCatalogue const&) = default;
};

}  // namespace tarn
