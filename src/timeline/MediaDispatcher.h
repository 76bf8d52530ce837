#pragma once

#include "datatypes/Export.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Receives a media as what it is: Media::receiveDispatcher calls the overload of its own class.
///
/// Called once, on the asking thread, with no lock taken for it and nothing waiting for its return:
/// it may edit if its thread may, destroy itself or what it was given, and throw, which passes to
/// whoever asked.
class TARN_API MediaDispatcher
{
public:
    virtual ~MediaDispatcher() = default;

    virtual void dispatchMedia(boost::shared_ptr<VMFile> const& media) = 0;
    virtual void dispatchMedia(boost::shared_ptr<AMFile> const& media) = 0;
    virtual void dispatchMedia(boost::shared_ptr<IMFile> const& media) = 0;
    virtual void dispatchMedia(boost::shared_ptr<ImageTransition> const& media) = 0;
    virtual void dispatchMedia(boost::shared_ptr<AudioTransition> const& media) = 0;
    virtual void dispatchMedia(boost::shared_ptr<TextBox> const& media) = 0;
    virtual void dispatchMedia(boost::shared_ptr<Callout> const& media) = 0;
};

}  // namespace tarn
