#include "support/Notation.h"

#include <cctype>
#include <sstream>
#include <stdexcept>

namespace tarn {
namespace test {
namespace {

std::string trimmed(std::string const& text)
{
    std::size_t const first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return "";
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> splitAt(std::string const& text, std::string const& separator)
{
    std::vector<std::string> parts;
    std::size_t from = 0;
    for (;;) {
        std::size_t const at = text.find(separator, from);
        parts.push_back(trimmed(text.substr(from, at - from)));
        if (at == std::string::npos)
            return parts;
        from = at + separator.size();
    }
}

std::vector<StripMedia> parseCells(std::string const& cells)
{
    std::vector<StripMedia> medias;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        char const cell = cells[i];
        if (cell == '.')
            continue;
        if (!std::isalpha(static_cast<unsigned char>(cell)))
            throw std::invalid_argument("no cell of a strip: '" + std::string(1, cell) + "' in " +
                                        cells);
        long long const start = static_cast<long long>(i) * Strip::k_cell;
        bool const goesOn = i > 0 && cells[i - 1] == cell;
        if (goesOn)
            medias.back().duration += Strip::k_cell;
        else
            medias.push_back({cell, start, Strip::k_cell});
    }
    return medias;
}

bool isOnGrid(std::vector<StripMedia> const& medias)
{
    for (StripMedia const& media : medias)
        if (media.start < 0 || media.start % Strip::k_cell != 0 ||
            media.duration % Strip::k_cell != 0 || media.duration <= 0)
            return false;
    return true;
}

std::string cellsOf(std::vector<StripMedia> const& medias)
{
    std::string cells;
    for (StripMedia const& media : medias) {
        cells.resize(static_cast<std::size_t>(media.start / Strip::k_cell), '.');
        cells.append(static_cast<std::size_t>(media.duration / Strip::k_cell), media.letter);
    }
    return cells;
}

std::string rangesOf(std::vector<StripMedia> const& medias)
{
    std::ostringstream out;
    for (std::size_t i = 0; i < medias.size(); ++i)
        out << (i == 0 ? "" : " ") << medias[i].letter << '[' << medias[i].start << ','
            << medias[i].start + medias[i].duration << ')';
    return out.str();
}

}  // namespace

Strip Strip::parse(std::string const& text)
{
    Strip strip;
    if (trimmed(text).empty())
        return strip;
    for (std::string const& row : splitAt(text, " / ")) {
        std::size_t const colon = row.find(':');
        if (colon != 2 || (row[0] != 'V' && row[0] != 'A') || row[1] < '1' || row[1] > '9')
            throw std::invalid_argument("no row of a strip: " + row);
        strip.rows.push_back({row.substr(0, 2), parseCells(trimmed(row.substr(3)))});
    }
    return strip;
}

std::string Strip::text() const
{
    std::string text;
    for (auto const& row : rows) {
        std::string const cells = isOnGrid(row.second) ? cellsOf(row.second) : rangesOf(row.second);
        text += (text.empty() ? "" : " / ") + row.first + ":" + (cells.empty() ? "" : " ") + cells;
    }
    return text;
}

}  // namespace test
}  // namespace tarn
