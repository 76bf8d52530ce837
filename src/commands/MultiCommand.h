#pragma once

#include "commands/Command.h"
#include "datatypes/Subject.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>

namespace tarn {

/// One step made of many. A subclass's executeCommands() only runs other commands, by execute();
/// they are undone newest first, and redone in their first order without being computed anew.
///
/// When anything is thrown, what has run is taken back and the exception passes on; so it is with
/// an undo and a redo. Should the taking back fail, its exception takes the first one's place, and
/// the model stays as it is between the two steps where that ended: so it may be when memory runs
/// out and stays out. Execute an object once: it keeps what it ran.
class TARN_API MultiCommand : public Command
{
public:
    bool execute(CommandHandler* handler) override;
    bool unexecute(CommandHandler* handler) override;
    bool reexecute(CommandHandler* handler) override;

    /// Runs a command as the next part of this one.
    /// @return false when it found nothing to do
    bool execute(boost::shared_ptr<Command> command);

    std::size_t numUndoCommands() const;

protected:
    MultiCommand();
    /// The copy has run nothing.
    MultiCommand(MultiCommand const& other);

    virtual void executeCommands(CommandHandler const* handler) = 0;

    /// For a composite that knows how many commands it is about to run. @throws std::bad_alloc
    void makeRoomFor(std::size_t count);
    /// What has run, oldest first, for the body of a subclass that shows it.
    void xmlOfCommands(XMLable::Options& options, int indent) const;

private:
    boost::shared_ptr<CommandHistory> m_history;
    // Nobody else knows the history, so nobody could observe it.
    Subject::NotifyDisabler m_silence;
};

}  // namespace tarn
