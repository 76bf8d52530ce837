#include "commands/CommandHistory.h"

#include "commands/CommandPair.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"
#include "support/CountingObserver.h"
#include "support/ScriptedCmd.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace tarn {
namespace test {

namespace {

/// Catches what goes to the error stream.
class CaughtErrors
{
public:
    CaughtErrors() : m_buffer(std::cerr.rdbuf(m_text.rdbuf())) {}
    ~CaughtErrors() { std::cerr.rdbuf(m_buffer); }
    CaughtErrors(CaughtErrors const&) = delete;
    CaughtErrors& operator=(CaughtErrors const&) = delete;

    std::string text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
    std::streambuf* m_buffer;
};

std::string messageOf(std::function<void()> const& action)
{
    try {
        action();
    } catch (TarnMediaLibException const& exception) {
        return exception.what();
    }
    return "nothing thrown";
}

void fail()
{
    throw std::runtime_error("host");
}

class CommandHistoryTest : public testing::Test
{
protected:
    CommandHistoryTest() { m_history.attach(&m_observer); }
    ~CommandHistoryTest() override { m_history.detach(&m_observer); }

    boost::shared_ptr<ScriptedCmd> command(std::string const& name)
    {
        return ScriptedCmd::create(name, m_log);
    }
    void executeThree()
    {
        m_history.execute(m_a);
        m_history.execute(m_b);
        m_history.execute(m_c);
    }
    /// What was logged since the last question.
    std::string log()
    {
        std::string const result = m_log;
        m_log.clear();
        return result;
    }

