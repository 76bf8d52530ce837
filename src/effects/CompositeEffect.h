#pragma once

#include "effects/Effect.h"

namespace tarn {

/// A named marker without parameters; what it stands for, the host knows. Locks as Effect.
class TARN_API CompositeEffect : public Effect
{
public:
    CompositeEffect(std::string const& name, boost::weak_ptr<ThreadSafe const> const& project);

    std::string description() const override;
    CompositeEffect* clone() const override;

    int numParameters() const override;
    std::list<boost::shared_ptr<ParameterInterface>> parameters() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    CompositeEffect(CompositeEffect const& other);
};

}  // namespace tarn
