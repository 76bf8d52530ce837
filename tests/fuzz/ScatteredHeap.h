#pragma once

#include <cstddef>
#include <cstdint>

namespace tarn {
namespace test {

/// From now on `operator new` takes one of several places at random, by that number, so that what
/// is made later may lie before what was made earlier. Sets of pointers then have another order.
/// 0, as at first, leaves the heap alone. For one thread.
void scatterHeap(std::uint64_t seed);

/// Of the heap, in bytes, by its own book.
std::size_t heapInUse();

}  // namespace test
}  // namespace tarn
