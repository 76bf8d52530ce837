#pragma once

#include "timeline/ImageMedia.h"
#include "timeline/Transition.h"

namespace tarn {

/// Leads from one picture to the next on a track, by the one effect that it carries.
///
/// It shows its neighbours and has no picture of its own, so its size is undefined.
class TARN_API ImageTransition : public ImageMedia, public Transition
{
public:
    ImageTransition(long long start, long long duration,
                    boost::weak_ptr<ThreadSafe const> const& project);

    Range<long long> transitionRange() const override;
    boost::shared_ptr<Media const> transitionMediaRepresentation() const override;
    /// @throws TarnMediaLibException "width of a transition is undefined"
    double width() const override;
    /// @throws TarnMediaLibException "height of a transition is undefined"
    double height() const override;
    /// The media's own parameters, then those of its effect.
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;
    /// Empty as long as none was added.
    virtual boost::shared_ptr<Effect const> transitionEffect() const;

    /// @throws TarnMediaLibException when there is an effect already
    int addEffect(boost::shared_ptr<Effect> const& effect) override;
    void insertEffect(boost::shared_ptr<Effect> const& effect, int index) override;

    void receiveDispatcher(ConstMediaDispatcher* dispatcher) const override;
    void receiveDispatcher(MediaDispatcher* dispatcher) override;
    /// False for every source.
    bool isInstanceOf(boost::shared_ptr<Source const> const& source) const override;
    ImageTransition* clone() const override;

    std::string description() const override;
    void xmlName(XMLable::Options& options) const override;

protected:
    ImageTransition(ImageTransition const& other);

private:
    friend class MediaImpl;  // its cloneOf() copies
};

}  // namespace tarn
