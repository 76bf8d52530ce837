#include "datatypes/XmlText.h"

#include <charconv>
#include <cmath>

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

template <class T>
XmlText& XmlText::writeWhole(T value)
{
    if (isShort()) {
        char* const place = m_buffer->place(k_numberLength);
        char* const end = std::to_chars(place, place + k_numberLength, value).ptr;
        m_buffer->advance(static_cast<std::size_t>(end - place));
    } else {
        m_out << value;
    }
    return *this;
}

XmlText& XmlText::operator<<(int value)
{
    return writeWhole(value);
}

XmlText& XmlText::operator<<(unsigned int value)
{
    return writeWhole(value);
}

XmlText& XmlText::operator<<(long value)
{
    return writeWhole(value);
}

XmlText& XmlText::operator<<(unsigned long value)
{
    return writeWhole(value);
}

XmlText& XmlText::operator<<(long long value)
{
    return writeWhole(value);
}

XmlText& XmlText::operator<<(unsigned long long value)
{
    return writeWhole(value);
}

XmlText& XmlText::operator<<(double value)
{
    if (!isShort()) {
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

XmlText& XmlText::operator<<(float value)
{
    return *this << static_cast<double>(value);
}

}  // namespace tarn
