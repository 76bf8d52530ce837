#include "hostile/Tally.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

namespace tarn {
namespace test {

void Tally::add(Verdict const& verdict, Duration duration)
{
    ++m_files;
    m_longest = std::max(m_longest, duration);
    if (verdict.isLoaded) {
        ++m_loaded;
    } else {
        ++m_failures[verdict.failure];
    }
}

std::ostream& operator<<(std::ostream& stream, Tally const& tally)
{
    stream << std::setw(9) << tally.files() << "  files\n"
           << std::setw(9) << tally.loaded() << "  loaded\n";
    for (auto const& failure : tally.failures()) {
        stream << std::setw(9) << failure.second << "  " << failure.first << '\n';
    }
    auto const longest = std::chrono::duration_cast<std::chrono::milliseconds>(tally.longest());
    return stream << std::setw(9) << longest.count() << "  ms for the slowest of them\n";
}

}  // namespace test
}  // namespace tarn
