#include "commands/Command.h"

#include "commands/CommandPair.h"

#include <sstream>

namespace tarn {

std::string Command::description() const
{
    std::ostringstream out;
    toXML(out);
    return out.str();
}

bool Command::reexecute(CommandHandler* handler)
{
    return execute(handler);
}

boost::shared_ptr<Command> Command::combine(boost::shared_ptr<Command> const& next)
{
    return groupCommands(shared_from_this(), next);
}

void Command::xmlAttributes(XMLable::Options&) const {}

void Command::xmlBody(XMLable::Options&, int) const {}

void Command::fetchAhead(Turn) const {}

boost::shared_ptr<Command> Command::groupCommands(boost::shared_ptr<Command> const& first,
                                                  boost::shared_ptr<Command> const& second)
{
    return CommandPair::create(first, second);
}

}  // namespace tarn
