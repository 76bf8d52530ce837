#pragma once

#include <cstddef>
#include <cstdint>

namespace tarn {

/// For whoever walks over more objects than the caches hold: what an object will be asked for is
/// fetched some turns before its own, while the others are at work. Changes nothing.
namespace FetchAhead {

/// In turns: time enough for memory to come, and soon enough for it to be here still. What must be
/// read to know where the rest lies is fetched far ahead, and the rest near.
std::size_t constexpr k_far = 16;
std::size_t constexpr k_near = 8;

/// The one or two lines of the cache in which so few bytes lie. They are not read, and need not be
/// anybody's any more.
inline void bytes(std::uintptr_t first, std::size_t count)
{
    __builtin_prefetch(reinterpret_cast<void const*>(first), 1);
    __builtin_prefetch(reinterpret_cast<void const*>(first + count - 1), 1);
}

}  // namespace FetchAhead
}  // namespace tarn
