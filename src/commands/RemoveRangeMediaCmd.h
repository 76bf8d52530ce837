#pragma once

#include "commands/MultiCommand.h"
#include "datatypes/Range.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace tarn {

///     before   V1: aaaabbbb
///     after    V1: aa....cc      range 20 to 60; c is what is left of b
///
/// Takes what lies in a range off the tracks that were added, and what it is linked to off any
/// other. Medias that the range covers only in part are cut at its edges. The gap stays.
/// @throws ValueException<long long> on execution when a cut cannot be made
/// @throws what RemoveMediaCmd throws
class TARN_API RemoveRangeMediaCmd : public MultiCommand
{
public:
    /// Edit units on the tracks' clock, half-open.
    static boost::shared_ptr<RemoveRangeMediaCmd> create(
        boost::shared_ptr<Timeline const> const& timeline, Range<long long> const& range);

    /// Only tracks added here are touched.
    void addTrack(boost::shared_ptr<Track const> const& track);

    RemoveRangeMediaCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    RemoveRangeMediaCmd(boost::shared_ptr<Timeline const> const& timeline,
                        Range<long long> const& range);

    void removePortion(boost::shared_ptr<Track const> const& track,
                       boost::shared_ptr<Media const> const& media,
                       Range<long long> const& portion);

    boost::shared_ptr<Timeline const> m_timeline;
    Range<long long> m_range;
    std::vector<boost::shared_ptr<Track const>> m_tracks;
};

}  // namespace tarn
