#include "timeline/AudioTransition.h"

#include "datatypes/XmlText.h"
#include "exceptions/TarnMediaLibException.h"
#include "timeline/ConstMediaDispatcher.h"
#include "timeline/MediaDispatcher.h"

namespace tarn {

AudioTransition::AudioTransition(Range<long long> const& range,
                                 boost::weak_ptr<ThreadSafe const> const& project)
    : AudioMedia(range, 0, 0, static_cast<double>(range.start), static_cast<double>(range.end()),
                 project)
{}

AudioTransition::AudioTransition(AudioTransition const& other)
    : XMLIdentified(other), AudioMedia(other), Transition(other)
{}

Range<long long> AudioTransition::transitionRange() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return trackRange();
}

boost::shared_ptr<Media const> AudioTransition::transitionMediaRepresentation() const
{
    return shared_from_this();
}

unsigned int AudioTransition::numChannels() const
{
    return 0;
}

std::vector<boost::shared_ptr<AudioMedia>> AudioTransition::splitChannels() const
{
    throw TarnMediaLibException("no audio channels to split");
}

void AudioTransition::receiveDispatcher(ConstMediaDispatcher* dispatcher) const
{
    dispatcher->dispatchMedia(
        boost::static_pointer_cast<AudioTransition const>(shared_from_this()));
}

void AudioTransition::receiveDispatcher(MediaDispatcher* dispatcher)
{
    dispatcher->dispatchMedia(boost::static_pointer_cast<AudioTransition>(shared_from_this()));
}

bool AudioTransition::isInstanceOf(boost::shared_ptr<Source const> const&) const
{
    return false;
}

AudioTransition* AudioTransition::clone() const
{
    return cloneOf(*this);
}

std::string AudioTransition::description() const
{
    return "AudioTransition";
}

void AudioTransition::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "AudioTransition";
}

}  // namespace tarn
