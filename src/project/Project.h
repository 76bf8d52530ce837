#pragma once

#include "clipbin/ClipBinFwd.h"
#include "commands/CommandsFwd.h"
#include "datatypes/Export.h"
#include "datatypes/Subject.h"
#include "datatypes/XMLable.h"
#include "project/LockPolicy.h"
#include "project/ProjectEditRate.h"
#include "project/ThreadSafe.h"
#include "timeline/TimelineFwd.h"

#include <boost/rational.hpp>
#include <boost/shared_ptr.hpp>

#include <string>

namespace tarn {

/// The door into the library: everything a host changes goes through execute(), undo() and redo().
///
/// Each edit takes the project's write lock, calls the command observer, and tells observers of the
/// model when all is done, with the lock still held. As a project is created by default, edits
/// belong to one thread at a time, and beside an editing thread one other thread may read; with
/// LockPolicy::Strict any number may. Never call an edit while the thread holds a read lock, as a
/// const iterator does: it would wait for ever, or with LockPolicy::Strict throw
/// ThreadLockingException. The project ends with its last shared pointer.
class TARN_API Project : public XMLable, public ThreadSafe, public ProjectEditRate, public Subject
{
public:
    /// `rate` is edit units a second, for the project's life, and so is the lock's policy.
    static boost::shared_ptr<Project> create(boost::rational<unsigned long> const& rate,
                                             LockPolicy policy = LockPolicy::Counted);
    /// @throws boost::bad_rational for a denominator of 0
    static boost::shared_ptr<Project> create(unsigned int numerator, unsigned int denominator,
                                             LockPolicy policy = LockPolicy::Counted);

    /// Runs a command and records it. The observer is called before the lock is taken.
    /// @return false when the command found nothing to do, and so was not recorded
    /// @throws what the command throws; it is then not recorded
    /// @throws what an observer of the model throws, once all are told; the command stays recorded
    /// @throws what combining throws; the command stays recorded as a step of its own, and the next
    ///         one is to be combined with it
    virtual bool execute(boost::shared_ptr<Command> const& command) = 0;
    /// @throws TarnMediaLibException "no commands to undo", and what the command throws, which is
    ///         then lost
    virtual void undo() = 0;
    /// @throws TarnMediaLibException "no commands to redo", and what the command throws, which is
    ///         then lost
    virtual void redo() = 0;
    /// Makes one step of the two newest, if there are two.
    virtual void combineLastCommands() = 0;
    /// The next command executed is then combined with the newest one of now. Takes no lock.
    virtual void combineNextCommand() = 0;
    /// A snapshot to come back to by restoreCommandState(). Read lock.
    virtual CommandHistoryState commandState() const = 0;
    /// Undoes what was done since the snapshot, and drops it.
    /// @throws ValueException<CommandHistoryState> when the history no longer knows that state
    virtual void restoreCommandState(CommandHistoryState const& state) = 0;
    /// At most one, not owned. Neither call takes a lock.
    /// @throws TarnMediaLibException "currently only supports one observer."
    virtual void attachCommandObserver(CommandObserver* observer) = 0;
    /// @throws TarnMediaLibException "trying to detach a non observer"
    virtual void detachCommandObserver(CommandObserver* observer) = 0;

    /// What is edited. Owned by the project and never replaced; read lock, here and below.
    virtual boost::shared_ptr<Timeline> timeline() const = 0;
    /// What was loaded.
    virtual boost::shared_ptr<SourceBin> sourceBin() const = 0;
    /// What can be undone and redone.
    virtual boost::shared_ptr<CommandHistory> commandHistory() const = 0;
    /// What was copied; owned by the project, as are those above.
    virtual boost::shared_ptr<ClipBoard> clipBoard() = 0;

    /// Not undoable. Takes the write lock, and calls no command observer.
    /// @throws what Source::changeFile() throws
    virtual void changeSourcesFile(boost::shared_ptr<Source const> const& source,
                                   std::string const& newFile) = 0;
    /// Not undoable. Takes the write lock, and calls no command observer.
    virtual void addSourceBinSentry(boost::shared_ptr<SourceBinSentry> const& sentry) = 0;
};

}  // namespace tarn
