#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/Export.h"
#include "datatypes/TarnObject.h"

#include <string>

namespace tarn {

/// A host's say in what may be loaded. Called on the loading thread inside the project's write
/// lock.
class TARN_API SourceBinSentry : public TarnObject
{
public:
    virtual ~SourceBinSentry() = default;

    /// Its name in the line that tells of a refusal.
    std::string description() const override = 0;

    /// False refuses the file.
    virtual bool isAcceptable(MediaFileStats const* stats) const = 0;
};

}  // namespace tarn
