#include "commands/AtomicEditCmd.h"

#include <ostream>

namespace tarn {

AtomicEditCmd::AtomicEditCmd(boost::shared_ptr<Track const> const& track,
                             boost::shared_ptr<Media const> const& media, long long offset)
    : m_track(track), m_media(media), m_offset(offset)
{}

void AtomicEditCmd::xmlAttributes(XMLable::Options& options) const
{
    *options.stream << "track=\"" << static_cast<void const*>(m_track.get()) << "\" media=\""
                    << static_cast<void const*>(m_media.get()) << "\" offset=\"" << m_offset << '"';
}

}  // namespace tarn
