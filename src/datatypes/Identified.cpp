#include "datatypes/Identified.h"

#include "parameters/Attribute.h"
#include "project/ReadWriteMutex.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>
#include <boost/throw_exception.hpp>

namespace tarn {

Identified::Identified(boost::weak_ptr<ThreadSafe const> const& project, std::string const& text,
                       ReservedIdent attributeIdent)
    : m_identProject(project), m_firstText(text), m_identAttribute(&attributeIdent)
{}

Identified::Identified(Identified const& other)
    : m_identProject(other.m_identProject), m_firstText(other.textToCopy())
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
    return m_identAttribute.get([this](ReservedIdent* ident) {
        return boost::shared_ptr<Attribute<std::string>>(
            new Attribute<std::string>(m_firstText, m_identProject, *ident));
    });
}

std::string Identified::identText() const
{
    if (isIdentAttributeMade())
        return attribute()->value();
    boost::shared_ptr<ThreadSafe const> const project(m_identProject);
    ReadWriteMutex::ScopedReadLock lock(project->mutex());
    // Whoever made the attribute meanwhile cannot have written to it before this lock was taken,
    // or the write would have been seen here.
    return isIdentAttributeMade() ? attribute()->value() : m_firstText;
}

/// While there is no attribute the text is fixed, and needs no lock to be read: what the attribute
/// will say had not been said yet when it was asked for.
std::string Identified::textToCopy() const
{
    if (isIdentAttributeMade())
        return attribute()->value();
    if (m_identProject.expired())
        boost::throw_exception(boost::bad_weak_ptr());
    return m_firstText;
}

void Identified::xmlOfIdent(XMLable::Options& options, int indent) const
{
    std::string const label = "name=\"ident\"";
    LateObject<Attribute<std::string>, 1>::Idents ident;
    if (m_identAttribute.waitingIdents(ident))
        Attribute<std::string>::xmlBeforeFirstUse(options, indent, label, m_firstText, ident[0]);
    else
        attribute()->toXML(options, indent, label);
}

}  // namespace tarn
