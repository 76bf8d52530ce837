#pragma once

#include "commands/MultiCommand.h"
#include "timeline/MediaCollections.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <set>

namespace tarn {

///     before   A1: .bb...... / V1: aa.......
///     after    A1: .bb....cc / V1: aa....dd.      a to V1 and b to A1 at 60
///
/// Puts clones of medias from anywhere on the tracks they were mapped to. The earliest lands on the
/// command's time, and the others keep their distance from it. The clones are not linked.
/// @throws what AddMediaCmd throws; then nothing was added
class TARN_API CloneAddMediasCmd : public MultiCommand
{
public:
    /// Edit units on the clock of the tracks mapped to.
    static boost::shared_ptr<CloneAddMediasCmd> create(long long time);

    CloneAddMediasCmd* clone() const override;

    /// Mapping a media to a second track gives a second clone.
    virtual void addMapping(boost::shared_ptr<Track const> const& track,
                            boost::shared_ptr<Media const> const& media);

    /// From each original to its (first) clone; empty until executed.
    MediaCloneMap const& cloneMap() const { return m_cloneMap; }
    MediaList clones() const;
    long long time() const { return m_time; }

    /// How far the mapped medias, where they stand now, reach past the command's time; at least 0.
    /// Kept so: their present ends count, not their distance from the earliest.
    long long additionLength() const;

    /// The first track in map order; empty for a media that is not mapped.
    boost::shared_ptr<Track const> mappedTrack(boost::shared_ptr<Media const> const& media) const;
    /// Adds every track mapped to.
    void mappedTracks(std::set<boost::shared_ptr<Track const>>* tracks) const;

    void xmlName(XMLable::Options& options) const override;

protected:
    using Mappings = std::map<boost::shared_ptr<Track const>, ConstMediaSet>;

    explicit CloneAddMediasCmd(long long time);

    void executeCommands(CommandHandler const* handler) override;
    /// @throws TarnMediaLibException when a track or media of the mappings is empty
    void requireMappings() const;

private:
    boost::shared_ptr<Media> cloneMedia(boost::shared_ptr<Media const> const& media);

    Mappings m_mappings;
    MediaCloneMap m_cloneMap;
    long long m_time;
};

}  // namespace tarn
