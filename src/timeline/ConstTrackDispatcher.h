#pragma once

#include "datatypes/Export.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Receives a track as what it is, without the right to change it.
///
/// Called once, on the asking thread, with no lock taken for it and nothing waiting for its return:
/// it may edit if its thread may, destroy itself or what it was given, and throw, which passes to
/// whoever asked.
class TARN_API ConstTrackDispatcher
{
public:
    virtual ~ConstTrackDispatcher() = default;

    virtual void dispatchTrack(boost::shared_ptr<VisualTrack const> const& track) = 0;
    virtual void dispatchTrack(boost::shared_ptr<AudioTrack const> const& track) = 0;
    virtual void dispatchTrack(boost::shared_ptr<ImageTrack const> const& track) = 0;
};

}  // namespace tarn
