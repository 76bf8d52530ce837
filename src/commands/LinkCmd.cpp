#include "commands/LinkCmd.h"

#include "commands/AddLinkCmd.h"
#include "commands/GroupUtil.h"
#include "commands/RequireObjects.h"
#include "commands/XmlAttributes.h"
#include "timeline/Media.h"

#include <ostream>

namespace tarn {

LinkCmd::LinkCmd(boost::shared_ptr<Media const> const& media1,
                 boost::shared_ptr<Media const> const& media2)
    : m_media1(media1), m_media2(media2)
{}

boost::shared_ptr<LinkCmd> LinkCmd::create(boost::shared_ptr<Media const> const& media1,
                                           boost::shared_ptr<Media const> const& media2)
{
    return boost::shared_ptr<LinkCmd>(new LinkCmd(media1, media2));
}

LinkCmd* LinkCmd::clone() const
{
    return new LinkCmd(*this);
}

void LinkCmd::executeCommands(CommandHandler const*)
{
    requireObjects(m_media1, m_media2);
    ConstMediaVector const group1 = GroupUtil::group(m_media1);
    ConstMediaVector const group2 = GroupUtil::group(m_media2);
    for (boost::shared_ptr<Media const> const& a : group1) {
        for (boost::shared_ptr<Media const> const& b : group2) {
            MultiCommand::execute(AddLinkCmd::create(a, b));
            MultiCommand::execute(AddLinkCmd::create(b, a));
        }
    }
}

void LinkCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "LinkCmd";
}

void LinkCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("media1", m_media1).ident("media2", m_media2);
}

}  // namespace tarn
