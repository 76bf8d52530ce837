#pragma once

#include "timeline/AudioMedia.h"
#include "timeline/Transition.h"

namespace tarn {

/// Leads from one sound to the next on a track. It has no channels of its own.
class TARN_API AudioTransition : public AudioMedia, public Transition
{
public:
    AudioTransition(Range<long long> const& range,
                    boost::weak_ptr<ThreadSafe const> const& project);

    Range<long long> transitionRange() const override;
    boost::shared_ptr<Media const> transitionMediaRepresentation() const override;

    /// None.
    unsigned int numChannels() const override;
    /// @throws TarnMediaLibException "no audio channels to split", always
    std::vector<boost::shared_ptr<AudioMedia>> splitChannels() const override;

    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    /// False for every source.
    bool isInstanceOf(boost::shared_ptr<Source const> const& source) const override;
    AudioTransition* clone() const override;

    std::string description() const override;
    void xmlName(XMLable::Options& options) const override;

protected:
    AudioTransition(AudioTransition const& other);

private:
    friend class MediaImpl;  // its cloneOf() copies
};

}  // namespace tarn
