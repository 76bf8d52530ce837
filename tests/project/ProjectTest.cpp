#include "project/Project.h"

#include "support/CountingObserver.h"
#include "support/LoadingTest.h"
#include "support/OtherThread.h"
#include "support/ScriptedCmd.h"
#include "support/Thrown.h"
#include "support/Xml.h"

#include "clipbin/ClipBoard.h"
#include "clipbin/MediaFileStats.h"
#include "commands/CommandHistory.h"
#include "commands/CommandObserver.h"
#include "exceptions/CollisionException.h"
#include "exceptions/IOException.h"
#include "exceptions/ValueException.h"

#include <boost/smart_ptr/bad_weak_ptr.hpp>

#include <functional>
#include <memory>

namespace tarn {
namespace test {

namespace {

/// The text of the E that the action throws. Boost throws classes derived from its own.
template <class E, class Action>
std::string boostText(Action const& action)
{
    try {
        action();
    } catch (E const& thrown) {
        return thrown.what();
    }
    return "(nothing thrown)";
}

class PreCommandObserver : public CommandObserver
{
public:
    void onPreCommand() override
    {
        ++calls;
        if (action) {
            action();
        }
    }

    int calls = 0;
    std::function<void()> action;
};

class ProjectTest : public LoadingTest
{
protected:
    boost::shared_ptr<ScriptedCmd> scripted(std::string const& name)
    {
        return ScriptedCmd::create(name, log);
    }
    void execute(std::string const& name) { project->execute(scripted(name)); }
    std::size_t numUndoCommands() const { return project->commandHistory()->numUndoCommands(); }
    /// A thread that asks the project for its lock to read.
    std::unique_ptr<OtherThread> reader() const
    {
        return std::make_unique<OtherThread>([this] { project->timeline(); });
    }

