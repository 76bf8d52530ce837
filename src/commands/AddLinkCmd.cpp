#include "commands/AddLinkCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "timeline/Media.h"

#include <ostream>

namespace tarn {

AddLinkCmd::AddLinkCmd(boost::shared_ptr<Media const> const& media,
                       boost::shared_ptr<Media const> const& other)
    : m_media(media), m_other(other)
{}

boost::shared_ptr<AddLinkCmd> AddLinkCmd::create(boost::shared_ptr<Media const> const& media,
                                                 boost::shared_ptr<Media const> const& other)
{
    return boost::shared_ptr<AddLinkCmd>(new AddLinkCmd(media, other));
}

AddLinkCmd* AddLinkCmd::clone() const
{
    return new AddLinkCmd(*this);
}

bool AddLinkCmd::execute(CommandHandler* handler)
{
    handler->addLink(m_media, m_other);
    return true;
}

bool AddLinkCmd::unexecute(CommandHandler* handler)
{
    handler->removeLink(m_media, m_other);
    return true;
}

void AddLinkCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "AddLinkCmd";
}

void AddLinkCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("media", m_media).ident("mediaToAdd", m_other);
}

}  // namespace tarn
