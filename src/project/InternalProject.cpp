#include "project/InternalProject.h"

#include "clipbin/ClipBoard.h"
#include "clipbin/SourceBin.h"
#include "commands/CommandHistory.h"
#include "commands/CommandHistoryState.h"
#include "commands/CommandObserver.h"
#include "commands/DefaultEdgeModCommandHandler.h"
#include "datatypes/NotifyDelay.h"
#include "datatypes/UpdateCollector.h"
#include "exceptions/TarnMediaLibException.h"
#include "project/ReadLockIfAny.h"
#include "project/ReadWriteMutex.h"
#include "timeline/Timeline.h"

namespace tarn {

namespace {

char const k_version[] = "1.0";

}  // namespace

boost::shared_ptr<InternalProject> InternalProject::create(
    boost::rational<unsigned long> const& rate, LockPolicy policy)
{
    // Two stages, since what a project owns needs a weak pointer to it.
    boost::shared_ptr<InternalProject> const project(new InternalProject(rate, policy));
    project->init();
    return project;
}

InternalProject::InternalProject(boost::rational<unsigned long> const& rate, LockPolicy policy)
    : m_commandHistory(new CommandHistory(this))
    , m_editRate(rate)
    , m_version(k_version)
    , m_mutex(new ReadWriteMutex(policy))
    , m_commandObserver(nullptr)
    , m_edgeModCommandHandler(new DefaultEdgeModCommandHandler)
    , m_combineNextCommand(false)
{
    // Made now, as later they are first asked for when the model has changed, and must not fail.
    NotifyDelay::isActive();
    UpdateCollector::instance();
}

// Author, comment and system are not carried over: they belong to the document, not to its copy.
InternalProject::InternalProject(InternalProject const& other)
    : XMLIdentified(other)
    , TarnObject(other)
    , Cloneable(other)
    , Project(other)
    , CommandHandler(other)
    , boost::enable_shared_from_this<InternalProject>(other)
    , m_timeline(other.m_timeline->clone())
    , m_commandHistory(other.m_commandHistory->clone())
    , m_editRate(other.m_editRate)
    , m_version(k_version)
    , m_commandObserver(nullptr)
    , m_edgeModCommandHandler(new DefaultEdgeModCommandHandler)
    , m_combineNextCommand(false)
{
    setCommandHandler(this);
}

InternalProject::~InternalProject() = default;

void InternalProject::init()
{
    boost::weak_ptr<InternalProject> const self = weak_from_this();
    m_sourceBin.reset(new SourceBin(self, self));
    m_timeline.reset(new Timeline(self));
    m_clipBoard.reset(new ClipBoard(self));
}

std::string InternalProject::description() const
{
    return std::string();
}

InternalProject* InternalProject::clone() const
{
    ReadLockIfAny lock(m_mutex);
    return new InternalProject(*this);
}

// What edits runs host code, which may let go of the project: it then dies when the edit is over.

bool InternalProject::execute(boost::shared_ptr<Command> const& command)
{
    boost::shared_ptr<InternalProject> const outlivesTheLock = weak_from_this().lock();
    // Kept so: the observer comes before the lock here, and after it in undo and redo; a host may
    // still read with its own locks before it edits.
    notifyPreCommandObservers(m_commandObserver);
    ReadWriteMutex::ScopedWriteLock lock(mutex());
    NotifyDelay delay;
    bool const wasExecuted = m_commandHistory->execute(command);
    // Kept so: a command that found nothing to do combines the two before it all the same.
    if (m_combineNextCommand) {
        combineLastCommands();
        m_combineNextCommand = false;
    }
    return wasExecuted;
}

void InternalProject::undo()
{
    boost::shared_ptr<InternalProject> const outlivesTheLock = weak_from_this().lock();
    ReadWriteMutex::ScopedWriteLock lock(mutex());
    notifyPreCommandObservers(m_commandObserver);
    NotifyDelay delay;
    m_commandHistory->undo();
}

void InternalProject::redo()
{
    boost::shared_ptr<InternalProject> const outlivesTheLock = weak_from_this().lock();
    ReadWriteMutex::ScopedWriteLock lock(mutex());
    notifyPreCommandObservers(m_commandObserver);
    NotifyDelay delay;
    m_commandHistory->redo();
}

void InternalProject::combineLastCommands()
{
    boost::shared_ptr<InternalProject> const outlivesTheLock = weak_from_this().lock();
    ReadWriteMutex::ScopedWriteLock lock(mutex());
    m_commandHistory->combineLastCommands();
}

void InternalProject::combineNextCommand()
{
    m_combineNextCommand = true;
}

CommandHistoryState InternalProject::commandState() const
{
    ReadLockIfAny lock(m_mutex);
    return m_commandHistory->state();
}

void InternalProject::restoreCommandState(CommandHistoryState const& state)
{
    boost::shared_ptr<InternalProject> const outlivesTheLock = weak_from_this().lock();
    ReadWriteMutex::ScopedWriteLock lock(mutex());
    notifyPreCommandObservers(m_commandObserver);
    NotifyDelay delay;
    m_commandHistory->restoreState(state);
}

void InternalProject::attachCommandObserver(CommandObserver* observer)
{
    if (m_commandObserver)
        throw TarnMediaLibException("currently only supports one observer.");
    m_commandObserver = observer;
}

void InternalProject::detachCommandObserver(CommandObserver* observer)
{
    if (m_commandObserver != observer)
        throw TarnMediaLibException("trying to detach a non observer");
    m_commandObserver = nullptr;
}

void InternalProject::setCommandHandler(CommandHandler* handler)
{
    m_commandHistory->setCommandHandler(handler);
}

EdgeModCommandHandler* InternalProject::edgeModCommandHandler()
{
    return m_edgeModCommandHandler.get();
}

boost::shared_ptr<Timeline> InternalProject::timeline() const
{
    ReadLockIfAny lock(m_mutex);
    return m_timeline;
}

boost::shared_ptr<SourceBin> InternalProject::sourceBin() const
{
    ReadLockIfAny lock(m_mutex);
    return m_sourceBin;
}

boost::shared_ptr<CommandHistory> InternalProject::commandHistory() const
{
    ReadLockIfAny lock(m_mutex);
    return m_commandHistory;
}

boost::shared_ptr<ClipBoard> InternalProject::clipBoard()
{
    ReadLockIfAny lock(m_mutex);
    return m_clipBoard;
}

boost::rational<unsigned long> InternalProject::editRate() const
{
    return m_editRate;
}

ReadWriteMutex& InternalProject::mutex() const
{
    if (!m_mutex)
        throw TarnMediaLibException("a cloned project has no lock");
    return *m_mutex;
}

}  // namespace tarn
