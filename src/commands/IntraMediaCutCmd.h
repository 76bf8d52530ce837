#pragma once

#include "commands/MultiCommand.h"
#include "datatypes/Range.h"
#include "timeline/MediaCollections.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <utility>
#include <vector>

namespace tarn {

///     before   A1: aaaaaa / V1: aaaaaa
///     after    A1: aa..bb / V1: aa..bb      range 20 to 40 of V1
///
/// Takes a range out of the middle of a media and of those linked to it. What lies before the range
/// stays and keeps the left edge modifications; what lies behind it becomes a new media with the
/// right ones. The new medias are linked among themselves as the old ones are.
///
/// Redo brings back the same new medias as they were when undone, and so without any change that no
/// command made on the original meanwhile.
class TARN_API IntraMediaCutCmd : public MultiCommand
{
public:
    /// Edit units on the track's clock, half-open.
    /// @throws ValueException<Range<long long>> on execution, with the range, when it does not
    /// begin and end inside one and the same media; nothing has changed then
    /// @throws LinkException on execution when a linked media has another track range
    /// @throws DanglingWeakPtrException<Media const> or `<Track const>` on execution for a dead
    /// link
    static boost::shared_ptr<IntraMediaCutCmd> create(boost::shared_ptr<Track const> const& track,
                                                      Range<long long> const& range);

    IntraMediaCutCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    IntraMediaCutCmd(boost::shared_ptr<Track const> const& track, Range<long long> const& range);

    void executeCommands(CommandHandler const* handler) override;

    Range<long long> const& range() const { return m_range; }

private:
    using PlacedClone = std::pair<boost::shared_ptr<Track const>, boost::shared_ptr<Media>>;

    void checkValidIntraMediaCut();
    boost::shared_ptr<Media> createTrimmedClone(boost::shared_ptr<Media const> const& media,
                                                long long trimStartOffset);
    void addLinkedMediaTrimmedClones(long long trimStartOffset, std::vector<PlacedClone>* clones,
                                     ConstMediaVector* linkedClones);
    void addClonesToTimeline(std::vector<PlacedClone> const& clones, long long time);

    boost::shared_ptr<Track const> m_track;
    boost::shared_ptr<Media const> m_media;
    Range<long long> m_range;
};

}  // namespace tarn