    std::string log;
    PreCommandObserver observer;
};

}  // namespace

TEST_F(ProjectTest, AnEditRateWithoutADenominatorIsRefused)
{
    EXPECT_EQ("bad rational: zero denominator",
              boostText<boost::bad_rational>([] { Project::create(30, 0); }));
}

TEST_F(ProjectTest, TheEditRateIsNormalised)
{
    boost::shared_ptr<Project> const made = Project::create(60, 2);
    EXPECT_EQ(30u, made->editRate().numerator());
    EXPECT_EQ(1u, made->editRate().denominator());
    EXPECT_NE(std::string::npos, xmlOf(*made).find("editRate=\"30/1\""));
}

TEST_F(ProjectTest, AnEditRateOfZeroIsAccepted)
{
    EXPECT_EQ(0u, Project::create(0, 5)->editRate().numerator());
}

TEST_F(ProjectTest, IsMadeFromARationalToo)
{
    boost::rational<unsigned long> const rate(30000, 1001);
    EXPECT_EQ(rate, Project::create(rate)->editRate());
}

TEST_F(ProjectTest, HasItsFourPartsFromTheStart)
{
    EXPECT_TRUE(project->timeline());
    EXPECT_TRUE(project->sourceBin());
    EXPECT_TRUE(project->clipBoard());
    EXPECT_TRUE(project->commandHistory());
    EXPECT_EQ(0u, numUndoCommands());
    EXPECT_FALSE(project->timeline()->hasVisualMixer());
}

TEST_F(ProjectTest, ItsPartsShareItsLock)
{
    EXPECT_EQ(&project->mutex(), &project->timeline()->mutex());
    EXPECT_EQ(&project->mutex(), &project->sourceBin()->mutex());
}

TEST_F(ProjectTest, APartThatOutlivesItHasNoLock)
{
    boost::shared_ptr<Project> made = Project::create(30, 1);
    boost::shared_ptr<Timeline> const timeline = made->timeline();
    made.reset();
    EXPECT_EQ("tr1::bad_weak_ptr", boostText<boost::bad_weak_ptr>([&] { timeline->mutex(); }));
}

TEST_F(ProjectTest, PrintsItsEmptyTextsItsBinAndItsTimeline)
{
    EXPECT_EQ("<Project id=\"#\" editRate=\"30/1\" version=\"1.0\" >\n"
              " <Author></Author>\n"
              " <Comment></Comment>\n"
              " <System></System>\n"
              " <SourceBin id=\"#\"  >\n"
              " </SourceBin>\n"
              " <Timeline id=\"#\"  >\n"
              " </Timeline>\n"
              "</Project>\n",
              xmlOf(*project));
}

TEST_F(ProjectTest, RunsACommandWithItsOwnHandlerAndRecordsIt)
{
    boost::shared_ptr<ScriptedCmd> const command = scripted("a");
    EXPECT_TRUE(project->execute(command));
    EXPECT_EQ(static_cast<CommandHandler*>(project.get()), command->handler());
    EXPECT_EQ(command, project->commandState().undoTop());
    project->undo();
    project->redo();
    EXPECT_EQ("+a -a *a ", log);
}

TEST_F(ProjectTest, ACommandWithNothingToDoIsNotRecorded)
{
    boost::shared_ptr<ScriptedCmd> const command = scripted("a");
    command->result = false;
    EXPECT_FALSE(project->execute(command));
    EXPECT_EQ(0u, numUndoCommands());
}

TEST_F(ProjectTest, NothingToUndoOrRedoIsTold)
{
    EXPECT_STREQ("no commands to undo",
                 thrownBy<TarnMediaLibException>([&] { project->undo(); }).what());
    EXPECT_STREQ("no commands to redo",
                 thrownBy<TarnMediaLibException>([&] { project->redo(); }).what());
}

TEST_F(ProjectTest, WhatACommandThrowsPassesOnAndTheLockIsFree)
{
    boost::shared_ptr<ScriptedCmd> const command = scripted("a");
    command->onExecute = [] { throw std::string("thrown"); };
    EXPECT_THROW(project->execute(command), std::string);
    EXPECT_EQ(0u, numUndoCommands());
    EXPECT_TRUE(reader()->finishes());
}

TEST_F(ProjectTest, WhatACommandThrowsWhenUndonePassesOnAndTheLockIsFree)
{
    boost::shared_ptr<ScriptedCmd> const command = scripted("a");
    command->onUnexecute = [] { throw std::string("thrown"); };
    project->execute(command);
    EXPECT_THROW(project->undo(), std::string);
    EXPECT_TRUE(reader()->finishes());
    EXPECT_THROW(project->redo(), TarnMediaLibException);
}

TEST_F(ProjectTest, ACommandRunsUnderTheWriteLock)
{
    std::unique_ptr<OtherThread> other;
    bool waited = false;
    boost::shared_ptr<ScriptedCmd> const command = scripted("a");
    command->onExecute = [&] {
        other = reader();
        waited = other->isWaiting();
    };
    project->execute(command);
    EXPECT_TRUE(waited);
    EXPECT_TRUE(other->finishes());
}

TEST_F(ProjectTest, ACommandMayReadWhatItEdits)
{
    boost::shared_ptr<ScriptedCmd> const command = scripted("a");
    command->onExecute = [&] { EXPECT_TRUE(project->timeline()); };
    project->execute(command);
    EXPECT_TRUE(reader()->finishes());
}

TEST_F(ProjectTest, ObserversHearOfAnEditWhenItIsDoneAndStillUnderTheWriteLock)
{
    given("V1: aaa");
    std::unique_ptr<OtherThread> other;
    bool waited = false;
    Range<long long> seen;
    CountingObserver watcher([&] {
        seen = media("V1.a")->trackRange();
        if (!other) {
            other = reader();
            waited = other->isWaiting();
        }
    });
    media("V1.a")->attach(&watcher);
    project->execute(move("V1.a", 2));
    media("V1.a")->detach(&watcher);
    EXPECT_EQ(Range<long long>(20, 30), seen);
    EXPECT_TRUE(waited);
    EXPECT_TRUE(other->finishes());
}

TEST_F(ProjectTest, EveryNotificationOfAnEditIsHeldBackUntilItIsDone)
{
    given("V1: aaa");
    CountingObserver watcher;
    media("V1.a")->attach(&watcher);
    boost::shared_ptr<ScriptedCmd> const command = scripted("a");
    command->onExecute = [&] {
        media("V1.a")->notify();
        media("V1.a")->notify();
        EXPECT_EQ(0, watcher.calls());
    };
    project->execute(command);
    media("V1.a")->detach(&watcher);
    EXPECT_EQ(2, watcher.calls());
}

TEST_F(ProjectTest, UndoAndRedoHoldNotificationsBackAsWell)
{
    given("V1: aaa");
    CountingObserver watcher;
    media("V1.a")->attach(&watcher);
    boost::shared_ptr<ScriptedCmd> const command = scripted("a");
    command->onUnexecute = command->onReexecute = [&] {
        int const before = watcher.calls();
        media("V1.a")->notify();
        EXPECT_EQ(before, watcher.calls());
    };
    project->execute(command);
    project->undo();
    EXPECT_EQ(1, watcher.calls());
    project->redo();
    EXPECT_EQ(2, watcher.calls());
    media("V1.a")->detach(&watcher);
}

TEST_F(ProjectTest, WhatAnObserverThrowsPassesOnAndTheCommandStaysRecorded)
{
    given("V1: aaa");
    CountingObserver watcher([] { throw std::string("thrown"); });
    media("V1.a")->attach(&watcher);
    EXPECT_THROW(project->execute(move("V1.a", 2)), std::string);
    media("V1.a")->detach(&watcher);
    EXPECT_EQ(1u, numUndoCommands());
    EXPECT_EQ("V1: ..aaa", strip());
    EXPECT_TRUE(reader()->finishes());
}

TEST_F(ProjectTest, NeverNotifiesOfItself)
{
    CountingObserver watcher;
    project->attach(&watcher);
    execute("a");
    project->undo();
    project->redo();
    project->detach(&watcher);
    EXPECT_EQ(0, watcher.calls());
}

TEST_F(ProjectTest, OneCommandObserverIsCalledBeforeEachEdit)
{
    project->attachCommandObserver(&observer);
    observer.action = [&] { log += "pre "; };
    execute("a");
    project->undo();
    project->redo();
    project->restoreCommandState(project->commandState());
    EXPECT_EQ("pre +a pre -a pre *a pre ", log);
    project->detachCommandObserver(&observer);
    project->undo();
    EXPECT_EQ(4, observer.calls);
}

TEST_F(ProjectTest, TheCommandObserverIsCalledBeforeTheLockIsTakenToExecute)
{
    std::unique_ptr<OtherThread> other;
    bool finished = false;
    observer.action = [&] {
        other = reader();
        finished = other->finishes();
    };
    project->attachCommandObserver(&observer);
    execute("a");
    EXPECT_TRUE(finished);
}

TEST_F(ProjectTest, TheCommandObserverIsCalledWithTheLockHeldToUndo)
{
    execute("a");
    std::unique_ptr<OtherThread> other;
    bool waited = false;
    observer.action = [&] {
        other = reader();
        waited = other->isWaiting();
    };
    project->attachCommandObserver(&observer);
    project->undo();
    EXPECT_TRUE(waited);
    EXPECT_TRUE(other->finishes());
}

TEST_F(ProjectTest, TheCommandObserverHearsOfACommandThatFailsAndOfAnUndoOfNothing)
{
    project->attachCommandObserver(&observer);
    EXPECT_THROW(project->undo(), TarnMediaLibException);
    EXPECT_THROW(project->redo(), TarnMediaLibException);
    EXPECT_EQ(2, observer.calls);
}

TEST_F(ProjectTest, WhatTheCommandObserverThrowsStopsTheEditAndTheLockIsFree)
{
    execute("a");
    project->attachCommandObserver(&observer);
    observer.action = [] { throw std::string("thrown"); };
    EXPECT_THROW(execute("b"), std::string);
    EXPECT_THROW(project->undo(), std::string);
    EXPECT_EQ("+a ", log);
    EXPECT_EQ(1u, numUndoCommands());
    EXPECT_TRUE(reader()->finishes());
}

TEST_F(ProjectTest, ASecondCommandObserverIsRefusedEvenIfItIsTheSame)
{
    PreCommandObserver another;
    project->attachCommandObserver(&observer);
    auto const attach = [&](CommandObserver* more) {
        return std::string(
            thrownBy<TarnMediaLibException>([&] { project->attachCommandObserver(more); }).what());
    };
    EXPECT_EQ("currently only supports one observer.", attach(&observer));
    EXPECT_EQ("currently only supports one observer.", attach(&another));
    EXPECT_EQ("currently only supports one observer.", attach(nullptr));
}

TEST_F(ProjectTest, DetachingAnythingButTheCommandObserverIsRefused)
{
    auto const detach = [&](CommandObserver* other) {
        return std::string(
            thrownBy<TarnMediaLibException>([&] { project->detachCommandObserver(other); }).what());
    };
    EXPECT_EQ("trying to detach a non observer", detach(&observer));
    project->attachCommandObserver(&observer);
    EXPECT_EQ("trying to detach a non observer", detach(nullptr));
    project->detachCommandObserver(&observer);
    EXPECT_EQ("trying to detach a non observer", detach(&observer));
}

TEST_F(ProjectTest, AnEmptyCommandObserverComesAndGoesUnnoticed)
{
    project->attachCommandObserver(nullptr);
    project->detachCommandObserver(nullptr);
    project->attachCommandObserver(&observer);
    execute("a");
    EXPECT_EQ(1, observer.calls);
}

TEST_F(ProjectTest, TheNextCommandIsCombinedWithTheNewestOfBefore)
{
    execute("a");
    project->combineNextCommand();
    execute("b");
    EXPECT_EQ(1u, numUndoCommands());
    project->undo();
    EXPECT_EQ("+a +b -b -a ", log);
}

TEST_F(ProjectTest, OnlyOneCommandIsCombined)
{
    execute("a");
    project->combineNextCommand();
    execute("b");
    execute("c");
    EXPECT_EQ(2u, numUndoCommands());
}

TEST_F(ProjectTest, AnUnrecordedCommandMergesTheTwoNewestAllTheSame)
{
    execute("a");
    execute("b");
    project->combineNextCommand();
    boost::shared_ptr<ScriptedCmd> const nothing = scripted("c");
    nothing->result = false;
    EXPECT_FALSE(project->execute(nothing));
    EXPECT_EQ(1u, numUndoCommands());
    execute("d");
    EXPECT_EQ(2u, numUndoCommands());
}

TEST_F(ProjectTest, WithAnEmptyHistoryTheNextCommandIsCombinedWithNothing)
{
    project->combineNextCommand();
    execute("a");
    EXPECT_EQ(1u, numUndoCommands());
    execute("b");
    EXPECT_EQ(2u, numUndoCommands());
}

TEST_F(ProjectTest, WithOneEntryAnUnrecordedCommandCombinesNothing)
{
    boost::shared_ptr<ScriptedCmd> const first = scripted("a");
    project->execute(first);
    project->combineNextCommand();
    boost::shared_ptr<ScriptedCmd> const nothing = scripted("b");
    nothing->result = false;
    project->execute(nothing);
    EXPECT_EQ(first, project->commandState().undoTop());
    execute("c");
    EXPECT_EQ(2u, numUndoCommands());
}

TEST_F(ProjectTest, UndoAndRedoLeaveTheNextCommandToBeCombined)
{
    execute("a");
    project->combineNextCommand();
    project->undo();
    project->redo();
    execute("b");
    EXPECT_EQ(1u, numUndoCommands());
}

TEST_F(ProjectTest, AFailedCommandLeavesTheNextOneToBeCombined)
{
    execute("a");
    project->combineNextCommand();
    boost::shared_ptr<ScriptedCmd> const failing = scripted("b");
    failing->onExecute = [] { throw std::string("thrown"); };
    EXPECT_THROW(project->execute(failing), std::string);
    EXPECT_EQ(1u, numUndoCommands());
    execute("c");
    EXPECT_EQ(1u, numUndoCommands());
}

TEST_F(ProjectTest, TheTwoNewestCanBeCombinedByHandWithoutTellingAnyone)
{
    execute("a");
    execute("b");
    execute("c");
    project->attachCommandObserver(&observer);
    CountingObserver watcher;
    project->commandHistory()->attach(&watcher);
    project->combineLastCommands();
    project->commandHistory()->detach(&watcher);
    EXPECT_EQ(2u, numUndoCommands());
    EXPECT_EQ(0, observer.calls);
    EXPECT_EQ(0, watcher.calls());
    EXPECT_EQ("+a +b +c ", log);
}

TEST_F(ProjectTest, ASnapshotIsRestoredByUndoingWhatCameAfter)
{
    execute("a");
    CommandHistoryState const state = project->commandState();
    execute("b");
    execute("c");
    log.clear();
    project->restoreCommandState(state);
    EXPECT_EQ("-c -b ", log);
    EXPECT_EQ(state.undoTop(), project->commandState().undoTop());
}

TEST_F(ProjectTest, ASnapshotTheHistoryNoLongerKnowsIsRefused)
{
    execute("a");
    CommandHistoryState const state = project->commandState();
    project->commandHistory()->setUndoLimit(0);
    testing::internal::CaptureStderr();
    auto const thrown =
        thrownBy<ValueException<CommandHistoryState>>([&] { project->restoreCommandState(state); });
    std::string const written = testing::internal::GetCapturedStderr();
    EXPECT_STREQ("State cannot be restored, cannot find undo top", thrown.what());
    EXPECT_EQ(state.undoTop(), thrown.value().undoTop());
    EXPECT_NE(std::string::npos, written.find("<CommandHistory "));
    EXPECT_TRUE(reader()->finishes());
}

TEST_F(ProjectTest, ASourcesFileIsReplacedWithoutAStepToUndo)
{
    Files::instance().set("fake:old", {Files::picture(20)});
    Files::instance().set("fake:new", {Files::picture(20)});
    boost::shared_ptr<Source const> const loaded = load("fake:old");
    project->attachCommandObserver(&observer);
    project->changeSourcesFile(loaded, "fake:new");
    EXPECT_EQ("fake:new", loaded->mediaFileStats()->filename());
    EXPECT_EQ(1u, numUndoCommands());
    EXPECT_EQ(0, observer.calls);
    EXPECT_TRUE(reader()->finishes());
}

TEST_F(ProjectTest, ASourcesFileIsNotReplacedByAnIncompatibleOne)
{
    Files::instance().set("fake:old", {Files::picture(20)});
    Files::instance().set("fake:longer", {Files::picture(600)});
    boost::shared_ptr<Source const> const loaded = load("fake:old");
    auto const thrown =
        thrownBy<TarnMediaLibException>([&] { project->changeSourcesFile(loaded, "fake:longer"); });
    EXPECT_STREQ("attempting to replace source's file with an incompatable file", thrown.what());
    EXPECT_EQ("fake:old", loaded->mediaFileStats()->filename());
    EXPECT_TRUE(reader()->finishes());
}

TEST_F(ProjectTest, ASentryIsAddedWithoutAStepToUndo)
{
    auto const sentry = boost::make_shared<FixedSentry>(true);
    project->attachCommandObserver(&observer);
    project->addSourceBinSentry(sentry);
    EXPECT_EQ(0, observer.calls);
    EXPECT_EQ(0u, numUndoCommands());
    Files::instance().set("fake:old", {Files::picture(20)});
    load("fake:old");
    EXPECT_EQ(1, sentry->calls());
}

}  // namespace test
}  // namespace tarn
