#pragma once

#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// Takes the project's mixer of one kind away; undo puts the same mixer back with all its tracks.
/// T is VisualMixer or AudioMixer.
/// @throws AddRemoveException on execution when there is none
template <class T>
class TARN_API RemoveMixerCmd : public Command
{
public:
    static boost::shared_ptr<RemoveMixerCmd<T>> create();

    RemoveMixerCmd<T>* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;

private:
    RemoveMixerCmd() = default;

    boost::shared_ptr<T> m_removedMixer;
};

extern template class TARN_API RemoveMixerCmd<VisualMixer>;
extern template class TARN_API RemoveMixerCmd<AudioMixer>;

}  // namespace tarn
