#include "Similar.h"

#include <algorithm>
#include <numeric>

namespace tarn::tool {

namespace {

/// How many letters must be put in, taken out or exchanged to make one of the other.
std::size_t distance(std::string const& a, std::string const& b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t(0));
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            std::size_t const exchanged = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, exchanged});
        }
    }
    return row.back();
}

}  // namespace

std::string didYouMean(std::string const& written, std::vector<std::string> const& names)
{
    std::string best;
    // Two steps make up for two letters in the wrong order.
    std::size_t least = (written.size() < 4 ? 1 : std::max<std::size_t>(2, written.size() / 3)) + 1;
    for (std::string const& name : names) {
        std::size_t const steps = distance(written, name);
        if (steps < least) {
            least = steps;
            best = name;
        }
    }
    return best.empty() ? "" : "; did you mean '" + best + "'?";
}

}  // namespace tarn::tool
