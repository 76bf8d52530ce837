#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <vector>

// A workload W with size n is the benchmark "W/n"; what the barest C++ needs for the same is
// "W_limit/n" in the same run. Each reports the time of one operation as the counter "op".
// bench/tabulate reads both.

namespace tarn {
namespace bench {

/// Says how many operations one iteration of the loop makes.
void countOperations(benchmark::State& state, std::int64_t perIteration);
/// Says what one of the things measured takes on the heap, the allocator's own share included.
void countBytes(benchmark::State& state, std::size_t heapBefore, std::int64_t things);
/// Bytes of the heap in use now.
std::size_t heapInUse();

/// A cheap, repeatable shuffle of 0 <= number < below.
class Numbers
{
public:
    std::int64_t next(std::int64_t below);

private:
    std::uint64_t m_state = 88172645463325252ull;
};

/// Numbers made beforehand, so that making them is not measured.
class NumberCycle
{
public:
    explicit NumberCycle(std::int64_t below);

    std::int64_t next()
    {
        m_next = (m_next + 1) % m_numbers.size();
        return m_numbers[m_next];
    }

private:
    std::vector<std::int64_t> m_numbers;
    std::size_t m_next = 0;
};

}  // namespace bench
}  // namespace tarn
