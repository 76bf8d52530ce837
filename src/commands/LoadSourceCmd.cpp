#include "commands/LoadSourceCmd.h"

#include "clipbin/Source.h"
#include "commands/CommandHandler.h"
#include "commands/SourceXml.h"

#include <ostream>

namespace tarn {

LoadSourceCmd::LoadSourceCmd(std::string const& path, boost::shared_ptr<Source const> const& source)
    : m_path(path), m_source(source)
{}

boost::shared_ptr<LoadSourceCmd> LoadSourceCmd::create(std::string const& path)
{
    return boost::shared_ptr<LoadSourceCmd>(
        new LoadSourceCmd(path, boost::shared_ptr<Source const>()));
}

boost::shared_ptr<LoadSourceCmd> LoadSourceCmd::create(
    boost::shared_ptr<Source const> const& source)
{
    return boost::shared_ptr<LoadSourceCmd>(new LoadSourceCmd(std::string(), source));
}

LoadSourceCmd* LoadSourceCmd::clone() const
{
    return new LoadSourceCmd(*this);
}

bool LoadSourceCmd::execute(CommandHandler* handler)
{
    if (m_source)
        handler->loadSource(m_source);
    else
        m_source = handler->loadSource(m_path);
    return true;
}

bool LoadSourceCmd::unexecute(CommandHandler* handler)
{
    handler->unloadSource(m_source);
    return true;
}

bool LoadSourceCmd::reexecute(CommandHandler* handler)
{
    handler->loadSource(m_source);
    return true;
}

void LoadSourceCmd::xmlName(XMLable::Options& options) const
{
    *options.stream << "LoadSourceCmd";
}

void LoadSourceCmd::xmlBody(XMLable::Options& options, int indent) const
{
    xmlOfSourceFile(options, indent, m_path, m_source);
}

}  // namespace tarn
