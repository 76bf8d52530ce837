#pragma once

#include "datatypes/Export.h"
#include "timeline/MediaDispatcher.h"

namespace tarn {

/// Overridden only for the kinds of media that matter; every other kind ends in mediaNotHandled().
/// Who overrides some of the overloads and calls others by name adds a using-declaration.
class TARN_API DefaultMediaDispatcher : public MediaDispatcher
{
public:
    void dispatchMedia(boost::shared_ptr<VMFile> const& media) override;
    void dispatchMedia(boost::shared_ptr<AMFile> const& media) override;
    void dispatchMedia(boost::shared_ptr<IMFile> const& media) override;
    void dispatchMedia(boost::shared_ptr<ImageTransition> const& media) override;
    void dispatchMedia(boost::shared_ptr<AudioTransition> const& media) override;
    void dispatchMedia(boost::shared_ptr<TextBox> const& media) override;
    void dispatchMedia(boost::shared_ptr<Callout> const& media) override;

    /// @throws DefaultMediaDispatcherException unless overridden
    virtual void mediaNotHandled();
};

}  // namespace tarn
