#include "project/InternalProject.h"

#include "clipbin/SourceBin.h"
#include "datatypes/XmlRepresentation.h"
#include "datatypes/XmlText.h"
#include "project/ReadLockIfAny.h"
#include "timeline/Timeline.h"

namespace tarn {

namespace {

void writeElement(XMLable::Options& options, int indent, char const* name, std::string const& text)
{
    XmlText(options).indent(indent)
        << "<" << name << ">" << xml_representation(text) << "</" << name << ">\n";
}

}  // namespace

void InternalProject::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "Project";
}

void InternalProject::xmlAttributes(XMLable::Options& options) const
{
    ReadLockIfAny lock(m_mutex);
    XmlText(options) << "editRate=\"" << m_editRate.numerator() << '/' << m_editRate.denominator()
                     << "\" version=\"" << m_version << "\"";
}

void InternalProject::xmlBody(XMLable::Options& options, int indent) const
{
    ReadLockIfAny lock(m_mutex);
    writeElement(options, indent, "Author", m_author);
    writeElement(options, indent, "Comment", m_comment);
    writeElement(options, indent, "System", m_system);
    if (m_sourceBin)
        m_sourceBin->toXML(options, indent, "");
    if (m_timeline)
        m_timeline->toXML(options, indent, "");
}

}  // namespace tarn
