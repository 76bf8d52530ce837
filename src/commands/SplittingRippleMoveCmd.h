#pragma once

#include "commands/MultiCommand.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <vector>

namespace tarn {

///     before   A1: aaaaaa / V1: aaaaaa.b
///     after    A1: aaaa..cc / V1: aaaa..cc.b      at 40 by +20
///
/// Shifts what lies at or after a time on the tracks that were added, after cutting what lies
/// across that time. Every media moves exactly once, with its links.
/// @throws TarnMediaLibException on execution when no track was added
/// @throws ValueException<long long> on execution when a cut cannot be made
/// @throws what MoveCmd throws; then nothing has moved
class TARN_API SplittingRippleMoveCmd : public MultiCommand
{
public:
    /// Edit units on the tracks' clock.
    static boost::shared_ptr<SplittingRippleMoveCmd> create(long long time, long long offset);

    /// A track added twice counts once.
    void addTrack(boost::shared_ptr<Track const> const& track);

    SplittingRippleMoveCmd* clone() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    SplittingRippleMoveCmd(long long time, long long offset);

    void splitAcrossTime(boost::shared_ptr<Track const> const& track);
    void performSplittingRippleMove(boost::shared_ptr<Track const> const& track);
    void performGroupedMoves();

    std::vector<boost::shared_ptr<Track const>> m_tracks;
    long long m_time;
    long long m_offset;
};

}  // namespace tarn
