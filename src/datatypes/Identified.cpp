#include "datatypes/Identified.h"

#include "parameters/Attribute.h"
#include "project/ReadWriteMutex.h"

#include <utility>

namespace tarn {

Identified::Identified(boost::weak_ptr<ThreadSafe const> const& project, std::string const& text,
                       ReservedIdent attributeIdent)
    : m_identProject(project), m_firstText(text), m_attributeIdent(std::move(attributeIdent))
{}

Identified::Identified(Identified const& other)
    : Identified(other.m_identProject, other.identText())
{}

Identified::~Identified() = default;

boost::shared_ptr<Attribute<std::string>> Identified::identAttribute()
{
    return attribute();
}

boost::shared_ptr<Attribute<std::string> const> Identified::identAttribute() const
{
    return attribute();
}

boost::shared_ptr<Attribute<std::string>> const& Identified::attribute() const
{
    return m_identAttribute.get([this] {
        return boost::shared_ptr<Attribute<std::string>>(
            new Attribute<std::string>(m_firstText, m_identProject, m_attributeIdent));
    });
}

std::string Identified::identText() const
{
    if (m_identAttribute.isMade())
        return attribute()->value();
    boost::shared_ptr<ThreadSafe const> const project(m_identProject);
    ReadWriteMutex::ScopedReadLock lock(project->mutex());
    // Whoever made the attribute meanwhile cannot have written to it before this lock was taken,
    // or the write would have been seen here.
    return m_identAttribute.isMade() ? attribute()->value() : m_firstText;
}

}  // namespace tarn
