#pragma once

#include <cstddef>

namespace tarn {

/// Where pools of Boost have their memory from. Unlike Boost's own it throws when there is none.
struct PoolHeap
{
    using size_type = std::size_t;
    using difference_type = std::ptrdiff_t;

    static char* malloc(std::size_t size) { return new char[size]; }
    static void free(char* memory) { delete[] memory; }
};

}  // namespace tarn
