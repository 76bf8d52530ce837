#include "commands/StretchCmd.h"

#include "commands/CommandHandler.h"
#include "commands/RequireObjects.h"
#include "commands/XmlAttributes.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <boost/pointer_cast.hpp>

#include <ostream>

namespace tarn {

StretchCmd::StretchCmd(boost::shared_ptr<Track const> const& track,
                       boost::shared_ptr<Media const> const& media, double scalar)
    : m_track(track), m_media(media), m_requestedScalar(scalar), m_oldScalar(0), m_actualScalar(0)
{}

boost::shared_ptr<StretchCmd> StretchCmd::create(boost::shared_ptr<Track const> const& track,
                                                 boost::shared_ptr<Media const> const& media,
                                                 double scalar)
{
    return boost::shared_ptr<StretchCmd>(new StretchCmd(track, media, scalar));
}

StretchCmd* StretchCmd::clone() const
{
    return new StretchCmd(*this);
}

bool StretchCmd::execute(CommandHandler* handler)
{
    requireObjects(m_media);
    m_oldScalar = m_media->scalar();
    m_actualScalar = handler->stretch(m_track, m_media, m_requestedScalar);
    return true;
}

bool StretchCmd::unexecute(CommandHandler* handler)
{
    handler->stretch(m_track, m_media, m_oldScalar);
    return true;
}

boost::shared_ptr<Command> StretchCmd::combine(boost::shared_ptr<Command> const& next)
{
    auto const later = boost::dynamic_pointer_cast<StretchCmd>(next);
    if (!later || later->m_track != m_track || later->m_media != m_media)
        return groupCommands(shared_from_this(), next);

    // Scalars are absolute, so the later one holds and the older one is what undo restores.
    boost::shared_ptr<StretchCmd> const both = create(m_track, m_media, later->m_requestedScalar);
    both->m_oldScalar = m_oldScalar;
    both->m_actualScalar = later->m_actualScalar;
    return both;
}

void StretchCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "StretchCmd";
}

void StretchCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options)
        .ident("track", m_track)
        .ident("media", m_media)
        .value("requestedScalar", m_requestedScalar)
        .value("oldScalar", m_oldScalar)
        .value("actualScalar", m_actualScalar);
}

}  // namespace tarn
