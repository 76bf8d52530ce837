#include "commands/CommandHistory.h"

#include "commands/Command.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <sstream>
#include <utility>

namespace tarn {

namespace {

CommandStack cloned(CommandStack const& commands)
{
    CommandStack clones;
    for (boost::shared_ptr<Command> const& command : commands) {
        clones.push(boost::shared_ptr<Command>(command->clone()));
    }
    return clones;
}

void writeCommands(XMLable::Options& options, int indent, CommandStack const& commands)
{
    for (boost::shared_ptr<Command> const& command : commands) {
        command->toXML(options, indent, "");
    }
}

void writeStack(XMLable::Options& options, int indent, char const* name,
                CommandStack const& commands)
{
    std::ostream& out = *options.stream;
    out << XMLable::genIndent(indent) << "<" << name << ">\n";
    writeCommands(options, indent + 1, commands);
    out << XMLable::genIndent(indent) << "</" << name << ">\n";
}

}  // namespace

/// While a command runs, host code may be called: a handler, a sentry, a loader. A second edit from
/// there would stand in the history before the one it interrupts, and be undone after it.
class CommandHistory::Run
{
public:
    explicit Run(CommandHistory& history) : m_history(history)
    {
        if (m_history.m_isRunning) {
            throw TarnMediaLibException("a command is running");
        }
        m_history.m_isRunning = true;
    }
    ~Run() { m_history.m_isRunning = false; }
    Run(Run const&) = delete;
    Run& operator=(Run const&) = delete;

private:
    CommandHistory& m_history;
};

CommandHistory::CommandHistory(CommandHandler* handler)
    : m_handler(handler), m_undoLimit(-1), m_isRunning(false)
{}

CommandHistory::CommandHistory(CommandHistory const& other)
    : XMLIdentified(other)
    , TarnObject(other)
    , Cloneable(other)
    , Subject(other)
    , XMLable(other)
    , m_handler(nullptr)
    , m_undoCommands(cloned(other.m_undoCommands))
    , m_redoCommands(cloned(other.m_redoCommands))
    , m_undoLimit(other.m_undoLimit)
    , m_isRunning(false)
{}

CommandHistory::~CommandHistory() = default;

std::string CommandHistory::description() const
{
    std::ostringstream out;
    toXML(out);
    return out.str();
}

CommandHistory* CommandHistory::clone() const
{
    return new CommandHistory(*this);
}

bool CommandHistory::execute(boost::shared_ptr<Command> const& command)
{
    if (!command) {
        throw TarnMediaLibException("no command to execute");
    }
    // Taken before the command runs, so that nothing can fail between its work and its record.
    CommandStack::Room const room(m_undoCommands);
    // A share of its own: the caller may lose his meanwhile.
    boost::shared_ptr<Command> executed = command;
    {
        Run const run(*this);
        if (!executed->execute(m_handler)) {
            return false;
        }
    }
    m_undoCommands.push(std::move(executed));
    m_redoCommands.clear();
    removeExcessCommands();
    notify();
    return true;
}

void CommandHistory::undo()
{
    {
        Run const run(*this);
        if (m_undoCommands.empty()) {
            throw TarnMediaLibException("no commands to undo");
        }
        CommandStack::Room const room(m_redoCommands);
        boost::shared_ptr<Command> newest = m_undoCommands.takeBack();
        newest->unexecute(m_handler);
        m_redoCommands.push(std::move(newest));
    }
    notify();
}

void CommandHistory::redo()
{
    {
        Run const run(*this);
        if (m_redoCommands.empty()) {
            throw TarnMediaLibException("no commands to redo");
        }
        CommandStack::Room const room(m_undoCommands);
        boost::shared_ptr<Command> newest = m_redoCommands.takeBack();
        newest->reexecute(m_handler);
        m_undoCommands.push(std::move(newest));
    }
    notify();
}

void CommandHistory::undoAll()
{
    while (!m_undoCommands.empty()) {
        undo();
    }
}

void CommandHistory::redoAll()
{
    while (!m_redoCommands.empty()) {
        redo();
    }
}

void CommandHistory::dropRedoCommands()
{
    Run const run(*this);
    m_redoCommands.clear();
}

void CommandHistory::combineLastCommands()
{
    Run const run(*this);
    if (m_undoCommands.size() < 2) {
        return;
    }
    CommandStack::Commands::const_iterator const second = std::prev(m_undoCommands.end());
    boost::shared_ptr<Command> const combined = (*std::prev(second))->combine(*second);
    if (!combined) {
        throw TarnMediaLibException("no command from combining");
    }
    m_undoCommands.replaceNewestTwo(combined);
}

CommandHistoryState CommandHistory::state() const
{
    return CommandHistoryState(
        getCurrentUndoStackTop(),
        CommandHistoryState::CommandList(m_redoCommands.begin(), m_redoCommands.end()));
}

boost::shared_ptr<Command const> CommandHistory::getCurrentUndoStackTop() const
{
    return m_undoCommands.empty() ? boost::shared_ptr<Command const>() : m_undoCommands.back();
}

void CommandHistory::restoreState(CommandHistoryState const& state)
{
    // Made before anything is undone, so that nothing can fail behind that.
    CommandStack redoCommands;
    redoCommands.assign(state.redoCommands().begin(), state.redoCommands().end());
    {
        Run const run(*this);
        // Kept so: entries of the redo list are unexecuted too, not run again, when the top is
        // there.
        if (!unrollStack(m_undoCommands, state.undoTop(), m_handler) &&
            !unrollStack(m_redoCommands, state.undoTop(), m_handler)) {
            std::cerr << description() << std::endl;
            throw ValueException<CommandHistoryState>(
                "State cannot be restored, cannot find undo top", state);
        }
        m_redoCommands.swap(redoCommands);
    }
    notify();
}

bool CommandHistory::unrollStack(CommandStack& commands,
                                 boost::shared_ptr<Command const> const& top,
                                 CommandHandler* handler)
{
    if (!top) {
        unrollEverything(commands, handler);
        return true;
    }
    if (std::find(commands.begin(), commands.end(), top) == commands.end()) {
        return false;
    }
    unrollPortion(commands, top, handler);
    return true;
}

void CommandHistory::unrollEverything(CommandStack& commands, CommandHandler* handler)
{
    while (!commands.empty()) {
        commands.takeBack()->unexecute(handler);
    }
}

void CommandHistory::unrollPortion(CommandStack& commands,
                                   boost::shared_ptr<Command const> const& top,
                                   CommandHandler* handler)
{
    while (commands.back() != top) {
        commands.takeBack()->unexecute(handler);
    }
}

void CommandHistory::setUndoLimit(int limit)
{
    {
        Run const run(*this);
        m_undoLimit = limit;
        removeExcessCommands();
    }
    notify();
}

void CommandHistory::removeExcessCommands()
{
    if (m_undoLimit < 0) {
        return;
    }
    while (m_undoCommands.size() > static_cast<std::size_t>(m_undoLimit)) {
        m_undoCommands.dropFront();
    }
}

void CommandHistory::xmlName(XMLable::Options& options) const
{
    *options.stream << "CommandHistory";
}

void CommandHistory::xmlAttributes(XMLable::Options&) const {}

void CommandHistory::xmlBody(XMLable::Options& options, int indent) const
{
    writeStack(options, indent, "UndoStack", m_undoCommands);
    writeStack(options, indent, "RedoStack", m_redoCommands);
}

void CommandHistory::xmlOfUndoCommands(XMLable::Options& options, int indent) const
{
    writeCommands(options, indent, m_undoCommands);
}

}  // namespace tarn
