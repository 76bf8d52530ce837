#include "timeline/DefaultMediaDispatcher.h"

#include "exceptions/DefaultMediaDispatcherException.h"

namespace tarn {

void DefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<VMFile> const&)
{
    mediaNotHandled();
}

void DefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<AMFile> const&)
{
    mediaNotHandled();
}

void DefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<IMFile> const&)
{
    mediaNotHandled();
}

void DefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<ImageTransition> const&)
{
    mediaNotHandled();
}

void DefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<AudioTransition> const&)
{
    mediaNotHandled();
}

void DefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<TextBox> const&)
{
    mediaNotHandled();
}

void DefaultMediaDispatcher::dispatchMedia(boost::shared_ptr<Callout> const&)
{
    mediaNotHandled();
}

void DefaultMediaDispatcher::mediaNotHandled()
{
    throw DefaultMediaDispatcherException("Media not handled");
}

}  // namespace tarn
