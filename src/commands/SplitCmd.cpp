#include "commands/SplitCmd.h"

#include "exceptions/ValueException.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <ostream>

namespace tarn {

SplitCmd::SplitCmd(boost::shared_ptr<Track const> const& track, long long time)
    : IntraMediaCutCmd(track, Range<long long>(time, 0))
{}

boost::shared_ptr<SplitCmd> SplitCmd::create(boost::shared_ptr<Track const> const& track,
                                             long long time)
{
    return boost::shared_ptr<SplitCmd>(new SplitCmd(track, time));
}

SplitCmd* SplitCmd::clone() const
{
    return new SplitCmd(*this);
}

void SplitCmd::executeCommands(CommandHandler const* handler)
{
    try {
        IntraMediaCutCmd::executeCommands(handler);
    } catch (ValueException<Range<long long>> const&) {
        throw ValueException<long long>("unable to split", range().start);
    } catch (ValueException<long long> const&) {
        // A trim was refused, as in a stretched media that would keep less than one unit.
        throw ValueException<long long>("unable to split", range().start);
    }
}

void SplitCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "SplitCmd";
}

}  // namespace tarn
