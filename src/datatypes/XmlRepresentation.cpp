#include "datatypes/XmlRepresentation.h"

#include "datatypes/EncodingConverter.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace tarn {

namespace {

/// The entity of a unit, or an empty pointer for a unit that stands for itself.
char const* entityOf(unsigned int unit)
{
    switch (unit) {
    case 0x26:
        return "&amp;";
    case 0x22:
        return "&quot;";
    case 0x27:
        return "&apos;";
    case 0x3C:
        return "&lt;";
    case 0x3E:
        return "&gt;";
    case 0x0A:
        return "&#xa;";
    case 0x0D:
        // Kept so: an upper-case digit here and a lower-case one above, as readers know them.
        return "&#xD;";
    default:
        return nullptr;
    }
}

/// Whether a text is the same in XML: plain ASCII throughout, without any of the above.
bool standsForItself(std::string const& text)
{
    return std::all_of(text.begin(), text.end(), [](char c) {
        unsigned char const byte = static_cast<unsigned char>(c);
        return byte > 0 && byte < 0x80 && !entityOf(byte);
    });
}

}  // namespace

std::string xml_representation(std::string const& text)
{
    if (standsForItself(text))
        return text;
    EncodingConverter const& converter = *EncodingConverter::instance();
    std::vector<unsigned int> escaped;
    for (unsigned int const unit : converter.unicodeNarrowToWide(text)) {
        if (char const* const entity = entityOf(unit)) {
            escaped.insert(escaped.end(), entity, entity + std::strlen(entity));
        } else {
            escaped.push_back(unit);
        }
    }
    return converter.unicodeWideToNarrow(escaped);
}

}  // namespace tarn
