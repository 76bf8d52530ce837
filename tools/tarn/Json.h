#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace tarn::tool {

/// Writes JSON value by value, indented. Who calls keeps the order: a key before each value of an
/// object.
class Json
{
public:
    explicit Json(std::ostream& out) : m_out(out) {}

    Json& beginObject() { return begin('{'); }
    Json& endObject() { return end('}'); }
    Json& beginArray() { return begin('['); }
    Json& endArray() { return end(']'); }
    Json& key(std::string const& name);
    /// Bytes that are no UTF-8 become the replacement character.
    Json& text(std::string const& value);
    Json& integer(long long value);
    /// What JSON has no number for is written as null.
    Json& number(double value);

private:
    Json& begin(char bracket);
    Json& end(char bracket);
    /// What comes before a value, a key or a closing bracket.
    void separate();
    void breakLine();

    std::ostream& m_out;
    std::vector<bool> m_isFirst;  ///< for each open bracket
    bool m_isAfterKey = false;
};

}  // namespace tarn::tool
