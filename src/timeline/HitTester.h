#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <utility>

namespace tarn {

/// What a click on the picture means: the front-most media under a point at a time.
///
/// A ray from the mixer's eye through the point meets the medias as they stand in space, from the
/// mixer's last track to its first. What counts is a media's geometry crop; opacity, effects and
/// the source crop do not, so a media that cannot be seen can be hit. Takes read locks as it goes:
/// hold one around the call while another thread edits.
class TARN_API HitTester
{
public:
    /// @param location on the viewport: mixer width by height around (0, 0), z is not looked at
    /// @param time on the timeline, edit units
    /// @returns the media and the point hit, in the media's own coordinates (for a transition in
    /// those of the neighbour that is hit); an empty media when there is none
    /// @throws boost::bad_weak_ptr for a dead project
    static std::pair<boost::shared_ptr<VisualMedia const>, Point> hitTestAtLocation(
        boost::shared_ptr<VisualMixer const> const& mixer, Point const& location, long long time);
    /// The media alone.
    static boost::shared_ptr<VisualMedia const> mediaAtLocation(
        boost::shared_ptr<VisualMixer const> const& mixer, Point const& location, long long time);
};

}  // namespace tarn
