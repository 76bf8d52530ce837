#include "commands/AtomicEditCmd.h"

#include <ostream>
#include <utility>

namespace tarn {

AtomicEditCmd::AtomicEditCmd(boost::shared_ptr<Track const> track,
                             boost::shared_ptr<Media const> media, long long offset)
    : m_track(std::move(track)), m_media(std::move(media)), m_offset(offset)
{}

void AtomicEditCmd::xmlAttributes(XMLable::Options& options) const
{
    *options.stream << "track=\"" << static_cast<void const*>(m_track.get()) << "\" media=\""
                    << static_cast<void const*>(m_media.get()) << "\" offset=\"" << m_offset << '"';
}

}  // namespace tarn
