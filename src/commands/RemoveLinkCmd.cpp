#include "commands/RemoveLinkCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "timeline/Media.h"

#include <ostream>

namespace tarn {

RemoveLinkCmd::RemoveLinkCmd(boost::shared_ptr<Media const> const& media,
                             boost::shared_ptr<Media const> const& other)
    : m_media(media), m_other(other)
{}

boost::shared_ptr<RemoveLinkCmd> RemoveLinkCmd::create(boost::shared_ptr<Media const> const& media,
                                                       boost::shared_ptr<Media const> const& other)
{
    return boost::shared_ptr<RemoveLinkCmd>(new RemoveLinkCmd(media, other));
}

RemoveLinkCmd* RemoveLinkCmd::clone() const
{
    return new RemoveLinkCmd(*this);
}

bool RemoveLinkCmd::execute(CommandHandler* handler)
{
    handler->removeLink(m_media, m_other);
    return true;
}

bool RemoveLinkCmd::unexecute(CommandHandler* handler)
{
    handler->addLink(m_media, m_other);
    return true;
}

void RemoveLinkCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "RemoveLinkCmd";
}

void RemoveLinkCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("media", m_media).ident("mediaToRemove", m_other);
}

}  // namespace tarn
