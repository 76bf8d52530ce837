#include "commands/CloneInsertMediasCmd.h"

#include "commands/SplittingRippleMoveCmd.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <ostream>

namespace tarn {

CloneInsertMediasCmd::CloneInsertMediasCmd(long long time) : CloneAddMediasCmd(time) {}

boost::shared_ptr<CloneInsertMediasCmd> CloneInsertMediasCmd::create(long long time)
{
    return boost::shared_ptr<CloneInsertMediasCmd>(new CloneInsertMediasCmd(time));
}

CloneInsertMediasCmd* CloneInsertMediasCmd::clone() const
{
    return new CloneInsertMediasCmd(*this);
}

void CloneInsertMediasCmd::executeCommands(CommandHandler const* handler)
{
    requireMappings();
    ConstTrackSet tracks;
    mappedTracks(&tracks);
    boost::shared_ptr<SplittingRippleMoveCmd> const ripple =
        SplittingRippleMoveCmd::create(time(), additionLength());
    for (boost::shared_ptr<Track const> const& track : tracks)
        ripple->addTrack(track);
    MultiCommand::execute(ripple);

    CloneAddMediasCmd::executeCommands(handler);
}

void CloneInsertMediasCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "CloneInsertMediasCmd";
}

}  // namespace tarn
