#pragma once

#include "datatypes/Export.h"

#include <string>
#include <vector>

namespace tarn {

/// Turns narrow text into 32-bit units and back.
class TARN_API EncodingConverter
{
public:
    /// One for the process, never freed: a MacEncodingConverter.
    static EncodingConverter* instance();

    virtual ~EncodingConverter() = default;

    /// The units of a narrow text.
    virtual std::vector<unsigned int> unicodeNarrowToWide(std::string const& text) const = 0;
    /// The narrow text of these units.
    virtual std::string unicodeWideToNarrow(std::vector<unsigned int> const& units) const = 0;
};

}  // namespace tarn
