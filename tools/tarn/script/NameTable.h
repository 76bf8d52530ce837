#pragma once

#include <map>
#include <string>

namespace tarn::tool {

/// The names that a script has given so far, each to one thing and for good.
class NameTable
{
public:
    enum class Kind
    {
        Source,
        Media,
        Clip
    };

    struct Entry
    {
        Kind kind;
        int line;
    };

    void add(std::string const& name, Kind kind, int line) { m_entries[name] = {kind, line}; }

    /// Null when nothing has that name.
    Entry const* find(std::string const& name) const
    {
        auto const found = m_entries.find(name);
        return found == m_entries.end() ? nullptr : &found->second;
    }

private:
    std::map<std::string, Entry> m_entries;
};

}  // namespace tarn::tool
