#pragma once

#include "datatypes/Export.h"

namespace tarn {

/// What owns attributes.
class TARN_API Attributable
{
public:
    virtual ~Attributable();

    /// Those that the XML shows.
    virtual int numAttributes() const = 0;

protected:
    Attributable() = default;
    Attributable(Attributable const&) = default;
    Attributable& operator=(Attributable const&) = default;
};

}  // namespace tarn
