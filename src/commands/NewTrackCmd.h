#pragma once

#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <utility>

namespace tarn {

/// Makes a track of the kind that the given mixer holds; redo puts the same track back.
///
/// For (Mixer, Track), (VisualMixer, VisualTrack) and (AudioMixer, AudioTrack).
/// @throws TarnMediaLibException on execution for a mixer of another project
/// @throws ValueException<int> on execution for an index that the mixer does not have
template <class M, class T>
class TARN_API NewTrackCmd : public Command
{
public:
    /// -1 appends.
    static boost::shared_ptr<NewTrackCmd<M, T>> create(boost::shared_ptr<M const> const& mixer,
                                                       int index);

    NewTrackCmd<M, T>* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

    /// Empty until executed.
    boost::shared_ptr<T> track() const;

    void xmlName(XMLable::Options& options) const override;

private:
    NewTrackCmd(boost::shared_ptr<M const> const& mixer, int index);

    boost::shared_ptr<Track> m_track;
    std::pair<boost::shared_ptr<Track>, int> m_removed;
    int m_index;
    boost::shared_ptr<M const> m_mixer;
};

extern template class TARN_API NewTrackCmd<Mixer, Track>;
extern template class TARN_API NewTrackCmd<VisualMixer, VisualTrack>;
extern template class TARN_API NewTrackCmd<AudioMixer, AudioTrack>;

}  // namespace tarn
