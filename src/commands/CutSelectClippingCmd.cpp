#include "commands/CutSelectClippingCmd.h"

#include "clipbin/Clipping.h"
#include "commands/CopySelectClippingCmd.h"
#include "commands/RemoveSelectMediaCmd.h"
#include "commands/XmlAttributes.h"
#include "timeline/Media.h"
#include "timeline/Timeline.h"

#include <ostream>

namespace tarn {

CutSelectClippingCmd::CutSelectClippingCmd(
    boost::shared_ptr<Timeline const> const& timeline,
    std::vector<boost::shared_ptr<Media const>> const& medias, std::string const& name)
    : m_copy(CopySelectClippingCmd::create(timeline, medias, name))
    , m_timeline(timeline)
    , m_medias(medias)
{}

CutSelectClippingCmd::CutSelectClippingCmd(CutSelectClippingCmd const& other)
    : XMLIdentified(other)
    , MultiCommand(other)
    , m_copy(other.m_copy->clone())
    , m_timeline(other.m_timeline)
    , m_medias(other.m_medias)
{}

boost::shared_ptr<CutSelectClippingCmd> CutSelectClippingCmd::create(
    boost::shared_ptr<Timeline const> const& timeline,
    std::vector<boost::shared_ptr<Media const>> const& medias, std::string const& name)
{
    return boost::shared_ptr<CutSelectClippingCmd>(
        new CutSelectClippingCmd(timeline, medias, name));
}

CutSelectClippingCmd* CutSelectClippingCmd::clone() const
{
    return new CutSelectClippingCmd(*this);
}

boost::shared_ptr<Clipping> CutSelectClippingCmd::clipping() const
{
    return m_copy->clipping();
}

void CutSelectClippingCmd::executeCommands(CommandHandler const*)
{
    MultiCommand::execute(m_copy);
    MultiCommand::execute(RemoveSelectMediaCmd::create(m_timeline, m_medias));
}

void CutSelectClippingCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "CutSelectClippingCmd";
}

void CutSelectClippingCmd::xmlAttributes(XMLable::Options& options) const
{
    XmlAttributes(options).address("target", m_timeline);
}

}  // namespace tarn
