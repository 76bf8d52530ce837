#include "commands/UnloadSourceCmd.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/Source.h"
#include "commands/CommandHandler.h"
#include "commands/SourceXml.h"

#include <ostream>
#include <string>

namespace tarn {

UnloadSourceCmd::UnloadSourceCmd(boost::shared_ptr<Source const> const& source) : m_source(source)
{}

boost::shared_ptr<UnloadSourceCmd> UnloadSourceCmd::create(
    boost::shared_ptr<Source const> const& source)
{
    return boost::shared_ptr<UnloadSourceCmd>(new UnloadSourceCmd(source));
}

UnloadSourceCmd* UnloadSourceCmd::clone() const
{
    return new UnloadSourceCmd(*this);
}

bool UnloadSourceCmd::execute(CommandHandler* handler)
{
    handler->unloadSource(m_source);
    return true;
}

bool UnloadSourceCmd::unexecute(CommandHandler* handler)
{
    handler->loadSource(m_source);
    return true;
}

void UnloadSourceCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "UnloadSourceCmd";
}

void UnloadSourceCmd::xmlBody(XMLable::Options& options, int indent) const
{
    std::string const file = m_source ? m_source->mediaFileStats()->filename() : std::string();
    xmlOfSourceFile(options, indent, file, m_source);
}

}  // namespace tarn
