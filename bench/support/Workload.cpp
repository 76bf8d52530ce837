#include "support/Workload.h"

#include <malloc.h>

namespace tarn {
namespace bench {

void countOperations(benchmark::State& state, std::int64_t perIteration)
{
    double const operations =
        static_cast<double>(perIteration) * static_cast<double>(state.iterations());
    state.counters["op"] =
        benchmark::Counter(operations, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void countBytes(benchmark::State& state, std::size_t heapBefore, std::int64_t things)
{
    double const used = static_cast<double>(heapInUse()) - static_cast<double>(heapBefore);
    state.counters["bytes"] = benchmark::Counter(used / static_cast<double>(things));
}

std::size_t heapInUse()
{
    struct mallinfo2 const heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

std::int64_t Numbers::next(std::int64_t below)
{
    m_state ^= m_state << 13;
    m_state ^= m_state >> 7;
    m_state ^= m_state << 17;
    return static_cast<std::int64_t>(m_state % static_cast<std::uint64_t>(below));
}

NumberCycle::NumberCycle(std::int64_t below)
{
    Numbers numbers;
    for (int i = 0; i < 8191; ++i)
        m_numbers.push_back(numbers.next(below));
}

}  // namespace bench
}  // namespace tarn
