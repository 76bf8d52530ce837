#pragma once

#include "datatypes/Export.h"
#include "timeline/ConstMediaDispatcher.h"

namespace tarn {

/// Overridden only for the kinds of media that matter; every other kind ends in mediaNotHandled().
/// Who overrides some of the overloads and calls others by name adds a using-declaration.
class TARN_API ConstDefaultMediaDispatcher : public ConstMediaDispatcher
{
public:
    void dispatchMedia(boost::shared_ptr<VMFile const> const& media) override;
    void dispatchMedia(boost::shared_ptr<AMFile const> const& media) override;
    void dispatchMedia(boost::shared_ptr<IMFile const> const& media) override;
    void dispatchMedia(boost::shared_ptr<ImageTransition const> const& media) override;
    void dispatchMedia(boost::shared_ptr<AudioTransition const> const& media) override;
    void dispatchMedia(boost::shared_ptr<TextBox const> const& media) override;
    void dispatchMedia(boost::shared_ptr<Callout const> const& media) override;

    /// @throws DefaultMediaDispatcherException unless overridden
    virtual void mediaNotHandled();
};

}  // namespace tarn
