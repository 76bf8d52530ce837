#include "commands/CutRangeClippingCmd.h"

#include "clipbin/Clipping.h"
#include "commands/CopyRangeClippingCmd.h"
#include "commands/RemoveRangeMediaCmd.h"
#include "exceptions/TarnMediaLibException.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"

#include <ostream>

namespace tarn {

CutRangeClippingCmd::CutRangeClippingCmd(boost::shared_ptr<Timeline const> const& timeline,
                                         Range<long long> const& range, std::string const& name)
    : m_copy(CopyRangeClippingCmd::create(timeline, range, name))
    , m_timeline(timeline)
    , m_range(range)
{}

CutRangeClippingCmd::CutRangeClippingCmd(CutRangeClippingCmd const& other)
    : XMLIdentified(other)
    , MultiCommand(other)
    , m_copy(other.m_copy->clone())
    , m_timeline(other.m_timeline)
    , m_range(other.m_range)
{}

boost::shared_ptr<CutRangeClippingCmd> CutRangeClippingCmd::create(
    boost::shared_ptr<Timeline const> const& timeline, Range<long long> const& range,
    std::string const& name)
{
    return boost::shared_ptr<CutRangeClippingCmd>(new CutRangeClippingCmd(timeline, range, name));
}

void CutRangeClippingCmd::addTrack(boost::shared_ptr<Track const> const& track)
{
    m_copy->addTrack(track);
}

CutRangeClippingCmd* CutRangeClippingCmd::clone() const
{
    return new CutRangeClippingCmd(*this);
}

boost::shared_ptr<Clipping> CutRangeClippingCmd::clipping() const
{
    return m_copy->clipping();
}

void CutRangeClippingCmd::executeCommands(CommandHandler const*)
{
    if (m_copy->tracks().empty())
        throw TarnMediaLibException("can't perform a cut range clipping without tracks");

    MultiCommand::execute(m_copy);
    boost::shared_ptr<RemoveRangeMediaCmd> const removal =
        RemoveRangeMediaCmd::create(m_timeline, m_range);
    for (boost::shared_ptr<Track const> const& track : m_copy->tracks())
        removal->addTrack(track);
    MultiCommand::execute(removal);
}

void CutRangeClippingCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "CutRangeClippingCmd";
}

}  // namespace tarn
