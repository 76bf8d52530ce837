#include "commands/RippleMoveCmd.h"

#include "commands/MoveCmd.h"
#include "commands/RequireObjects.h"
#include "commands/RippleUtil.h"
#include "commands/StackOrQueue.h"
#include "commands/XmlAttributes.h"
#include "datatypes/FetchAhead.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <ostream>
#include <utility>

namespace tarn {

RippleMoveCmd::RippleMoveCmd(boost::shared_ptr<Track const> const& track,
                             boost::shared_ptr<Media const> const& firstMedia, long long offset)
    : m_track(track), m_firstMedia(firstMedia), m_offset(offset)
{}

boost::shared_ptr<RippleMoveCmd> RippleMoveCmd::create(
    boost::shared_ptr<Track const> const& track, boost::shared_ptr<Media const> const& firstMedia,
    long long offset)
{
    return boost::shared_ptr<RippleMoveCmd>(new RippleMoveCmd(track, firstMedia, offset));
}

RippleMoveCmd* RippleMoveCmd::clone() const
{
    return new RippleMoveCmd(*this);
}

void RippleMoveCmd::executeCommands(CommandHandler const*)
{
    requireObjects(m_track, m_firstMedia);
    if (!m_track->hasMedia(m_firstMedia))
        return;

    StackOrQueue<boost::shared_ptr<Media const>> toMove(m_offset > 0 ? StackOrder : QueueOrder);
    for (boost::shared_ptr<Media const>& media :
         RippleUtil::mediasFrom(m_track, m_firstMedia->trackRange().start))
        toMove.push(std::move(media));

    makeRoomFor(toMove.size());
    while (!toMove.empty()) {
        if (toMove.size() > FetchAhead::k_far)
            toMove.ahead(FetchAhead::k_far)->fetchAhead();
        if (toMove.size() > FetchAhead::k_near)
            toMove.ahead(FetchAhead::k_near)->fetchEntryAhead();
        MultiCommand::execute(MoveCmd::create(m_track, toMove.pop(), m_offset));
    }
}

void RippleMoveCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "RippleMoveCmd";
}

void RippleMoveCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options)
        .ident("track", m_track)
        .ident("media", m_firstMedia)
        .value("offset", m_offset);
}

}  // namespace tarn
