#include "commands/CommandHistory.h"

#include "commands/Command.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"

#include <algorithm>
#include <iostream>
#include <iterator>
#include <sstream>

namespace tarn {

namespace {

using CommandList = std::list<boost::shared_ptr<Command>>;

/// The newest entry, alone in a list of its own from which it moves on without an allocation.
CommandList takeNewest(CommandList& commands)
{
    CommandList newest;
    newest.splice(newest.end(), commands, std::prev(commands.end()));
    return newest;
}

CommandList cloned(CommandList const& commands)
{
    CommandList clones;
    for (boost::shared_ptr<Command> const& command : commands) {
        clones.push_back(boost::shared_ptr<Command>(command->clone()));
    }
    return clones;
}

void writeCommands(XMLable::Options& options, int indent, CommandList const& commands)
{
    for (boost::shared_ptr<Command> const& command : commands) {
        command->toXML(options, indent, "");
    }
}

void writeStack(XMLable::Options& options, int indent, char const* name,
                CommandList const& commands)
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
    // Made before the command runs, so that nothing can fail between its work and its record.
    CommandList executed(1, command);
    {
        Run const run(*this);
        if (!command->execute(m_handler)) {
            return false;
        }
    }
    m_undoCommands.splice(m_undoCommands.end(), executed);
    m_redoCommands.clear();
    removeExcessCommands();
    notify();
    return true;
}

void CommandHistory::undo()
{
    CommandList newest;
    {
        Run const run(*this);
        if (m_undoCommands.empty()) {
            throw TarnMediaLibException("no commands to undo");
        }
        newest = takeNewest(m_undoCommands);
        newest.back()->unexecute(m_handler);
    }
    m_redoCommands.splice(m_redoCommands.end(), newest);
    notify();
}

void CommandHistory::redo()
{
    CommandList newest;
    {
        Run const run(*this);
        if (m_redoCommands.empty()) {
            throw TarnMediaLibException("no commands to redo");
        }
        newest = takeNewest(m_redoCommands);
        newest.back()->reexecute(m_handler);
    }
    m_undoCommands.splice(m_undoCommands.end(), newest);
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
    CommandList::iterator const second = std::prev(m_undoCommands.end());
    CommandList::iterator const first = std::prev(second);
    boost::shared_ptr<Command> const combined = (*first)->combine(*second);
    if (!combined) {
        throw TarnMediaLibException("no command from combining");
    }
    *first = combined;
    m_undoCommands.erase(second);
}

CommandHistoryState CommandHistory::state() const
{
    return CommandHistoryState(getCurrentUndoStackTop(), m_redoCommands);
}

boost::shared_ptr<Command const> CommandHistory::getCurrentUndoStackTop() const
{
    return m_undoCommands.empty() ? boost::shared_ptr<Command const>() : m_undoCommands.back();
}

void CommandHistory::restoreState(CommandHistoryState const& state)
{
    // Made before anything is undone, so that nothing can fail behind that.
    CommandList redoCommands = state.redoCommands();
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

bool CommandHistory::unrollStack(CommandList& commands, boost::shared_ptr<Command const> const& top,
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

void CommandHistory::unrollEverything(CommandList& commands, CommandHandler* handler)
{
    while (!commands.empty()) {
        takeNewest(commands).back()->unexecute(handler);
    }
}

void CommandHistory::unrollPortion(CommandList& commands,
                                   boost::shared_ptr<Command const> const& top,
                                   CommandHandler* handler)
{
    while (commands.back() != top) {
        takeNewest(commands).back()->unexecute(handler);
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
        m_undoCommands.pop_front();
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
