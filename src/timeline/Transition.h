#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// A media that leads from its left neighbour on the track to its right one.
class TARN_API Transition
{
public:
    virtual ~Transition() = default;

    /// Edit units on the track's clock, half-open.
    virtual Range<long long> transitionRange() const = 0;
    /// The media that this transition is.
    virtual boost::shared_ptr<Media const> transitionMediaRepresentation() const = 0;
};

}  // namespace tarn
