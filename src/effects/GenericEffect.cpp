#include "effects/GenericEffect.h"

#include "datatypes/XmlRepresentation.h"
#include "datatypes/XmlText.h"
#include "effects/EffectLibrary.h"
#include "effects/ParamGenerator.h"
#include "parameters/MTVector.h"
#include "parameters/ParameterInterface.h"
#include "project/ReadWriteMutex.h"

#include <boost/make_shared.hpp>

namespace tarn {

GenericEffect::GenericEffect(std::string const& name,
                             boost::weak_ptr<ThreadSafe const> const& project)
    : Effect(name, project)
{
    ParamGenerator::genParameters(EffectLibrary::instance()->effectDef(name), project,
                                  m_parameterMap);
}

GenericEffect::GenericEffect(GenericEffect const& other) : XMLIdentified(other), Effect(other)
{
    for (ParameterMap::value_type const& entry : other.m_parameterMap)
        m_parameterMap[entry.first].reset(entry.second ? entry.second->clone() : nullptr);
}

GenericEffect* GenericEffect::clone() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return new GenericEffect(*this);
}

boost::shared_ptr<ParameterInterface> GenericEffect::parameterWithName(std::string const& name)
{
    ParameterMap::iterator const found = m_parameterMap.find(name);
    return found == m_parameterMap.end() ? boost::shared_ptr<ParameterInterface>() : found->second;
}

boost::shared_ptr<ParameterInterface const> GenericEffect::parameterWithName(
    std::string const& name) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    ParameterMap::const_iterator const found = m_parameterMap.find(name);
    return found == m_parameterMap.end() ? boost::shared_ptr<ParameterInterface>() : found->second;
}

GenericEffect::ParameterMap::iterator GenericEffect::parameterBegin()
{
    return m_parameterMap.begin();
}

GenericEffect::ParameterMap::iterator GenericEffect::parameterEnd()
{
    return m_parameterMap.end();
}

ConstIterator<GenericEffect::ParameterMap> GenericEffect::parameterBegin() const
{
    boost::shared_ptr<SharedReadLock const> const lock = SharedReadLock::acquire(projectMutex());
    return ConstIterator<ParameterMap>(m_parameterMap.begin(), lock);
}

ConstIterator<GenericEffect::ParameterMap> GenericEffect::parameterEnd() const
{
    boost::shared_ptr<SharedReadLock const> const lock = SharedReadLock::acquire(projectMutex());
    return ConstIterator<ParameterMap>(m_parameterMap.end(), lock);
}

int GenericEffect::numParameters() const
{
    return static_cast<int>(m_parameterMap.size());
}

std::list<boost::shared_ptr<ParameterInterface>> GenericEffect::parameters() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    std::list<boost::shared_ptr<ParameterInterface>> result;
    for (ParameterMap::value_type const& entry : m_parameterMap) {
        if (entry.second)
            result.push_back(entry.second);
    }
    return result;
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>>
GenericEffect::parameterVector() const
{
    auto const result =
        boost::make_shared<MTVector<boost::shared_ptr<ParameterInterface const>>>(projectMutex());
    for (ParameterMap::value_type const& entry : m_parameterMap) {
        if (entry.second)
            result->push_back(entry.second);
    }
    return result;
}

void GenericEffect::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "GenericEffect";
}

void GenericEffect::xmlAttributes(XMLable::Options& options) const
{
    // Kept so: blanks around the equals sign, unlike everywhere else.
    XmlText(options) << "name = \"" << xml_representation(name()) << "\"";
}

void GenericEffect::xmlBody(XMLable::Options& options, int indent) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    XmlText(options).indent(indent) << "<Parameters>\n";
    for (ParameterMap::value_type const& entry : m_parameterMap) {
        if (entry.second)
            entry.second->toXML(options, indent + 1, " name=\"" + entry.first + "\"");
    }
    XmlText(options).indent(indent) << "</Parameters>\n";
}

}  // namespace tarn
