#include "Json.h"

#include <drawing/Utf8.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <ostream>

namespace tarn::tool {

namespace {

std::string escaped(char letter)
{
    if (letter == '"' || letter == '\\')
        return std::string("\\") + letter;
    if (static_cast<unsigned char>(letter) >= 0x20)
        return std::string(1, letter);
    char escape[7];
    std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned char>(letter));
    return escape;
}

}  // namespace

Json& Json::key(std::string const& name)
{
    text(name);
    m_out << ": ";
    m_isAfterKey = true;
    return *this;
}

Json& Json::text(std::string const& value)
{
    separate();
    m_out << '"';
    for (std::size_t i = 0; i < value.size();) {
        std::size_t const length = drawing::characterLength(value, i);
        if (length == 0)
            m_out << drawing::k_replacement;
        else if (length == 1)
            m_out << escaped(value[i]);
        else
            m_out << value.substr(i, length);
        i += length == 0 ? 1 : length;
    }
    m_out << '"';
    return *this;
}

Json& Json::integer(long long value)
{
    separate();
    m_out << value;
    return *this;
}

Json& Json::number(double value)
{
    separate();
    if (!std::isfinite(value)) {
        m_out << "null";
        return *this;
    }
    auto const precision = m_out.precision(std::numeric_limits<double>::digits10);
    m_out << value;
    m_out.precision(precision);
    return *this;
}

Json& Json::begin(char bracket)
{
    separate();
    m_out << bracket;
    m_isFirst.push_back(true);
    return *this;
}

Json& Json::end(char bracket)
{
    bool const isEmpty = m_isFirst.back();
    m_isFirst.pop_back();
    if (!isEmpty)
        breakLine();
    m_out << bracket;
    if (m_isFirst.empty())
        m_out << '\n';
    return *this;
}

void Json::separate()
{
    if (m_isAfterKey) {
        m_isAfterKey = false;
        return;
    }
    if (m_isFirst.empty())
        return;
    if (!m_isFirst.back())
        m_out << ',';
    m_isFirst.back() = false;
    breakLine();
}

void Json::breakLine()
{
    m_out << '\n' << std::string(m_isFirst.size() * 2, ' ');
}

}  // namespace tarn::tool
