#include "commands/RemoveTrackCmd.h"

#include "commands/CommandHandler.h"
#include "commands/RequireObjects.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/ConstTrackDispatcher.h"
#include "timeline/ImageTrack.h"
#include "timeline/TrackDispatcher.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <ostream>

namespace tarn {

namespace {

using RemovedTrack = std::pair<boost::shared_ptr<Track>, int>;

/// Takes a track off the mixer of its kind.
class Remover : public ConstTrackDispatcher
{
public:
    Remover(CommandHandler* handler, RemovedTrack* removed) : m_handler(handler), m_removed(removed)
    {}

    void dispatchTrack(boost::shared_ptr<VisualTrack const> const& track) override
    {
        *m_removed = m_handler->removeTrack(m_handler->visualMixer(), track);
    }
    void dispatchTrack(boost::shared_ptr<AudioTrack const> const& track) override
    {
        *m_removed = m_handler->removeTrack(m_handler->audioMixer(), track);
    }
    void dispatchTrack(boost::shared_ptr<ImageTrack const> const& track) override
    {
        *m_removed = m_handler->removeTrack(m_handler->visualMixer(), track);
    }

private:
    CommandHandler* m_handler;
    RemovedTrack* m_removed;
};

/// Puts a track back on the mixer of its kind, at the index it had.
class Unremover : public TrackDispatcher
{
public:
    Unremover(CommandHandler* handler, RemovedTrack* removed)
        : m_handler(handler), m_removed(removed)
    {}

    void dispatchTrack(boost::shared_ptr<VisualTrack> const& track) override
    {
        m_handler->addTrack(m_handler->visualMixer(), track, m_removed->second);
    }
    void dispatchTrack(boost::shared_ptr<AudioTrack> const& track) override
    {
        m_handler->addTrack(m_handler->audioMixer(), track, m_removed->second);
    }
    void dispatchTrack(boost::shared_ptr<ImageTrack> const& track) override
    {
        m_handler->addTrack(m_handler->visualMixer(), track, m_removed->second);
    }

private:
    CommandHandler* m_handler;
    RemovedTrack* m_removed;
};

// Which mixer a track of a known kind is on; a Track tells it by dispatching itself.

void remove(CommandHandler* handler, boost::shared_ptr<AbstractVisualTrack const> const& track,
            RemovedTrack* removed)
{
    *removed = handler->removeTrack(handler->visualMixer(), track);
}

void remove(CommandHandler* handler, boost::shared_ptr<AudioTrack const> const& track,
            RemovedTrack* removed)
{
    *removed = handler->removeTrack(handler->audioMixer(), track);
}

void remove(CommandHandler* handler, boost::shared_ptr<Track const> const& track,
            RemovedTrack* removed)
{
    Remover remover(handler, removed);
    track->receiveDispatcher(&remover);
}

void unremove(CommandHandler* handler, AbstractVisualTrack const*, RemovedTrack* removed)
{
    handler->addTrack(handler->visualMixer(), removed->first, removed->second);
}

void unremove(CommandHandler* handler, AudioTrack const*, RemovedTrack* removed)
{
    handler->addTrack(handler->audioMixer(), removed->first, removed->second);
}

void unremove(CommandHandler* handler, Track const*, RemovedTrack* removed)
{
    Unremover unremover(handler, removed);
    removed->first->receiveDispatcher(&unremover);
}

}  // namespace

template <class T>
RemoveTrackCmd<T>::RemoveTrackCmd(boost::shared_ptr<T const> const& track)
    : m_track(track), m_removed(boost::shared_ptr<Track>(), -1)
{}

template <class T>
boost::shared_ptr<RemoveTrackCmd<T>> RemoveTrackCmd<T>::create(
    boost::shared_ptr<T const> const& track)
{
    return boost::shared_ptr<RemoveTrackCmd<T>>(new RemoveTrackCmd<T>(track));
}

template <class T>
RemoveTrackCmd<T>* RemoveTrackCmd<T>::clone() const
{
    return new RemoveTrackCmd<T>(*this);
}

template <class T>
bool RemoveTrackCmd<T>::execute(CommandHandler* handler)
{
    requireObjects(m_track);
    remove(handler, m_track, &m_removed);
    return true;
}

template <class T>
bool RemoveTrackCmd<T>::unexecute(CommandHandler* handler)
{
    unremove(handler, m_track.get(), &m_removed);
    return true;
}

template <class T>
void RemoveTrackCmd<T>::xmlName(XMLable::Options& options) const
{
    *options.stream << "RemoveTrackCmd";
}

template class RemoveTrackCmd<AbstractVisualTrack>;
template class RemoveTrackCmd<AudioTrack>;
template class RemoveTrackCmd<Track>;

}  // namespace tarn
