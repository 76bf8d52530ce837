#include "commands/AddMediaCmd.h"

#include "commands/CommandHandler.h"
#include "commands/OnePiece.h"
#include "commands/RequireObjects.h"
#include "commands/XmlAttributes.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <ostream>
#include <utility>

namespace tarn {

AddMediaCmd::AddMediaCmd(boost::shared_ptr<Track const> track, boost::shared_ptr<Media const> media,
                         long long time)
    : m_track(std::move(track)), m_media(std::move(media)), m_time(time), m_oldStart(0)
{}

boost::shared_ptr<AddMediaCmd> AddMediaCmd::create(boost::shared_ptr<Track const> track,
                                                   boost::shared_ptr<Media const> media,
                                                   long long time)
{
    return OnePiece<AddMediaCmd>::make(std::move(track), std::move(media), time);
}

AddMediaCmd* AddMediaCmd::clone() const
{
    return new AddMediaCmd(*this);
}

bool AddMediaCmd::execute(CommandHandler* handler)
{
    requireObjects(m_media);
    m_oldStart = m_media->timeRange().start;
    handler->addMedia(m_track, m_media, m_time);
    return true;
}

bool AddMediaCmd::unexecute(CommandHandler* handler)
{
    handler->removeMedia(m_track, m_media, m_oldStart);
    return true;
}

void AddMediaCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "AddMediaCmd";
}

void AddMediaCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("track", m_track).ident("media", m_media).value("time", m_time);
}

}  // namespace tarn
