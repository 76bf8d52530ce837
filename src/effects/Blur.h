#pragma once

#include "effects/Effect.h"

namespace tarn {

/// A blur with two parameters, neither of which has a key frame at the start.
///
/// numParameters() is 0 all the same; who wants the parameters asks for them.
class TARN_API Blur : public Effect
{
public:
    explicit Blur(boost::weak_ptr<ThreadSafe const> const& project);

    Blur* clone() const override;

    /// "intensity", then "foo".
    std::list<boost::shared_ptr<ParameterInterface>> parameters() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;

    void xmlName(XMLable::Options& options) const override;

protected:
    Blur(Blur const& other);

private:
    boost::shared_ptr<InterpolatingParam<float>> m_intensity;
    boost::shared_ptr<InterpolatingParam<float>> m_foo;
};

}  // namespace tarn
