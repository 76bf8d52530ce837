#include "commands/CommandPair.h"

#include "commands/RequireObjects.h"
#include "exceptions/TarnMediaLibException.h"

#include <ostream>

namespace tarn {

boost::shared_ptr<CommandPair> CommandPair::create(boost::shared_ptr<Command> const& first,
                                                   boost::shared_ptr<Command> const& second)
{
    return boost::shared_ptr<CommandPair>(new CommandPair(first, second));
}

CommandPair::CommandPair(boost::shared_ptr<Command> const& first,
                         boost::shared_ptr<Command> const& second)
    : m_first(first), m_second(second)
{}

CommandPair* CommandPair::clone() const
{
    return new CommandPair(*this);
}

bool CommandPair::execute(CommandHandler* handler)
{
    requireObjects(m_first, m_second);
    m_first->execute(handler);
    try {
        m_second->execute(handler);
    } catch (TarnMediaLibException const&) {
        m_first->unexecute(handler);
        throw;
    }
    return true;
}

bool CommandPair::unexecute(CommandHandler* handler)
{
    m_second->unexecute(handler);
    m_first->unexecute(handler);
    return true;
}

bool CommandPair::reexecute(CommandHandler* handler)
{
    m_first->reexecute(handler);
    try {
        m_second->reexecute(handler);
    } catch (TarnMediaLibException const&) {
        m_first->unexecute(handler);
        throw;
    }
    return true;
}

void CommandPair::xmlName(XMLable::Options& options) const
{
    *options.stream << "CommandPair";
}

void CommandPair::xmlBody(XMLable::Options& options, int indent) const
{
    std::ostream& out = *options.stream;
    out << genIndent(indent) << "<Command1>\n";
    m_first->toXML(options, indent + 1, "");
    out << genIndent(indent) << "</Command1>\n";
    out << genIndent(indent) << "<Command2>\n";
    m_second->toXML(options, indent + 1, "");
    out << genIndent(indent) << "</Command2>\n";
}

}  // namespace tarn
