#pragma once

#include "commands/Command.h"
#include "datatypes/SaturatedArithmetic.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {

/// What the edits share that shift one thing of one media by an offset. Such an edit is taken back
/// by the opposite offset, and two of a kind on the same media add up.
class TARN_API AtomicEditCmd : public Command
{
public:
    /// Track and media are named by where they lie in memory.
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    /// `offset` is relative, in edit units on the track's clock.
    AtomicEditCmd(boost::shared_ptr<Track const> track, boost::shared_ptr<Media const> media,
                  long long offset);

    boost::shared_ptr<Track const> const& track() const { return m_track; }
    boost::shared_ptr<Media const> const& media() const { return m_media; }
    long long offset() const { return m_offset; }

    /// A new T with the sum of the offsets, or the two as a CommandPair when `next` is not a T on
    /// the same track and media.
    template <class T>
    boost::shared_ptr<Command> combineAtomicEdit(boost::shared_ptr<Command> const& next);

private:
    boost::shared_ptr<Track const> m_track;
    boost::shared_ptr<Media const> m_media;
    long long m_offset;
};

template <class T>
boost::shared_ptr<Command> AtomicEditCmd::combineAtomicEdit(boost::shared_ptr<Command> const& next)
{
    boost::shared_ptr<AtomicEditCmd const> const same = boost::dynamic_pointer_cast<T>(next);
    if (!same || same->m_track != m_track || same->m_media != m_media) {
        return groupCommands(shared_from_this(), next);
    }
    return T::create(m_track, m_media, saturatedSum(m_offset, same->m_offset));
}

}  // namespace tarn
