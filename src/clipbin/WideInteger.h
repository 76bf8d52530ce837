#pragma once

namespace tarn {

/// Holds the product of two 64-bit times or rates. The language has no name of its own for it.
__extension__ using WideInteger = __int128;

}  // namespace tarn
