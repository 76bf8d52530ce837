#include "commands/NewVisualTrackCmd.h"

#include "commands/CommandHandler.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <boost/pointer_cast.hpp>

#include <ostream>

namespace tarn {

NewVisualTrackCmd::NewVisualTrackCmd(int index) : NewTypedTrackCmd(index) {}

boost::shared_ptr<NewVisualTrackCmd> NewVisualTrackCmd::create(int index)
{
    return boost::shared_ptr<NewVisualTrackCmd>(new NewVisualTrackCmd(index));
}

NewVisualTrackCmd* NewVisualTrackCmd::clone() const
{
    return new NewVisualTrackCmd(*this);
}

boost::shared_ptr<VisualTrack> NewVisualTrackCmd::track() const
{
    return boost::dynamic_pointer_cast<VisualTrack>(newTrack());
}

boost::shared_ptr<Track> NewVisualTrackCmd::makeTrack(CommandHandler* handler, int index) const
{
    return handler->newVisualTrack(index);
}

boost::shared_ptr<Mixer const> NewVisualTrackCmd::mixer(CommandHandler const* handler) const
{
    return handler->visualMixer();
}

void NewVisualTrackCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "NewVisualTrackCmd";
}

void NewVisualTrackCmd::xmlAttributes(XMLable::Options& options) const
{
    writeAttributes(options, "visualTrack", "removedVTrack", "removedVTrackIndex");
}

}  // namespace tarn
