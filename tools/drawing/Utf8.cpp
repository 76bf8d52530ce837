#include "drawing/Utf8.h"

namespace tarn::drawing {

namespace {

unsigned char byteAt(std::string const& text, std::size_t index)
{
    return index < text.size() ? static_cast<unsigned char>(text[index]) : 0;
}

}  // namespace

char const k_replacement[] = "\xEF\xBF\xBD";

std::size_t characterLength(std::string const& text, std::size_t index)
{
    unsigned const first = byteAt(text, index);
    unsigned const second = byteAt(text, index + 1);
    if (first < 0x80)
        return 1;
    std::size_t const length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    // Too long a form, half of a pair, or beyond the last character.
    if (first < 0xC2 || first > 0xF4 || (first == 0xE0 && second < 0xA0) ||
        (first == 0xED && second > 0x9F) || (first == 0xF0 && second < 0x90) ||
        (first == 0xF4 && second > 0x8F))
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((byteAt(text, index + i) & 0xC0u) != 0x80u)
            return 0;
    return length;
}

}  // namespace tarn::drawing
