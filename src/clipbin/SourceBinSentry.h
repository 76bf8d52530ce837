#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/Export.h"
#include "datatypes/TarnObject.h"

#include <string>

namespace tarn {

/// A host's say in what may be loaded. Called on the loading thread inside the project's write
/// lock, while the command runs.
///
/// What it throws passes to whoever loads, the file is not loaded, and no other sentry is asked. It
/// may read, and add sentries, which are asked as well; an edit, undo or redo is refused, see
/// CommandHistory. The bin owns it, for the project's life.
class TARN_API SourceBinSentry : public TarnObject
{
public:
    virtual ~SourceBinSentry() = default;

    /// Its name in the line that tells of a refusal. Throwing here, it refuses without that line.
    std::string description() const override = 0;

    /// False refuses the file.
    virtual bool isAcceptable(MediaFileStats const* stats) const = 0;
};

}  // namespace tarn
