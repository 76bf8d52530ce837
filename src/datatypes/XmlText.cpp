#include "datatypes/XmlText.h"

#include <charconv>
#include <cmath>
#include <string_view>

namespace tarn {

namespace {

// Longer than any number in its default form.
std::size_t const k_numberLength = 32;

/// Whether six digits show all of it and its form is that of a whole number.
bool looksWhole(double value)
{
    return std::fabs(value) < 1e6 && value == std::trunc(value) &&
           !(value == 0 && std::signbit(value));
}

}  // namespace

void XmlPieces::writeByStream(char const* text, std::size_t length)
{
    m_out << std::string_view(text, length);
}

template <class T>
XmlPieces& XmlPieces::writeWhole(T value)
{
    if (m_buffer) {
        char* const place = m_buffer->place(k_numberLength);
        char* const end = std::to_chars(place, place + k_numberLength, value).ptr;
        m_buffer->advance(static_cast<std::size_t>(end - place));
    } else {
        m_out << value;
    }
    return *this;
}

XmlPieces& XmlPieces::operator<<(int value)
{
    return writeWhole(value);
}

XmlPieces& XmlPieces::operator<<(unsigned int value)
{
    return writeWhole(value);
}

XmlPieces& XmlPieces::operator<<(long value)
{
    return writeWhole(value);
}

XmlPieces& XmlPieces::operator<<(unsigned long value)
{
    return writeWhole(value);
}

XmlPieces& XmlPieces::operator<<(long long value)
{
    return writeWhole(value);
}

XmlPieces& XmlPieces::operator<<(unsigned long long value)
{
    return writeWhole(value);
}

XmlPieces& XmlPieces::operator<<(double value)
{
    if (!m_buffer) {
        m_out << value;
        return *this;
    }
    if (looksWhole(value))
        return writeWhole(static_cast<int>(value));
    char* const place = m_buffer->place(k_numberLength);
    char* const end =
        std::to_chars(place, place + k_numberLength, value, std::chars_format::general, 6).ptr;
    m_buffer->advance(static_cast<std::size_t>(end - place));
    return *this;
}

XmlPieces& XmlPieces::operator<<(float value)
{
    return *this << static_cast<double>(value);
}

}  // namespace tarn
