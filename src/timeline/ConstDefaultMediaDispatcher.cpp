#include "timeline/ConstDefaultMediaDispatcher.h"

#include "exceptions/DefaultMediaDispatcherException.h"

namespace tarn {

void ConstDefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<VMFile const> const&)
{
    mediaNotHandled();
}

void ConstDefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<AMFile const> const&)
{
    mediaNotHandled();
}

void ConstDefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<IMFile const> const&)
{
    mediaNotHandled();
}

void ConstDefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<ImageTransition const> const&)
{
    mediaNotHandled();
}

void ConstDefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<AudioTransition const> const&)
{
    mediaNotHandled();
}

void ConstDefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<TextBox const> const&)
{
    mediaNotHandled();
}

void ConstDefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<Callout const> const&)
{
    mediaNotHandled();
}

void ConstDefaultMediaDispatcher::mediaNotHandled()
{
    throw DefaultMediaDispatcherException("Media not handled");
}

}  // namespace tarn
