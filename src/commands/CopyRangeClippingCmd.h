#pragma once

#include "clipbin/ClipBinFwd.h"
#include "commands/Command.h"
#include "datatypes/Range.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <set>
#include <string>

namespace tarn {

///     before   V1: aaabbb
///     after    V1: aaabbb      and a clipping V1: cd, range 20 to 40
///
/// Puts clones of what lies in a range of some tracks on the clipboard. Whole tracks count: what
/// other tracks hold there, linked to a media of these, is copied as well.
///
/// Undo takes the clipping off the board. Redo makes a new one of the timeline as it then stands.
/// @throws TarnMediaLibException on execution without tracks, or when nothing lies in the range
class TARN_API CopyRangeClippingCmd : public Command
{
public:
    /// Edit units on the timeline's clock, half-open.
    static boost::shared_ptr<CopyRangeClippingCmd> create(
        boost::shared_ptr<Timeline const> const& timeline, Range<long long> const& range,
        std::string const& name);

    /// Names a track to work on; before execution.
    void addTrack(boost::shared_ptr<Track const> const& track);

    CopyRangeClippingCmd* clone() const override;
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;

    std::set<boost::shared_ptr<Track const>> const& tracks() const { return m_tracks; }
    /// Empty until executed.
    boost::shared_ptr<Clipping> clipping() const { return m_clipping; }

    void xmlName(XMLable::Options& options) const override;

private:
    CopyRangeClippingCmd(boost::shared_ptr<Timeline const> const& timeline,
                         Range<long long> const& range, std::string const& name);

    boost::shared_ptr<Timeline const> m_timeline;
    Range<long long> m_range;
    std::string m_name;
    std::set<boost::shared_ptr<Track const>> m_tracks;
    boost::shared_ptr<Clipping> m_clipping;
};

}  // namespace tarn
