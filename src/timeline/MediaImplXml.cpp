#include "timeline/MediaImpl.h"

#include "datatypes/XmlText.h"
#include "exceptions/DanglingWeakPtrException.h"

namespace tarn {

void MediaImpl::xmlOfParameters(XMLable::Options&, int) const {}

void MediaImpl::xmlOfAttributes(XMLable::Options& options, int indent) const
{
    xmlOfIdentAttribute(options, indent);
}

void MediaImpl::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "MediaImpl";
}

void MediaImpl::xmlAttributes(XMLable::Options& options) const
{
    MediaTiming const now = timing();
    XmlText(options) << "start=\"" << now.trackRange.start << "\" duration=\""
                     << now.trackRange.duration << "\" scalar=\"" << now.scalar
                     << "\" mediaStart=\"" << now.mediaRange.start << "\" mediaDuration=\""
                     << now.mediaRange.duration << '"';
}

void MediaImpl::xmlBody(XMLable::Options& options, int indent) const
{
    xmlOfParametersEffectsAttributes(options, indent);
    printLinksXML(options, indent);
    printEdgeModsXML(options, indent);
}

void MediaImpl::printLinksXML(XMLable::Options& options, int indent) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    if (m_place.links.empty())
        return;
    XmlText out(options);
    out.indent(indent) << "<LinkedMedia>\n";
    for (boost::weak_ptr<Media> const& link : m_place.links) {
        boost::shared_ptr<Media const> const media = link.lock();
        if (!media)
            throw DanglingWeakPtrException<Media const>();
        out.indent(indent + 1) << "<MediaLink link=\"" << media->xmlIdent() << "\"/>\n";
    }
    out.indent(indent) << "</LinkedMedia>\n";
}

}  // namespace tarn
