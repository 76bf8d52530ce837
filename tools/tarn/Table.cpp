#include "Table.h"

#include <algorithm>
#include <ostream>

namespace tarn::tool {

namespace {

/// Characters, of which one may be several bytes.
std::size_t width(std::string const& text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char letter) {
        return (static_cast<unsigned char>(letter) & 0xC0u) != 0x80u;
    }));
}

}  // namespace

void Table::write(std::ostream& out, Terminal const& terminal) const
{
    std::vector<std::size_t> widths(m_rows.front().size(), 0);
    for (auto const& row : m_rows)
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], width(row[i]));
    for (auto const& row : m_rows) {
        std::string line;
        std::size_t gap = 0;
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (!row[i].empty()) {
                bool const isHead = &row == &m_rows.front();
                line += std::string(gap, ' ') + (isHead ? terminal.strong(row[i]) : row[i]);
                gap = 0;
            }
            gap += widths[i] - width(row[i]) + 2;
        }
        out << line << '\n';
    }
}

}  // namespace tarn::tool
