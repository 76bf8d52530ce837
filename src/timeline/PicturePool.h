#pragma once

#include <cstddef>

namespace tarn {

/// Memory for pictures, which are too large for what a heap keeps at hand: made, copied and dropped
/// by the thousand, they would be cut from and joined with what lies around them each time.
///
/// Those of one size lie side by side. What is given back is kept for the next, and all of it
/// returned when the last picture of a size dies. Safe on any thread.
namespace PicturePool {

/// @throws std::bad_alloc
void* take(std::size_t size);
/// With the size for which it was taken.
void giveBack(void* place, std::size_t size);

}  // namespace PicturePool
}  // namespace tarn
