#pragma once

#include "commands/CommandHistoryState.h"
#include "commands/CommandSequence.h"
#include "commands/CommandsFwd.h"
#include "datatypes/Cloneable.h"
#include "datatypes/Export.h"
#include "datatypes/Subject.h"
#include "datatypes/TarnObject.h"
#include "datatypes/XMLable.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <string>

namespace tarn {

/// The commands that can be undone and redone. Notifies when either changes, except on combining.
///
/// Has no lock: a project runs it under its write lock. A command that throws while it is undone or
/// redone is on neither list afterwards.
///
/// While a command runs, whoever it calls (a host's handler, a sentry, a loader) may only read
/// here: every operation that changes a list throws TarnMediaLibException "a command is running"
/// and changes nothing. Observers are called when the command is over, and may edit.
class TARN_API CommandHistory : public TarnObject, public Cloneable, public Subject, public XMLable
{
public:
    /// `handler` is what commands are given; not owned, and empty until the owner sets it.
    explicit CommandHistory(CommandHandler* handler);
    ~CommandHistory() override;

    /// The history's XML.
    std::string description() const override;
    /// With a copy of every command, and without a handler.
    CommandHistory* clone() const override;

    /// What commands are given from now on; not owned.
    void setCommandHandler(CommandHandler* handler) { m_handler = handler; }

    /// Runs a command and records it, which drops what could be redone. It holds a share of its own
    /// while it runs, as the caller may lose his.
    /// @return false when the command found nothing to do; nothing has changed then
    /// @throws TarnMediaLibException for an empty pointer, and what the command throws; it is not
    ///         recorded then
    bool execute(boost::shared_ptr<Command> command);
    /// @throws TarnMediaLibException "no commands to undo", and what the command throws
    void undo();
    /// Does not apply the undo limit.
    /// @throws TarnMediaLibException "no commands to redo", and what the command throws
    void redo();
    /// Undoes until nothing is left. @throws what undo() throws
    void undoAll();
    /// Redoes until nothing is left. @throws what redo() throws
    void redoAll();
    /// Sees to it that so many more commands are recorded without moving those that are.
    /// @throws std::bad_alloc
    void makeRoomFor(std::size_t count) { m_commands.makeRoomFor(count); }
    /// Drops what could be redone; does not notify.
    void dropRedoCommands();

    /// Puts first->combine(second) in the place of the two newest; neither runs. With fewer than
    /// two it does nothing. Does not notify; unchanged when it throws.
    void combineLastCommands();

    /// A snapshot of now.
    CommandHistoryState state() const;
    /// Undoes and drops what was executed since the snapshot.
    /// @throws ValueException<CommandHistoryState> "State cannot be restored, cannot find undo
    /// top",
    ///         once the history's XML has gone to std::cerr; unchanged then
    void restoreState(CommandHistoryState const& state);

    /// How many commands can be undone at most; negative, as at first, for no limit.
    int undoLimit() const { return m_undoLimit; }
    /// Drops the oldest at once that are too many, without undoing them. A host with other threads
    /// holds the project's write lock meanwhile: what is dropped may be the last owner of objects.
    void setUndoLimit(int limit);

    /// How many steps undo() can take.
    std::size_t numUndoCommands() const { return m_commands.numUndo(); }
    /// How many steps redo() can take.
    std::size_t numRedoCommands() const { return m_commands.numRedo(); }

    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;
    /// The commands that can be undone, oldest first, each as an element of its own.
    void xmlOfUndoCommands(XMLable::Options& options, int indent) const;

private:
    class Run;

    CommandHistory(CommandHistory const& other);
    CommandHistory& operator=(CommandHistory const&) = delete;

    boost::shared_ptr<Command const> getCurrentUndoStackTop() const;
    void removeExcessCommands();
    bool canBeUndone(boost::shared_ptr<Command const> const& command) const;
    bool canBeRedone(boost::shared_ptr<Command const> const& command) const;
    /// @return false when neither list holds `top`; nothing has changed then
    bool unrollTo(boost::shared_ptr<Command const> const& top);

    CommandHandler* m_handler;
    CommandSequence m_commands;
    int m_undoLimit;
    bool m_isRunning;
};

}  // namespace tarn
