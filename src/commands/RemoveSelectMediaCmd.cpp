#include "commands/RemoveSelectMediaCmd.h"

#include "commands/RemoveMediaCmd.h"
#include "commands/RequireObjects.h"
#include "commands/XmlAttributes.h"
#include "datatypes/LinkUtil.h"
#include "timeline/Media.h"
#include "timeline/MediaCollections.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"

#include <ostream>

namespace tarn {

RemoveSelectMediaCmd::RemoveSelectMediaCmd(
    boost::shared_ptr<Timeline const> const& timeline,
    std::vector<boost::shared_ptr<Media const>> const& medias)
    : m_timeline(timeline), m_medias(medias)
{}

boost::shared_ptr<RemoveSelectMediaCmd> RemoveSelectMediaCmd::create(
    boost::shared_ptr<Timeline const> const& timeline,
    std::vector<boost::shared_ptr<Media const>> const& medias)
{
    return boost::shared_ptr<RemoveSelectMediaCmd>(new RemoveSelectMediaCmd(timeline, medias));
}

RemoveSelectMediaCmd* RemoveSelectMediaCmd::clone() const
{
    return new RemoveSelectMediaCmd(*this);
}

void RemoveSelectMediaCmd::executeCommands(CommandHandler const*)
{
    requireObjects(m_timeline);
    requireEachObject(m_medias);
    ConstMediaSet oneOfEachGroup;
    LinkUtil::minimumSetOfLinkedMedia(ConstMediaSet(m_medias.begin(), m_medias.end()),
                                      &oneOfEachGroup);
    for (boost::shared_ptr<Media const> const& media : oneOfEachGroup) {
        // A media without a track is refused by the removal itself.
        boost::shared_ptr<Track const> const track = media->parentTrack().lock();
        MultiCommand::execute(RemoveMediaCmd<Media>::create(track, media));
    }
}

void RemoveSelectMediaCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "RemoveSelectMediaCmd";
}

void RemoveSelectMediaCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("target", m_timeline);
}

}  // namespace tarn
