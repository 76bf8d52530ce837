#include "datatypes/Identified.h"

#include "parameters/Attribute.h"

namespace tarn {

Identified::Identified(boost::weak_ptr<ThreadSafe const> const& project)
    : m_identAttribute(new Attribute<std::string>(std::string(), project))
{}

Identified::Identified(Identified const& other) : m_identAttribute(other.m_identAttribute->clone())
{}

Identified::~Identified() = default;

boost::shared_ptr<Attribute<std::string>> Identified::identAttribute()
{
    return m_identAttribute;
}

boost::shared_ptr<Attribute<std::string> const> Identified::identAttribute() const
{
    return m_identAttribute;
}

}  // namespace tarn
