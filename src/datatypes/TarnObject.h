#pragma once

#include "datatypes/Export.h"

#include <string>

namespace tarn {

/// The root of value-like classes: what can tell of itself in a text.
///
/// Never deleted through. Its destructor is not virtual, so that a scoped class below it may have
/// one that throws.
class TARN_API TarnObject
{
public:
    /// The stream form of what has one, the XML of a command; otherwise empty unless told.
    virtual std::string description() const = 0;

protected:
    TarnObject() = default;
    TarnObject(TarnObject const&) = default;
    TarnObject& operator=(TarnObject const&) = default;
    ~TarnObject() = default;
};

}  // namespace tarn
