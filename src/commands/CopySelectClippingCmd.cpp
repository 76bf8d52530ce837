#include "commands/CopySelectClippingCmd.h"

#include "clipbin/Clipping.h"
#include "commands/CommandHandler.h"
#include "commands/RequireObjects.h"
#include "timeline/Media.h"
#include "timeline/Timeline.h"

#include <boost/make_shared.hpp>

#include <ostream>

namespace tarn {

CopySelectClippingCmd::CopySelectClippingCmd(
    boost::shared_ptr<Timeline const> const& timeline,
    std::vector<boost::shared_ptr<Media const>> const& medias, std::string const& name)
    : m_timeline(timeline), m_medias(medias), m_name(name)
{}

boost::shared_ptr<CopySelectClippingCmd> CopySelectClippingCmd::create(
    boost::shared_ptr<Timeline const> const& timeline,
    std::vector<boost::shared_ptr<Media const>> const& medias, std::string const& name)
{
    return boost::shared_ptr<CopySelectClippingCmd>(
        new CopySelectClippingCmd(timeline, medias, name));
}

CopySelectClippingCmd* CopySelectClippingCmd::clone() const
{
    return new CopySelectClippingCmd(*this);
}

bool CopySelectClippingCmd::execute(CommandHandler* handler)
{
    requireObjects(m_timeline);
    requireEachObject(m_medias);
    m_clipping = boost::make_shared<Clipping>(m_timeline, m_medias, m_name);
    handler->addClipping(m_clipping);
    return true;
}

bool CopySelectClippingCmd::unexecute(CommandHandler*)
{
    // Kept so: the clipping stays on the board.
    return true;
}

void CopySelectClippingCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "CopySelectClippingCmd";
}

}  // namespace tarn
