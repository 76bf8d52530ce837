#include "effects/CompositeEffect.h"

#include "datatypes/XmlRepresentation.h"
#include "datatypes/XmlText.h"
#include "parameters/MTVector.h"
#include "parameters/ParameterInterface.h"

#include <boost/make_shared.hpp>

namespace tarn {

CompositeEffect::CompositeEffect(std::string const& name,
                                 boost::weak_ptr<ThreadSafe const> const& project)
    : Effect(name, project)
{}

CompositeEffect::CompositeEffect(CompositeEffect const& other) : XMLIdentified(other), Effect(other)
{}

std::string CompositeEffect::description() const
{
    return std::string();
}

CompositeEffect* CompositeEffect::clone() const
{
    return new CompositeEffect(*this);
}

int CompositeEffect::numParameters() const
{
    return 0;
}

std::list<boost::shared_ptr<ParameterInterface>> CompositeEffect::parameters() const
{
    return std::list<boost::shared_ptr<ParameterInterface>>();
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>>
CompositeEffect::parameterVector() const
{
    return boost::make_shared<MTVector<boost::shared_ptr<ParameterInterface const>>>(
        projectMutex());
}

void CompositeEffect::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "CompositeEffect";
}

void CompositeEffect::xmlAttributes(XMLable::Options& options) const
{
    XmlText(options) << "name=\"" << xml_representation(name()) << "\"";
}

void CompositeEffect::xmlBody(XMLable::Options&, int) const {}

}  // namespace tarn
