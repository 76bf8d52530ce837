#include "timeline/ImageTransition.h"

#include "datatypes/XmlText.h"
#include "effects/Effect.h"
#include "effects/ParametricEffectableUtil.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/MTVector.h"
#include "timeline/ConstMediaDispatcher.h"
#include "timeline/MediaDispatcher.h"

#include <limits>

namespace tarn {

ImageTransition::ImageTransition(long long start, long long duration,
                                 boost::weak_ptr<ThreadSafe const> const& project)
    : ImageMedia(start, duration, 0.0, std::numeric_limits<double>::max(), project)
{}

ImageTransition::ImageTransition(ImageTransition const& other)
    : XMLIdentified(other), ImageMedia(other), Transition(other)
{}

Range<long long> ImageTransition::transitionRange() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return trackRange();
}

boost::shared_ptr<Media const> ImageTransition::transitionMediaRepresentation() const
{
    return shared_from_this();
}

double ImageTransition::width() const
{
    throw TarnMediaLibException("width of a transition is undefined");
}

double ImageTransition::height() const
{
    throw TarnMediaLibException("height of a transition is undefined");
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>>
ImageTransition::parameterVector() const
{
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> const parameters =
        ImageMedia::parameterVector();
    ParametricEffectableUtil::addEffectablesParameters(this, parameters.get());
    return parameters;
}

boost::shared_ptr<Effect const> ImageTransition::transitionEffect() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return numEffects() == 0 ? boost::shared_ptr<Effect const>() : effectAtIndex(0);
}

int ImageTransition::addEffect(boost::shared_ptr<Effect> const& effect)
{
    if (numEffects() != 0) {
        throw TarnMediaLibException(
            "add error: Image Transitions can only have one transition effect");
    }
    return ImageMedia::addEffect(effect);
}

void ImageTransition::insertEffect(boost::shared_ptr<Effect> const& effect, int index)
{
    if (numEffects() != 0) {
        throw TarnMediaLibException(
            "insert error: Image Transitions can only have one transition effect");
    }
    ImageMedia::insertEffect(effect, index);
}

void ImageTransition::receiveDispatcher(ConstMediaDispatcher* dispatcher) const
{
    dispatcher->dispatchMedia(
        boost::static_pointer_cast<ImageTransition const>(shared_from_this()));
}

void ImageTransition::receiveDispatcher(MediaDispatcher* dispatcher)
{
    dispatcher->dispatchMedia(boost::static_pointer_cast<ImageTransition>(shared_from_this()));
}

bool ImageTransition::isInstanceOf(boost::shared_ptr<Source const> const&) const
{
    return false;
}

ImageTransition* ImageTransition::clone() const
{
    return cloneOf(*this);
}

std::string ImageTransition::description() const
{
    return "ImageTransition";
}

void ImageTransition::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "ImageTransition";
}

}  // namespace tarn
