#include "commands/NewImageTrackCmd.h"

#include "commands/CommandHandler.h"
#include "timeline/ImageTrack.h"
#include "timeline/VisualMixer.h"

#include <boost/pointer_cast.hpp>

#include <ostream>

namespace tarn {

NewImageTrackCmd::NewImageTrackCmd(int index) : NewTypedTrackCmd(index) {}

boost::shared_ptr<NewImageTrackCmd> NewImageTrackCmd::create(int index)
{
    return boost::shared_ptr<NewImageTrackCmd>(new NewImageTrackCmd(index));
}

NewImageTrackCmd* NewImageTrackCmd::clone() const
{
    return new NewImageTrackCmd(*this);
}

boost::shared_ptr<ImageTrack> NewImageTrackCmd::track() const
{
    return boost::dynamic_pointer_cast<ImageTrack>(newTrack());
}

boost::shared_ptr<Track> NewImageTrackCmd::makeTrack(CommandHandler* handler, int index) const
{
    return handler->newImageTrack(index);
}

boost::shared_ptr<Mixer const> NewImageTrackCmd::mixer(CommandHandler const* handler) const
{
    return handler->visualMixer();
}

void NewImageTrackCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "NewImageTrackCmd";
}

void NewImageTrackCmd::xmlAttributes(XMLable::Options& options) const
{
    writeAttributes(options, "imageTrack", "removedITrack", "removedITrackIndex");
}

}  // namespace tarn
