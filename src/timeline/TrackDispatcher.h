#pragma once

#include "datatypes/Export.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Receives a track as what it is: Track::receiveDispatcher calls the overload of its own class.
/// Takes no lock; the caller of receiveDispatcher() holds what its work needs.
class TARN_API TrackDispatcher
{
public:
    virtual ~TrackDispatcher() = default;

    virtual void dispatchTrack(boost::shared_ptr<VisualTrack> const& track) = 0;
    virtual void dispatchTrack(boost::shared_ptr<AudioTrack> const& track) = 0;
    virtual void dispatchTrack(boost::shared_ptr<ImageTrack> const& track) = 0;
};

}  // namespace tarn
