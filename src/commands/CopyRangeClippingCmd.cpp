#include "commands/CopyRangeClippingCmd.h"

#include "clipbin/Clipping.h"
#include "commands/CommandHandler.h"
#include "commands/RequireObjects.h"
#include "exceptions/TarnMediaLibException.h"
#include "timeline/Timeline.h"
#include "timeline/Track.h"

#include <boost/make_shared.hpp>

#include <ostream>

namespace tarn {

CopyRangeClippingCmd::CopyRangeClippingCmd(boost::shared_ptr<Timeline const> const& timeline,
                                           Range<long long> const& range, std::string const& name)
    : m_timeline(timeline), m_range(range), m_name(name)
{}

boost::shared_ptr<CopyRangeClippingCmd> CopyRangeClippingCmd::create(
    boost::shared_ptr<Timeline const> const& timeline, Range<long long> const& range,
    std::string const& name)
{
    return boost::shared_ptr<CopyRangeClippingCmd>(new CopyRangeClippingCmd(timeline, range, name));
}

void CopyRangeClippingCmd::addTrack(boost::shared_ptr<Track const> const& track)
{
    m_tracks.insert(track);
}

CopyRangeClippingCmd* CopyRangeClippingCmd::clone() const
{
    return new CopyRangeClippingCmd(*this);
}

bool CopyRangeClippingCmd::execute(CommandHandler* handler)
{
    requireObjects(m_timeline);
    requireEachObject(m_tracks);
    if (m_tracks.empty())
        throw TarnMediaLibException("can't perform a copy range clipping without tracks");

    m_clipping = boost::make_shared<Clipping>(m_timeline, m_range, m_tracks, m_name);
    handler->addClipping(m_clipping);
    return true;
}

bool CopyRangeClippingCmd::unexecute(CommandHandler* handler)
{
    handler->removeClipping(m_clipping);
    return true;
}

void CopyRangeClippingCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "CopyRangeClippingCmd";
}

}  // namespace tarn
