#pragma once

#include "clipbin/ClipBinFwd.h"
#include "commands/CommandsFwd.h"
#include "commands/MultiCommand.h"
#include "datatypes/Range.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace tarn {

///     before   V1: aaaaaa
///     after    V1: aa..bb      and a clipping V1: cc, range 20 to 40
///
/// Copies a range of some tracks to the clipboard and takes it off the timeline. The copy takes
/// whole tracks that links reach, the removal only the tracks named and what is linked to medias
/// there: name all tracks to have both alike.
/// @throws TarnMediaLibException on execution without tracks
/// @throws what CopyRangeClippingCmd and RemoveRangeMediaCmd throw
class TARN_API CutRangeClippingCmd : public MultiCommand
{
public:
    /// Edit units on the timeline's clock, half-open.
    static boost::shared_ptr<CutRangeClippingCmd> create(
        boost::shared_ptr<Timeline const> const& timeline, Range<long long> const& range,
        std::string const& name);

    /// Names a track to work on; before execution.
    void addTrack(boost::shared_ptr<Track const> const& track);

    CutRangeClippingCmd* clone() const override;

    /// Empty until executed.
    boost::shared_ptr<Clipping> clipping() const;

    void xmlName(XMLable::Options& options) const override;

protected:
    void executeCommands(CommandHandler const* handler) override;

private:
    CutRangeClippingCmd(boost::shared_ptr<Timeline const> const& timeline,
                        Range<long long> const& range, std::string const& name);
    CutRangeClippingCmd(CutRangeClippingCmd const& other);

    boost::shared_ptr<CopyRangeClippingCmd> m_copy;
    boost::shared_ptr<Timeline const> m_timeline;
    Range<long long> m_range;
};

}  // namespace tarn
