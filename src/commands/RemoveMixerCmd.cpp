#include "commands/RemoveMixerCmd.h"

#include "commands/CommandHandler.h"
#include "timeline/AudioMixer.h"
#include "timeline/VisualMixer.h"

#include <ostream>

namespace tarn {

namespace {

/// The primitives for the slot that holds a mixer of one kind.
template <class T>
struct MixerSlot;

template <>
struct MixerSlot<VisualMixer>
{
    static boost::shared_ptr<VisualMixer> empty(CommandHandler* handler)
    {
        return handler->removeVisualMixer();
    }
    static void fill(CommandHandler* handler, boost::shared_ptr<VisualMixer> const& mixer)
    {
        handler->newVisualMixer(mixer);
    }
};

template <>
struct MixerSlot<AudioMixer>
{
    static boost::shared_ptr<AudioMixer> empty(CommandHandler* handler)
    {
        return handler->removeAudioMixer();
    }
    static void fill(CommandHandler* handler, boost::shared_ptr<AudioMixer> const& mixer)
    {
        handler->newAudioMixer(mixer);
    }
};

}  // namespace

template <class T>
boost::shared_ptr<RemoveMixerCmd<T>> RemoveMixerCmd<T>::create()
{
    return boost::shared_ptr<RemoveMixerCmd<T>>(new RemoveMixerCmd<T>());
}

template <class T>
RemoveMixerCmd<T>* RemoveMixerCmd<T>::clone() const
{
    return new RemoveMixerCmd<T>(*this);
}

template <class T>
bool RemoveMixerCmd<T>::execute(CommandHandler* handler)
{
    m_removedMixer = MixerSlot<T>::empty(handler);
    return true;
}

template <class T>
bool RemoveMixerCmd<T>::unexecute(CommandHandler* handler)
{
    MixerSlot<T>::fill(handler, m_removedMixer);
    return true;
}

template <class T>
void RemoveMixerCmd<T>::xmlName(XMLable::Options& options) const
{
    *options.stream << "RemoveMixerCmd";
}

template class RemoveMixerCmd<VisualMixer>;
template class RemoveMixerCmd<AudioMixer>;

}  // namespace tarn
