#pragma once

#include "hostile/Verdict.h"

#include <chrono>
#include <cstdint>
#include <iosfwd>
#include <map>
#include <string>

namespace tarn {
namespace test {

/// Counts verdicts, and knows which file took longest.
class Tally
{
public:
    using Duration = std::chrono::steady_clock::duration;

    void add(Verdict const& verdict, Duration duration);

    std::uint64_t files() const { return m_files; }
    std::uint64_t loaded() const { return m_loaded; }
    std::map<std::string, std::uint64_t> const& failures() const { return m_failures; }
    Duration longest() const { return m_longest; }

private:
    std::uint64_t m_files = 0;
    std::uint64_t m_loaded = 0;
    std::map<std::string, std::uint64_t> m_failures;
    Duration m_longest = Duration::zero();
};

std::ostream& operator<<(std::ostream& stream, Tally const& tally);

}  // namespace test
}  // namespace tarn
