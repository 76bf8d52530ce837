#pragma once

namespace tarn {

/// A size in square pixels, not yet cut to whole ones.
struct MovieSize
{
    double width = 0;
    double height = 0;
};

}  // namespace tarn
