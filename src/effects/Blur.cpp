#include "effects/Blur.h"

#include "datatypes/XmlText.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"

#include <boost/make_shared.hpp>

namespace tarn {

// Kept so: the second parameter is called "foo", as hosts find it by that name.
Blur::Blur(boost::weak_ptr<ThreadSafe const> const& project)
    : Effect("Blur", project)
    , m_intensity(new InterpolatingParam<float>(project, "intensity"))
    , m_foo(new InterpolatingParam<float>(project, "foo"))
{}

Blur::Blur(Blur const& other)
    : XMLIdentified(other)
    , Effect(other)
    , m_intensity(other.m_intensity->clone())
    , m_foo(other.m_foo->clone())
{}

Blur* Blur::clone() const
{
    return new Blur(*this);
}

std::list<boost::shared_ptr<ParameterInterface>> Blur::parameters() const
{
    return {m_intensity, m_foo};
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> Blur::parameterVector()
    const
{
    auto const result =
        boost::make_shared<MTVector<boost::shared_ptr<ParameterInterface const>>>(projectMutex());
    result->push_back(m_intensity);
    result->push_back(m_foo);
    return result;
}

void Blur::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "Blur";
}

}  // namespace tarn
