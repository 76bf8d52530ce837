#pragma once

#include "datatypes/Export.h"

#include <string>

namespace tarn {

/// Something on the timeline that stands for a file.
class TARN_API FileRepresentation
{
public:
    virtual ~FileRepresentation() = default;

    /// The file that holds the picture or sound itself: the component file inside a bundle.
    virtual std::string fileName() const = 0;
    /// The file as it was loaded: the bundle, or the same as fileName().
    virtual std::string containerFileName() const = 0;
};

}  // namespace tarn
