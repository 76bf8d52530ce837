#include "commands/AddSourceCmd.h"

#include "clipbin/Source.h"
#include "commands/AddTimelinesTracksCmd.h"
#include "commands/LinkCmd.h"
#include "commands/RequireObjects.h"
#include "commands/XmlAttributes.h"
#include "datatypes/Range.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/MediaCollections.h"
#include "timeline/Timeline.h"

#include <iterator>
#include <ostream>

namespace tarn {

AddSourceCmd::AddSourceCmd(boost::shared_ptr<Source const> const& source, long long time)
    : TrackMapCommand(source ? source->timeline() : nullptr, time), m_source(source)
{}

boost::shared_ptr<AddSourceCmd> AddSourceCmd::create(boost::shared_ptr<Source const> const& source,
                                                     long long time, Range<long long> const&)
{
    return boost::shared_ptr<AddSourceCmd>(new AddSourceCmd(source, time));
}

AddSourceCmd* AddSourceCmd::clone() const
{
    return new AddSourceCmd(*this);
}

void AddSourceCmd::executeCommands(CommandHandler const*)
{
    requireObjects(m_source);
    addMappedTracks();
    linkAddedMedias();
}

void AddSourceCmd::linkAddedMedias()
{
    ConstMediaList medias = tracksCommand<AbstractVisualTrack>()->addedMedias();
    ConstMediaList const& audioMedias = tracksCommand<AudioTrack>()->addedMedias();
    medias.insert(medias.end(), audioMedias.begin(), audioMedias.end());
    if (medias.empty())
        return;

    boost::shared_ptr<Media const> const first = medias.front();
    for (auto it = std::next(medias.begin()); it != medias.end(); ++it)
        MultiCommand::execute(LinkCmd::create(first, *it));
}

void AddSourceCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "AddSourceCmd";
}

void AddSourceCmd::xmlAttributes(XMLable::Options& options) const
{
    auto const& visualTracks = *tracksCommand<AbstractVisualTrack>();
    XmlAttributes(options)
        .value("time", visualTracks.time())
        .ident("timeline", visualTracks.timeline());
}

}  // namespace tarn
