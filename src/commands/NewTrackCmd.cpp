#include "commands/NewTrackCmd.h"

#include "commands/CommandHandler.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <boost/pointer_cast.hpp>

#include <ostream>

namespace tarn {

template <class M, class T>
NewTrackCmd<M, T>::NewTrackCmd(boost::shared_ptr<M const> const& mixer, int index)
    : m_removed(boost::shared_ptr<Track>(), -1), m_index(index), m_mixer(mixer)
{}

template <class M, class T>
boost::shared_ptr<NewTrackCmd<M, T>> NewTrackCmd<M, T>::create(
    boost::shared_ptr<M const> const& mixer, int index)
{
    return boost::shared_ptr<NewTrackCmd<M, T>>(new NewTrackCmd<M, T>(mixer, index));
}

template <class M, class T>
NewTrackCmd<M, T>* NewTrackCmd<M, T>::clone() const
{
    return new NewTrackCmd<M, T>(*this);
}

template <class M, class T>
bool NewTrackCmd<M, T>::execute(CommandHandler* handler)
{
    m_track = handler->newTrack(m_mixer, m_index);
    return true;
}

template <class M, class T>
bool NewTrackCmd<M, T>::unexecute(CommandHandler* handler)
{
    m_removed = handler->removeTrack(m_mixer, m_track);
    return true;
}

template <class M, class T>
bool NewTrackCmd<M, T>::reexecute(CommandHandler* handler)
{
    handler->addTrack(m_mixer, m_removed.first, m_removed.second);
    return true;
}

template <class M, class T>
boost::shared_ptr<T> NewTrackCmd<M, T>::track() const
{
    return boost::dynamic_pointer_cast<T>(m_track);
}

template <class M, class T>
void NewTrackCmd<M, T>::xmlName(XMLable::Options& options) const
{
    *options.stream << "NewTrackCmd";
}

template class NewTrackCmd<Mixer, Track>;
template class NewTrackCmd<VisualMixer, VisualTrack>;
template class NewTrackCmd<AudioMixer, AudioTrack>;

}  // namespace tarn
