#pragma once

#include "datatypes/Range.h"
#include "timeline/TimelineFwd.h"

#include <boost/weak_ptr.hpp>

#include <list>

namespace tarn {

/// Where a media lies and what goes with it when it moves. No lock of its own.
struct MediaPlace
{
    using LinkList = std::list<boost::weak_ptr<Media>>;

    Range<long long> range;         ///< edit units on the track's clock
    boost::weak_ptr<Track> parent;  ///< empty while the media lies on no track
    LinkList links;                 ///< in order of linking
    void const* entry = nullptr;    ///< in the track's map: to be fetched ahead, never read
};

}  // namespace tarn
