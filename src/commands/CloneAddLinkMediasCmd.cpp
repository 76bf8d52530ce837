#include "commands/CloneAddLinkMediasCmd.h"

#include "commands/GroupUtil.h"
#include "commands/LinkCmd.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <ostream>

namespace tarn {

CloneAddLinkMediasCmd::CloneAddLinkMediasCmd(long long time) : CloneAddMediasCmd(time) {}

boost::shared_ptr<CloneAddLinkMediasCmd> CloneAddLinkMediasCmd::create(long long time)
{
    return boost::shared_ptr<CloneAddLinkMediasCmd>(new CloneAddLinkMediasCmd(time));
}

CloneAddLinkMediasCmd* CloneAddLinkMediasCmd::clone() const
{
    return new CloneAddLinkMediasCmd(*this);
}

void CloneAddLinkMediasCmd::executeCommands(CommandHandler const* handler)
{
    CloneAddMediasCmd::executeCommands(handler);
    for (auto const& entry : cloneMap())
        linkClone(entry.first, entry.second);
}

void CloneAddLinkMediasCmd::linkClone(boost::shared_ptr<Media const> const& original,
                                      boost::shared_ptr<Media> const& clone)
{
    for (boost::shared_ptr<Media const> const& linked : GroupUtil::linkedMedias(original)) {
        auto const found = cloneMap().find(linked);
        // Linking two clones joins their groups, so later pairs may be linked already.
        if (found != cloneMap().end() && !clone->isLinkedWith(found->second))
            MultiCommand::execute(LinkCmd::create(clone, found->second));
    }
}

void CloneAddLinkMediasCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "CloneAddLinkMediasCmd";
}

}  // namespace tarn
