#include "commands/RemoveMediaCmd.h"

#include "commands/XmlAttributes.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <ostream>

namespace tarn {

template <class T>
RemoveMediaCmd<T>::RemoveMediaCmd(boost::shared_ptr<Track const> const& track,
                                  boost::shared_ptr<T const> const& media)
    : m_track(track), m_media(media)
{}

template <class T>
boost::shared_ptr<RemoveMediaCmd<T>> RemoveMediaCmd<T>::create(
    boost::shared_ptr<Track const> const& track, boost::shared_ptr<T const> const& media)
{
    return boost::shared_ptr<RemoveMediaCmd<T>>(new RemoveMediaCmd<T>(track, media));
}

template <class T>
RemoveMediaCmd<T>* RemoveMediaCmd<T>::clone() const
{
    return new RemoveMediaCmd<T>(*this);
}

template <class T>
bool RemoveMediaCmd<T>::execute(CommandHandler* handler)
{
    m_removed = handler->removeMedia(m_track, m_media);
    return true;
}

template <class T>
bool RemoveMediaCmd<T>::unexecute(CommandHandler* handler)
{
    // A media that was removed keeps the start it had.
    auto it = m_removed->rbegin();
    try {
        for (; it != m_removed->rend(); ++it)
            handler->addMedia(it->second, it->first, it->first->trackRange().start);
    } catch (...) {
        // All or none: a group of which some lie on a track could neither be edited nor removed.
        while (it != m_removed->rbegin()) {
            --it;
            handler->removeMedia(it->second, it->first, it->first->trackRange().start);
        }
        throw;
    }
    return true;
}

template <class T>
void RemoveMediaCmd<T>::xmlName(XMLable::Options& options) const
{
    *options.stream << "RemoveMediaCmd";
}

template <class T>
void RemoveMediaCmd<T>::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).ident("track", m_track).ident("mediaToRemove", m_media);
}

template class RemoveMediaCmd<Media>;

}  // namespace tarn
