#pragma once

#include "Terminal.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace tarn::tool {

/// Rows of text in columns as wide as their widest cell.
class Table
{
public:
    explicit Table(std::vector<std::string> const& heads) : m_rows{heads} {}

    void add(std::vector<std::string> const& row) { m_rows.push_back(row); }

    bool isEmpty() const { return m_rows.size() == 1; }

    /// Two blanks between columns, none behind the last; heads are strong.
    void write(std::ostream& out, Terminal const& terminal) const;

private:
    std::vector<std::vector<std::string>> m_rows;
};

}  // namespace tarn::tool
