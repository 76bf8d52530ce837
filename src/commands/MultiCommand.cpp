#include "commands/MultiCommand.h"

#include "commands/CommandHistory.h"

#include <boost/make_shared.hpp>

#include <utility>

namespace tarn {

MultiCommand::MultiCommand()
    : m_history(boost::make_shared<CommandHistory>(nullptr)), m_silence(m_history.get())
{}

MultiCommand::MultiCommand(MultiCommand const& other)
    : XMLIdentified(other)
    , Command(other)
    , m_history(boost::make_shared<CommandHistory>(nullptr))
    , m_silence(m_history.get())
{}

bool MultiCommand::execute(CommandHandler* handler)
{
    m_history->setCommandHandler(handler);
    m_history->dropRedoCommands();
    try {
        executeCommands(handler);
    } catch (...) {
        m_history->undoAll();
        throw;
    }
    return true;
}

bool MultiCommand::unexecute(CommandHandler* handler)
{
    m_history->setCommandHandler(handler);
    try {
        m_history->undoAll();
    } catch (...) {
        m_history->redoAll();
        throw;
    }
    return true;
}

bool MultiCommand::reexecute(CommandHandler* handler)
{
    m_history->setCommandHandler(handler);
    try {
        m_history->redoAll();
    } catch (...) {
        m_history->undoAll();
        throw;
    }
    return true;
}

bool MultiCommand::execute(boost::shared_ptr<Command> command)
{
    return m_history->execute(std::move(command));
}

void MultiCommand::makeRoomFor(std::size_t count)
{
    m_history->makeRoomFor(count);
}

std::size_t MultiCommand::numUndoCommands() const
{
    return m_history->numUndoCommands();
}

void MultiCommand::xmlOfCommands(XMLable::Options& options, int indent) const
{
    m_history->xmlOfUndoCommands(options, indent);
}

}  // namespace tarn
