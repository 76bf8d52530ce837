#include "commands/NewAudioTrackCmd.h"

#include "commands/CommandHandler.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"

#include <boost/pointer_cast.hpp>

#include <ostream>

namespace tarn {

NewAudioTrackCmd::NewAudioTrackCmd(int index) : NewTypedTrackCmd(index) {}

boost::shared_ptr<NewAudioTrackCmd> NewAudioTrackCmd::create(int index)
{
    return boost::shared_ptr<NewAudioTrackCmd>(new NewAudioTrackCmd(index));
}

NewAudioTrackCmd* NewAudioTrackCmd::clone() const
{
    return new NewAudioTrackCmd(*this);
}

boost::shared_ptr<AudioTrack> NewAudioTrackCmd::track() const
{
    return boost::dynamic_pointer_cast<AudioTrack>(newTrack());
}

boost::shared_ptr<Track> NewAudioTrackCmd::makeTrack(CommandHandler* handler, int index) const
{
    return handler->newAudioTrack(index);
}

boost::shared_ptr<Mixer const> NewAudioTrackCmd::mixer(CommandHandler const* handler) const
{
    return handler->audioMixer();
}

void NewAudioTrackCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "NewAudioTrackCmd";
}

void NewAudioTrackCmd::xmlAttributes(XMLable::Options& options) const
{
    writeAttributes(options, "audioTrack", "removedATrack", "removedATrackIndex");
}

}  // namespace tarn
