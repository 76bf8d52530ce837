#include "commands/UnlinkCmd.h"

#include "commands/GroupUtil.h"
#include "commands/RemoveLinkCmd.h"
#include "commands/RequireObjects.h"
#include "commands/XmlAttributes.h"
#include "timeline/Media.h"

#include <ostream>

namespace tarn {

UnlinkCmd::UnlinkCmd(boost::shared_ptr<Media const> const& media) : m_media(media) {}

boost::shared_ptr<UnlinkCmd> UnlinkCmd::create(boost::shared_ptr<Media const> const& media)
{
    return boost::shared_ptr<UnlinkCmd>(new UnlinkCmd(media));
}

UnlinkCmd* UnlinkCmd::clone() const
{
    return new UnlinkCmd(*this);
}

void UnlinkCmd::executeCommands(CommandHandler const*)
{
    requireObjects(m_media);
    for (boost::shared_ptr<Media const> const& entry : GroupUtil::linkedMedias(m_media)) {
        MultiCommand::execute(RemoveLinkCmd::create(m_media, entry));
        MultiCommand::execute(RemoveLinkCmd::create(entry, m_media));
    }
}

void UnlinkCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "UnlinkCmd";
}

void UnlinkCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("media", m_media);
}

}  // namespace tarn