    std::string m_log;
    // Never looked into: the history only passes it on.
    CommandHandler* const m_handler = reinterpret_cast<CommandHandler*>(&m_log);
    CommandHistory m_history{m_handler};
    CountingObserver m_observer;
    boost::shared_ptr<ScriptedCmd> m_a = command("a");
    boost::shared_ptr<ScriptedCmd> m_b = command("b");
    boost::shared_ptr<ScriptedCmd> m_c = command("c");
};

}  // namespace

// Executing.

TEST_F(CommandHistoryTest, ExecutesWithItsHandlerAndRecords)
{
    EXPECT_TRUE(m_history.execute(m_a));
    EXPECT_EQ("+a ", log());
    EXPECT_EQ(m_handler, m_a->handler());
    EXPECT_EQ(1u, m_history.numUndoCommands());
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(CommandHistoryTest, NothingIsNoCommand)
{
    EXPECT_EQ("no command to execute", messageOf([this] { m_history.execute(nullptr); }));
    EXPECT_EQ(0u, m_history.numUndoCommands());
}

TEST_F(CommandHistoryTest, ACommandThatFindsNothingToDoIsNotRecorded)
{
    m_a->result = false;
    EXPECT_FALSE(m_history.execute(m_a));
    EXPECT_EQ(0u, m_history.numUndoCommands());
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(CommandHistoryTest, ACommandThatFindsNothingToDoLeavesTheRedoList)
{
    m_history.execute(m_a);
    m_history.undo();
    m_b->result = false;
    m_history.execute(m_b);
    EXPECT_EQ(1u, m_history.numRedoCommands());
}

TEST_F(CommandHistoryTest, ExecutingDropsWhatCouldBeRedone)
{
    m_history.execute(m_a);
    m_history.undo();
    m_history.execute(m_b);
    EXPECT_EQ(0u, m_history.numRedoCommands());
}

TEST_F(CommandHistoryTest, ACommandThatThrowsLeavesBothListsAsTheyWere)
{
    m_history.execute(m_a);
    m_history.execute(m_b);
    m_history.undo();
    m_c->onExecute = fail;
    EXPECT_THROW(m_history.execute(m_c), std::runtime_error);
    EXPECT_EQ(1u, m_history.numUndoCommands());
    EXPECT_EQ(1u, m_history.numRedoCommands());
    EXPECT_EQ(3, m_observer.calls());
}

TEST_F(CommandHistoryTest, AnEmptyPointerIsRefused)
{
    EXPECT_THROW(m_history.execute(boost::shared_ptr<Command>()), TarnMediaLibException);
    EXPECT_EQ(0u, m_history.numUndoCommands());
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(CommandHistoryTest, ANewHandlerIsUsedFromTheNextRunOn)
{
    CommandHandler* const other = reinterpret_cast<CommandHandler*>(&m_observer);
    m_history.execute(m_a);
    m_history.setCommandHandler(other);
    m_history.undo();
    EXPECT_EQ(other, m_a->handler());
}

// Undoing and redoing.

TEST_F(CommandHistoryTest, UndoTakesBackTheNewest)
{
    executeThree();
    log();
    m_history.undo();
    EXPECT_EQ("-c ", log());
    EXPECT_EQ(2u, m_history.numUndoCommands());
    EXPECT_EQ(1u, m_history.numRedoCommands());
    EXPECT_EQ(4, m_observer.calls());
}

TEST_F(CommandHistoryTest, UndoWithNothingToUndoIsRefused)
{
    EXPECT_EQ("no commands to undo", messageOf([this] { m_history.undo(); }));
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(CommandHistoryTest, RedoRunsTheOneUndoneLast)
{
    executeThree();
    m_history.undo();
    m_history.undo();
    log();
    m_history.redo();
    EXPECT_EQ("*b ", log());
    EXPECT_EQ(2u, m_history.numUndoCommands());
    EXPECT_EQ(6, m_observer.calls());
}

TEST_F(CommandHistoryTest, RedoWithNothingToRedoIsRefused)
{
    m_history.execute(m_a);
    EXPECT_EQ("no commands to redo", messageOf([this] { m_history.redo(); }));
    EXPECT_EQ(1u, m_history.numUndoCommands());
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(CommandHistoryTest, ACommandThatThrowsInUndoIsLost)
{
    m_history.execute(m_a);
    m_a->onUnexecute = fail;
    EXPECT_THROW(m_history.undo(), std::runtime_error);
    EXPECT_EQ(0u, m_history.numUndoCommands());
    EXPECT_EQ(0u, m_history.numRedoCommands());
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(CommandHistoryTest, ACommandThatThrowsInRedoIsLost)
{
    m_history.execute(m_a);
    m_history.undo();
    m_a->onReexecute = fail;
    EXPECT_THROW(m_history.redo(), std::runtime_error);
    EXPECT_EQ(0u, m_history.numUndoCommands());
    EXPECT_EQ(0u, m_history.numRedoCommands());
    EXPECT_EQ(2, m_observer.calls());
}

TEST_F(CommandHistoryTest, WhatACommandAnswersToUndoAndRedoIsIgnored)
{
    m_history.execute(m_a);
    m_a->result = false;
    m_history.undo();
    EXPECT_EQ(1u, m_history.numRedoCommands());
    m_history.redo();
    EXPECT_EQ(1u, m_history.numUndoCommands());
    EXPECT_EQ(3, m_observer.calls());
}

TEST_F(CommandHistoryTest, UndoAllGoesBackNewestFirst)
{
    executeThree();
    log();
    m_history.undoAll();
    EXPECT_EQ("-c -b -a ", log());
    EXPECT_NO_THROW(m_history.undoAll());
}

TEST_F(CommandHistoryTest, RedoAllGoesForthOldestFirst)
{
    executeThree();
    m_history.undoAll();
    log();
    m_history.redoAll();
    EXPECT_EQ("*a *b *c ", log());
    EXPECT_NO_THROW(m_history.redoAll());
}

TEST_F(CommandHistoryTest, DroppingWhatCouldBeRedoneNotifiesNoOne)
{
    m_history.execute(m_a);
    m_history.undo();
    m_history.dropRedoCommands();
    EXPECT_EQ(0u, m_history.numRedoCommands());
    EXPECT_EQ(2, m_observer.calls());
}

// The limit.

TEST_F(CommandHistoryTest, HasNoLimitAtFirst)
{
    EXPECT_EQ(-1, m_history.undoLimit());
}

TEST_F(CommandHistoryTest, WithALimitOfNoneACommandIsForgottenAtOnce)
{
    m_history.setUndoLimit(0);
    EXPECT_TRUE(m_history.execute(m_a));
    EXPECT_EQ("no commands to undo", messageOf([this] { m_history.undo(); }));
    EXPECT_EQ("+a ", log());
}

TEST_F(CommandHistoryTest, TheOldestBeyondTheLimitIsDroppedWithoutBeingUndone)
{
    m_history.setUndoLimit(2);
    executeThree();
    EXPECT_EQ("+a +b +c ", log());
    m_history.undoAll();
    EXPECT_EQ("-c -b ", log());
}

TEST_F(CommandHistoryTest, LoweringTheLimitDropsTheOldestAtOnceAndNotifies)
{
    executeThree();
    m_history.setUndoLimit(1);
    EXPECT_EQ(1u, m_history.numUndoCommands());
    EXPECT_EQ(1, m_history.undoLimit());
    EXPECT_EQ(4, m_observer.calls());
    log();
    m_history.undo();
    EXPECT_EQ("-c ", log());
}

TEST_F(CommandHistoryTest, ANegativeLimitDropsNothing)
{
    executeThree();
    m_history.setUndoLimit(-5);
    EXPECT_EQ(3u, m_history.numUndoCommands());
    EXPECT_EQ(4, m_observer.calls());
}

TEST_F(CommandHistoryTest, RedoDoesNotApplyTheLimit)
{
    executeThree();
    m_history.undoAll();
    m_history.setUndoLimit(1);
    m_history.redoAll();
    EXPECT_EQ(3u, m_history.numUndoCommands());
}

// Combining.

TEST_F(CommandHistoryTest, CombiningMakesOneStepOfTheTwoNewest)
{
    executeThree();
    log();
    m_history.combineLastCommands();
    EXPECT_EQ("", log());
    EXPECT_EQ(2u, m_history.numUndoCommands());
    m_history.undo();
    EXPECT_EQ("-c -b ", log());
}

TEST_F(CommandHistoryTest, CombiningNotifiesNoOne)
{
    executeThree();
    m_history.combineLastCommands();
    EXPECT_EQ(3, m_observer.calls());
}

TEST_F(CommandHistoryTest, CombiningWithOneEntryLeavesItAsItIs)
{
    m_history.execute(m_a);
    m_history.combineLastCommands();
    EXPECT_EQ(m_a, m_history.state().undoTop());
}

TEST_F(CommandHistoryTest, CombiningWithNoEntryDoesNothing)
{
    m_history.combineLastCommands();
    EXPECT_EQ(0u, m_history.numUndoCommands());
}

TEST_F(CommandHistoryTest, CombiningLeavesWhatCanBeRedone)
{
    executeThree();
    m_history.undo();
    m_history.combineLastCommands();
    EXPECT_EQ(1u, m_history.numUndoCommands());
    EXPECT_EQ(1u, m_history.numRedoCommands());
}

namespace {

/// Cannot be combined with anything.
class StubbornCmd : public Command
{
public:
    StubbornCmd* clone() const override { return new StubbornCmd(*this); }
    bool execute(CommandHandler*) override { return true; }
    bool unexecute(CommandHandler*) override { return true; }
    boost::shared_ptr<Command> combine(boost::shared_ptr<Command> const&) override
    {
        if (m_throws) {
            fail();
        }
        return boost::shared_ptr<Command>();
    }
    void xmlName(XMLable::Options& options) const override { *options.stream << "StubbornCmd"; }

    bool m_throws = true;
};

}  // namespace

TEST_F(CommandHistoryTest, ACommandThatThrowsInCombiningLeavesBothEntries)
{
    m_history.execute(boost::shared_ptr<Command>(new StubbornCmd));
    m_history.execute(m_a);
    EXPECT_THROW(m_history.combineLastCommands(), std::runtime_error);
    EXPECT_EQ(2u, m_history.numUndoCommands());
    EXPECT_EQ(m_a, m_history.state().undoTop());
}

TEST_F(CommandHistoryTest, ACombinationThatGivesNoCommandIsRefusedAndLeavesBothEntries)
{
    boost::shared_ptr<StubbornCmd> const stubborn(new StubbornCmd);
    stubborn->m_throws = false;
    m_history.execute(stubborn);
    m_history.execute(m_a);
    EXPECT_EQ("no command from combining", messageOf([this] { m_history.combineLastCommands(); }));
    EXPECT_EQ(2u, m_history.numUndoCommands());
}

// Long rows.

namespace {

/// Notes by its number of which turn it is told, and when it is undone and redone.
class TurnCmd : public Command
{
public:
    TurnCmd(int number, std::ostringstream& log) : m_number(number), m_log(&log) {}

    TurnCmd* clone() const override { return new TurnCmd(*this); }
    bool execute(CommandHandler*) override { return true; }
    bool unexecute(CommandHandler*) override { return note("undo"); }
    bool reexecute(CommandHandler*) override { return note("redo"); }
    void fetchAhead(Turn turn) const override { note(turn == Turn::Far ? "far" : "near"); }
    void xmlName(XMLable::Options& options) const override { *options.stream << "TurnCmd"; }

private:
    bool note(char const* what) const
    {
        *m_log << what << m_number << ' ';
        return true;
    }

    int m_number;
    std::ostringstream* m_log;
};

}  // namespace

TEST_F(CommandHistoryTest, InLongRowsCommandsAreToldSixteenAndEightTurnsBefore)
{
    std::ostringstream turns;
    for (int number = 0; number < 18; ++number)
        m_history.execute(boost::shared_ptr<Command>(new TurnCmd(number, turns)));
    m_history.undoAll();
    EXPECT_EQ("far1 near9 undo17 far0 near8 undo16 near7 undo15 near6 undo14 near5 undo13 "
              "near4 undo12 near3 undo11 near2 undo10 near1 undo9 near0 undo8 undo7 undo6 undo5 "
              "undo4 undo3 undo2 undo1 undo0 ",
              turns.str());
    turns.str("");
    m_history.redoAll();
    EXPECT_EQ("far16 near8 redo0 far17 near9 redo1 near10 redo2 near11 redo3 near12 redo4 "
              "near13 redo5 near14 redo6 near15 redo7 near16 redo8 near17 redo9 redo10 redo11 "
              "redo12 redo13 redo14 redo15 redo16 redo17 ",
              turns.str());
}

TEST_F(CommandHistoryTest, InLongRowsMostCommandsNeedNotListen)
{
    for (int number = 0; number < 18; ++number)
        m_history.execute(m_a);
    log();
    m_history.undoAll();
    EXPECT_EQ("-a -a -a -a -a -a -a -a -a -a -a -a -a -a -a -a -a -a ", log());
}

// Snapshots.

TEST_F(CommandHistoryTest, ASnapshotNamesTheNextToUndoAndAllToRedo)
{
    executeThree();
    m_history.undo();
    m_history.undo();
    CommandHistoryState const state = m_history.state();
    EXPECT_EQ(m_a, state.undoTop());
    EXPECT_EQ((CommandHistoryState::CommandList{m_c, m_b}), state.redoCommands());
}

TEST_F(CommandHistoryTest, ASnapshotOfAnEmptyHistoryNamesNothing)
{
    EXPECT_FALSE(m_history.state().undoTop());
    EXPECT_TRUE(m_history.state().redoCommands().empty());
}

TEST_F(CommandHistoryTest, RestoringTheSnapshotTakenJustNowChangesNothingAndNotifies)
{
    executeThree();
    m_history.undo();
    log();
    CommandHistoryState const state = m_history.state();
    m_history.restoreState(state);
    EXPECT_EQ("", log());
    EXPECT_EQ(state.undoTop(), m_history.state().undoTop());
    EXPECT_EQ(state.redoCommands(), m_history.state().redoCommands());
    EXPECT_EQ(5, m_observer.calls());
}

TEST_F(CommandHistoryTest, RestoringUndoesWhatWasExecutedSinceAndDropsIt)
{
    m_history.execute(m_a);
    CommandHistoryState const state = m_history.state();
    m_history.execute(m_b);
    m_history.execute(m_c);
    log();
    m_history.restoreState(state);
    EXPECT_EQ("-c -b ", log());
    EXPECT_EQ(1u, m_history.numUndoCommands());
    EXPECT_EQ(0u, m_history.numRedoCommands());
    EXPECT_EQ(4, m_observer.calls());
}

TEST_F(CommandHistoryTest, RestoringBringsBackWhatCouldBeRedone)
{
    m_history.execute(m_a);
    m_history.execute(m_b);
    m_history.undo();
    CommandHistoryState const state = m_history.state();
    m_history.execute(m_c);
    m_history.restoreState(state);
    log();
    m_history.redo();
    EXPECT_EQ("*b ", log());
}

TEST_F(CommandHistoryTest, ASnapshotOfAnEmptyUndoListRestoresByUndoingEverything)
{
    CommandHistoryState const state = m_history.state();
    executeThree();
    log();
    m_history.restoreState(state);
    EXPECT_EQ("-c -b -a ", log());
    EXPECT_EQ(0u, m_history.numUndoCommands());
    EXPECT_EQ(0u, m_history.numRedoCommands());
}

TEST_F(CommandHistoryTest, RestoringToACommandThatWasUndoneUndoesWhatStandsBehindItInTheRedoList)
{
    executeThree();
    CommandHistoryState const state = m_history.state();
    m_history.undo();
    m_history.undo();
    log();
    // The redo list holds c and then b: b stands behind the one sought, and is undone once more.
    m_history.restoreState(state);
    EXPECT_EQ("-b ", log());
    EXPECT_EQ(1u, m_history.numUndoCommands());
    EXPECT_EQ(0u, m_history.numRedoCommands());
}

TEST_F(CommandHistoryTest, ASnapshotWhoseTopIsForgottenCannotBeRestored)
{
    m_history.execute(m_a);
    CommandHistoryState const state = m_history.state();
    m_history.setUndoLimit(1);
    m_history.execute(m_b);
    CaughtErrors const errors;
    EXPECT_EQ("State cannot be restored, cannot find undo top",
              messageOf([&] { m_history.restoreState(state); }));
    EXPECT_EQ(m_history.description() + "\n", errors.text());
    EXPECT_EQ(1u, m_history.numUndoCommands());
    EXPECT_EQ(3, m_observer.calls());
}

TEST_F(CommandHistoryTest, TheRefusalToRestoreCarriesTheSnapshot)
{
    using Refusal = ValueException<CommandHistoryState>;
    CommandHistoryState const foreign(m_a, CommandHistoryState::CommandList(1, m_b));
    CaughtErrors const errors;
    EXPECT_THAT(
        [&] { m_history.restoreState(foreign); },
        testing::Throws<Refusal>(testing::Property(
            &Refusal::value, testing::AllOf(testing::Property(&CommandHistoryState::undoTop, m_a),
                                            testing::Property(&CommandHistoryState::redoCommands,
                                                              testing::ElementsAre(m_b))))));
}

TEST_F(CommandHistoryTest, ACommandThatThrowsWhileRestoringIsLost)
{
    m_history.execute(m_a);
    CommandHistoryState const state = m_history.state();
    m_history.execute(m_b);
    m_b->onUnexecute = fail;
    EXPECT_THROW(m_history.restoreState(state), std::runtime_error);
    EXPECT_EQ(m_a, m_history.state().undoTop());
}

TEST_F(CommandHistoryTest, ACommandThatThrowsWhileEverythingIsUndoneIsLost)
{
    CommandHistoryState const state = m_history.state();
    m_history.execute(m_a);
    m_a->onUnexecute = fail;
    EXPECT_THROW(m_history.restoreState(state), std::runtime_error);
    EXPECT_EQ(0u, m_history.numUndoCommands());
}

// Cloning and printing.

TEST_F(CommandHistoryTest, ACloneHasCopiesOfTheCommandsInOrder)
{
    executeThree();
    m_history.undo();
    std::unique_ptr<CommandHistory> const clone(m_history.clone());
    EXPECT_EQ(2u, clone->numUndoCommands());
    EXPECT_EQ(1u, clone->numRedoCommands());
    EXPECT_NE(m_history.state().undoTop(), clone->state().undoTop());
    log();
    clone->redo();
    clone->undoAll();
    EXPECT_EQ("*c -c -b -a ", log());
}

TEST_F(CommandHistoryTest, ACloneHasTheLimitAndNoHandler)
{
    m_history.setUndoLimit(4);
    m_history.execute(m_a);
    std::unique_ptr<CommandHistory> const clone(m_history.clone());
    boost::shared_ptr<ScriptedCmd> const next = command("next");
    clone->execute(next);
    EXPECT_EQ(4, clone->undoLimit());
    EXPECT_EQ(nullptr, next->handler());
}

TEST_F(CommandHistoryTest, AClonesObserversAreItsOwn)
{
    std::unique_ptr<CommandHistory> const clone(m_history.clone());
    clone->execute(m_a);
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(CommandHistoryTest, AnEmptyHistoryIsWrittenWithTwoEmptyStacks)
{
    std::string const ident = std::to_string(m_history.xmlIdent());
    EXPECT_EQ("<CommandHistory id=\"" + ident +
                  "\"  >\n <UndoStack>\n </UndoStack>\n <RedoStack>\n </RedoStack>\n"
                  "</CommandHistory>\n",
              m_history.description());
}

TEST_F(CommandHistoryTest, IsWrittenFromTheOldestToTheNewest)
{
    executeThree();
    m_history.undo();
    std::string const ident = std::to_string(m_history.xmlIdent());
    std::string const a = std::to_string(m_a->xmlIdent());
    std::string const b = std::to_string(m_b->xmlIdent());
    std::string const c = std::to_string(m_c->xmlIdent());
    EXPECT_EQ("<CommandHistory id=\"" + ident + "\"  >\n <UndoStack>\n  <a id=\"" + a +
                  "\"  >\n  </a>\n  <b id=\"" + b +
                  "\"  >\n  </b>\n </UndoStack>\n <RedoStack>\n  <c id=\"" + c +
                  "\"  >\n  </c>\n </RedoStack>\n</CommandHistory>\n",
              m_history.description());
}

}  // namespace test
}  // namespace tarn
