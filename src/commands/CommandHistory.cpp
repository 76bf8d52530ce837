#include "commands/CommandHistory.h"

#include "commands/Command.h"
#include "datatypes/FetchAhead.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"

#include <algorithm>
#include <cstddef>
#include <iostream>
#include <iterator>
#include <sstream>
#include <utility>

namespace tarn {

namespace {

template <class Iterator>
void writeCommands(XMLable::Options& options, int indent, Iterator begin, Iterator end)
{
    for (Iterator command = begin; command != end; ++command) {
        (*command)->toXML(options, indent, "");
    }
}

template <class Iterator>
void writeStack(XMLable::Options& options, int indent, char const* name, Iterator begin,
                Iterator end)
{
    std::ostream& out = *options.stream;
    out << XMLable::genIndent(indent) << "<" << name << ">\n";
    writeCommands(options, indent + 1, begin, end);
    out << XMLable::genIndent(indent) << "</" << name << ">\n";
}

/// What can be redone as hosts see it: the next to redo is the last.
std::reverse_iterator<CommandSequence::Iterator> redoListBegin(CommandSequence const& commands)
{
    return std::make_reverse_iterator(commands.redoEnd());
}

std::reverse_iterator<CommandSequence::Iterator> redoListEnd(CommandSequence const& commands)
{
    return std::make_reverse_iterator(commands.redoBegin());
}

/// What comes soon of the `count` commands from `next` on may fetch what it will touch.
template <class Iterator>
void fetchAhead(Iterator next, std::size_t count)
{
    if (count > FetchAhead::k_far) {
        next[FetchAhead::k_far]->fetchAhead(Command::Turn::Far);
    }
    if (count > FetchAhead::k_near) {
        next[FetchAhead::k_near]->fetchAhead(Command::Turn::Near);
    }
}

void cloneInto(CommandSequence& clones, CommandSequence const& originals)
{
    for (auto it = originals.undoBegin(); it != originals.undoEnd(); ++it) {
        clones.makeRoom();
        clones.pushUndo(boost::shared_ptr<Command>((*it)->clone()));
    }
    CommandSequence::Commands redo;
    for (auto it = redoListBegin(originals); it != redoListEnd(originals); ++it) {
        redo.push_back(boost::shared_ptr<Command>((*it)->clone()));
    }
    CommandSequence::Commands none;
    clones.makeRoomFor(redo.size());
    clones.replaceRedo(redo, none);
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
    , m_undoLimit(other.m_undoLimit)
    , m_isRunning(false)
{
    cloneInto(m_commands, other.m_commands);
}

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

bool CommandHistory::execute(boost::shared_ptr<Command> command)
{
    if (!command) {
        throw TarnMediaLibException("no command to execute");
    }
    // Room for it, so that nothing can fail between the command's work and its record.
    m_commands.makeRoom();
    {
        Run const run(*this);
        if (!command->execute(m_handler)) {
            return false;
        }
    }
    m_commands.pushUndo(std::move(command));
    m_commands.clearRedo();
    removeExcessCommands();
    notify();
    return true;
}

void CommandHistory::undo()
{
    boost::shared_ptr<Command> newest;
    {
        Run const run(*this);
        if (m_commands.numUndo() == 0) {
            throw TarnMediaLibException("no commands to undo");
        }
        newest = m_commands.takeUndo();
        newest->unexecute(m_handler);
    }
    m_commands.pushRedo(std::move(newest));
    notify();
}

void CommandHistory::redo()
{
    boost::shared_ptr<Command> newest;
    {
        Run const run(*this);
        if (m_commands.numRedo() == 0) {
            throw TarnMediaLibException("no commands to redo");
        }
        newest = m_commands.takeRedo();
        newest->reexecute(m_handler);
    }
    m_commands.pushUndo(std::move(newest));
    notify();
}

void CommandHistory::undoAll()
{
    while (m_commands.numUndo() > 0) {
        fetchAhead(std::make_reverse_iterator(m_commands.undoEnd()), m_commands.numUndo());
        undo();
    }
}

void CommandHistory::redoAll()
{
    while (m_commands.numRedo() > 0) {
        fetchAhead(m_commands.redoBegin(), m_commands.numRedo());
        redo();
    }
}

void CommandHistory::dropRedoCommands()
{
    Run const run(*this);
    m_commands.clearRedo();
}

void CommandHistory::combineLastCommands()
{
    Run const run(*this);
    if (m_commands.numUndo() < 2) {
        return;
    }
    CommandSequence::Iterator const second = std::prev(m_commands.undoEnd());
    boost::shared_ptr<Command> const combined = (*std::prev(second))->combine(*second);
    if (!combined) {
        throw TarnMediaLibException("no command from combining");
    }
    m_commands.replaceNewestTwo(combined);
}

CommandHistoryState CommandHistory::state() const
{
    return CommandHistoryState(
        getCurrentUndoStackTop(),
        CommandHistoryState::CommandList(redoListBegin(m_commands), redoListEnd(m_commands)));
}

boost::shared_ptr<Command const> CommandHistory::getCurrentUndoStackTop() const
{
    return m_commands.numUndo() == 0 ? boost::shared_ptr<Command const>()
                                     : *std::prev(m_commands.undoEnd());
}

void CommandHistory::restoreState(CommandHistoryState const& state)
{
    // Room is made before anything is undone, so that nothing can fail behind that.
    CommandSequence::Commands const redo(state.redoCommands().begin(), state.redoCommands().end());
    CommandSequence::Commands old;
    old.reserve(m_commands.numRedo());
    m_commands.makeRoomFor(redo.size());
    {
        Run const run(*this);
        if (!unrollTo(state.undoTop())) {
            std::cerr << description() << std::endl;
            throw ValueException<CommandHistoryState>(
                "State cannot be restored, cannot find undo top", state);
        }
        m_commands.replaceRedo(redo, old);
    }
    notify();
}

bool CommandHistory::canBeUndone(boost::shared_ptr<Command const> const& command) const
{
    return std::find(m_commands.undoBegin(), m_commands.undoEnd(), command) != m_commands.undoEnd();
}

bool CommandHistory::canBeRedone(boost::shared_ptr<Command const> const& command) const
{
    return std::find(m_commands.redoBegin(), m_commands.redoEnd(), command) != m_commands.redoEnd();
}

bool CommandHistory::unrollTo(boost::shared_ptr<Command const> const& top)
{
    if (!top || canBeUndone(top)) {
        while (m_commands.numUndo() > 0 && getCurrentUndoStackTop() != top) {
            m_commands.takeUndo()->unexecute(m_handler);
        }
        return true;
    }
    if (!canBeRedone(top)) {
        return false;
    }
    // Kept so: entries of the redo list are unexecuted too, not run again, when the top is there.
    while (*m_commands.redoBegin() != top) {
        m_commands.takeRedo()->unexecute(m_handler);
    }
    return true;
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
    while (m_commands.numUndo() > static_cast<std::size_t>(m_undoLimit)) {
        m_commands.dropOldest();
    }
}

void CommandHistory::xmlName(XMLable::Options& options) const
{
    *options.stream << "CommandHistory";
}

void CommandHistory::xmlAttributes(XMLable::Options&) const {}

void CommandHistory::xmlBody(XMLable::Options& options, int indent) const
{
    writeStack(options, indent, "UndoStack", m_commands.undoBegin(), m_commands.undoEnd());
    writeStack(options, indent, "RedoStack", redoListBegin(m_commands), redoListEnd(m_commands));
}

void CommandHistory::xmlOfUndoCommands(XMLable::Options& options, int indent) const
{
    writeCommands(options, indent, m_commands.undoBegin(), m_commands.undoEnd());
}

}  // namespace tarn
