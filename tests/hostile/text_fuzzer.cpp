// libFuzzer's door to the XML text and the coding below it: the input is a text, and once more the
// bytes of 32-bit units.

#include "datatypes/EncodingConverter.h"
#include "datatypes/XmlRepresentation.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

void require(bool condition)
{
    if (!condition) {
        std::abort();
    }
}

/// A text in XML stands in one line and within its quotes, however long its coding makes a mark.
void checkXml(std::string const& text)
{
    std::string const xml = tarn::xml_representation(text);
    require(xml.find_first_of("<>\"'\n\r") == std::string::npos);
}

/// What the coding writes for units it has read is nothing new to it: a second turn ends where the
/// first did, or at fewer units, and never at more.
void checkText(std::string const& text)
{
    tarn::EncodingConverter const& converter = *tarn::EncodingConverter::instance();
    std::vector<unsigned int> const units = converter.unicodeNarrowToWide(text);
    require(units.size() <= text.size());
    std::string const narrow = converter.unicodeWideToNarrow(units);
    require(narrow.size() <= 6 * units.size());
    require(converter.unicodeNarrowToWide(narrow).size() <= units.size());
}

void checkUnits(std::string const& bytes)
{
    std::vector<unsigned int> units(bytes.size() / sizeof(unsigned int));
    std::memcpy(units.data(), bytes.data(), units.size() * sizeof(unsigned int));
    tarn::EncodingConverter const& converter = *tarn::EncodingConverter::instance();
    std::string const narrow = converter.unicodeWideToNarrow(units);
    require(narrow.size() >= units.size() && narrow.size() <= 6 * units.size());
    converter.unicodeNarrowToWide(narrow);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::string const text(reinterpret_cast<char const*>(data), size);
    checkXml(text);
    checkText(text);
    if (size >= sizeof(unsigned int)) {
        checkUnits(text);
    }
    return 0;
}
