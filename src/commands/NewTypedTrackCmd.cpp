#include "commands/NewTypedTrackCmd.h"

#include "commands/CommandHandler.h"
#include "commands/XmlAttributes.h"
#include "timeline/Mixer.h"
#include "timeline/Track.h"

namespace tarn {

NewTypedTrackCmd::NewTypedTrackCmd(int index)
    : m_removed(boost::shared_ptr<Track>(), -1), m_index(index)
{}

bool NewTypedTrackCmd::execute(CommandHandler* handler)
{
    m_track = makeTrack(handler, m_index);
    return true;
}

bool NewTypedTrackCmd::unexecute(CommandHandler* handler)
{
    m_removed = handler->removeTrack(mixer(handler), m_track);
    return true;
}

bool NewTypedTrackCmd::reexecute(CommandHandler* handler)
{
    handler->addTrack(mixer(handler), m_removed.first, m_removed.second);
    return true;
}

void NewTypedTrackCmd::writeAttributes(XMLable::Options& options, char const* track,
                                       char const* removedTrack, char const* removedIndex) const
{
    XmlAttributes(options)
        .address(track, m_track)
        .address(removedTrack, m_removed.first)
        .value(removedIndex, m_removed.second);
}

}  // namespace tarn
