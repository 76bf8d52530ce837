#pragma once

#include "commands/Command.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <utility>

namespace tarn {

/// What the commands share that make a track of a kind of their own on the project's mixer of that
/// kind. The mixer is looked up at each run; redo puts the same track back where it was.
class TARN_API NewTypedTrackCmd : public Command
{
public:
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

protected:
    explicit NewTypedTrackCmd(int index);

    virtual boost::shared_ptr<Track> makeTrack(CommandHandler* handler, int index) const = 0;
    virtual boost::shared_ptr<Mixer const> mixer(CommandHandler const* handler) const = 0;

    boost::shared_ptr<Track> const& newTrack() const { return m_track; }
    /// Writes the track, and the track and index that an undo took out, under these names.
    void writeAttributes(XMLable::Options& options, char const* track, char const* removedTrack,
                         char const* removedIndex) const;

private:
    boost::shared_ptr<Track> m_track;
    std::pair<boost::shared_ptr<Track>, int> m_removed;
    int m_index;
};

}  // namespace tarn
