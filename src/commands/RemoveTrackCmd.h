#pragma once

#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <utility>

namespace tarn {

/// Takes a track off its mixer; undo puts it back at its place. Its medias stay on it, linked as
/// they are, and die with the track when this command leaves the history: unlink them first.
///
/// T is AbstractVisualTrack, AudioTrack, or Track for a track of any kind.
/// @throws ValueException<boost::shared_ptr<Track const>> on execution when it is not there
template <class T>
class TARN_API RemoveTrackCmd : public Command
{
public:
    static boost::shared_ptr<RemoveTrackCmd<T>> create(boost::shared_ptr<T const> const& track);

    RemoveTrackCmd<T>* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    void xmlName(XMLable::Options& options) const override;

private:
    explicit RemoveTrackCmd(boost::shared_ptr<T const> const& track);

    boost::shared_ptr<T const> m_track;
    std::pair<boost::shared_ptr<Track>, int> m_removed;
};

extern template class TARN_API RemoveTrackCmd<AbstractVisualTrack>;
extern template class TARN_API RemoveTrackCmd<AudioTrack>;
extern template class TARN_API RemoveTrackCmd<Track>;

}  // namespace tarn
