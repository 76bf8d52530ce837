#include "effects/Effect.h"

#include "datatypes/XmlText.h"
#include "effects/EffectTimeConverter.h"
#include "parameters/ParameterInterface.h"
#include "project/ReadWriteMutex.h"

namespace tarn {

Effect::Effect(boost::weak_ptr<ThreadSafe const> const& project) : Effect(std::string(), project) {}

Effect::Effect(std::string const& name, boost::weak_ptr<ThreadSafe const> const& project)
    : SubProject(project), m_name(name), m_effectTimeConverter(nullptr)
{}

Effect::Effect(Effect const& other)
    : XMLIdentified(other)
    , SubProject(other)
    , Cloneable(other)
    , XMLable(other)
    , Parametric(other)
    , Subject(other)
    , m_name(other.m_name)
    , m_effectTimeConverter(nullptr)
{}

Effect::~Effect() = default;

std::string Effect::description() const
{
    return std::string();
}

double Effect::toParameterTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return time;
}

double Effect::fromParameterTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return time;
}

long long Effect::fromGlobalToParametricTime(long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_effectTimeConverter ? m_effectTimeConverter->globalTimeToEffectTime(time) : time;
}

int Effect::numParameters() const
{
    return 0;
}

void Effect::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "Effect";
}

void Effect::xmlAttributes(XMLable::Options&) const {}

void Effect::xmlBody(XMLable::Options& options, int indent) const
{
    XmlText(options).indent(indent) << "<Parameters>\n";
    for (boost::shared_ptr<ParameterInterface> const& parameter : parameters())
        parameter->toXML(options, indent + 1, "");
    XmlText(options).indent(indent) << "</Parameters>\n";
}

void Effect::setParentEffectable(boost::weak_ptr<Effectable> const& parent)
{
    m_parentEffectable = parent;
}

void Effect::setEffectTimeConverter(EffectTimeConverter* converter)
{
    m_effectTimeConverter = converter;
}

}  // namespace tarn
