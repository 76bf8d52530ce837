#include "hosts/HostTest.h"

#include "commands/CommandHistory.h"
#include "commands/CommandObserver.h"
#include "commands/NullCmd.h"

#include <memory>
#include <vector>

namespace tarn {
namespace test {

namespace {

/// Does what it is told before each edit.
class Announced : public CommandObserver
{
public:
    explicit Announced(std::function<void()> const& action) : m_action(action) {}

    void onPreCommand() override
    {
        // A copy: the action may destroy this.
        std::function<void()> const action = m_action;
        action();
    }

private:
    std::function<void()> m_action;
};

/// What is announced.
struct Edit
{
    char const* name;
    std::function<void(InternalProject&)> run;
};

std::vector<Edit> const& edits()
{
    static std::vector<Edit> const all = {
        {"execute", [](InternalProject& p) { p.execute(NullCmd::create()); }},
        {"undo", [](InternalProject& p) { p.undo(); }},
        {"redo", [](InternalProject& p) { p.redo(); }},
        {"restore", [](InternalProject& p) { p.restoreCommandState(CommandHistoryState({}, {})); }},
    };
    return all;
}

}  // namespace

/// With one command to undo and one to redo.
class CommandObserversTest : public HostTest
{
protected:
    CommandObserversTest()
    {
        given(k_strip);
        project->execute(move("V1.a", +1));
        project->execute(move("V1.b", +3));
        project->undo();
    }

    void attach(std::function<void()> const& action)
    {
        m_observer = std::make_unique<Announced>(action);
        project->attachCommandObserver(m_observer.get());
    }
    void detach() { project->detachCommandObserver(m_observer.get()); }
    void destroy() { m_observer.reset(); }

    std::size_t numUndo() const { return project->commandHistory()->numUndoCommands(); }
    std::size_t numRedo() const { return project->commandHistory()->numRedoCommands(); }

    static constexpr char const* k_now = "A1: .aaa.bb / A2: c / V1: .aaa.bb";

private:
    std::unique_ptr<Announced> m_observer;
};

TARN_WITH_EACH_FAULT(CommandObserversTest);

TEST_P(CommandObserversTest, AThrowPassesAndNothingHasChanged)
{
    attach([this] { throwFault(fault()); });
    for (Edit const& edit : test::edits()) {
        SCOPED_TRACE(edit.name);
        EXPECT_TRUE(throwsFault(fault(), [&] { edit.run(*project); }));
        EXPECT_EQ(k_now, strip());
        EXPECT_EQ(1u, numUndo());
        EXPECT_EQ(1u, numRedo());
    }
    detach();
    EXPECT_TRUE(isAtRest());
}

TEST_P(CommandObserversTest, TheNextCommandIsStillTheOneToCombine)
{
    project->combineNextCommand();
    attach([this] { throwFault(fault()); });
    EXPECT_TRUE(throwsFault(fault(), [this] { project->execute(NullCmd::create()); }));
    detach();
    EXPECT_EQ(1u, numUndo());
    project->execute(NullCmd::create());
    EXPECT_EQ(1u, numUndo());
    project->execute(NullCmd::create());
    EXPECT_EQ(2u, numUndo());
}

class CallingCommandObserversTest : public CommandObserversTest
{
};

INSTANTIATE_TEST_SUITE_P(Once, CallingCommandObserversTest, ::testing::Values(Fault::Foreign));

TEST_P(CallingCommandObserversTest, ItsEditIsOverBeforeTheOneAnnouncedBegins)
{
    attach([this] {
        detach();
        project->execute(move("V1.b", +1));
    });
    project->execute(move("V1.a", +2));  // only now is there room for it
    EXPECT_EQ("A1: ...aaabb / A2: c / V1: ...aaabb", strip());
    EXPECT_EQ(3u, numUndo());
    project->undo();
    EXPECT_EQ("A1: .aaa..bb / A2: c / V1: .aaa..bb", strip());
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingCommandObserversTest, AnUndoOfWhatItJustExecuted)
{
    attach([this] {
        detach();
        project->execute(move("V1.b", +1));
    });
    project->undo();
    EXPECT_EQ(k_now, strip());
    EXPECT_EQ(1u, numUndo());
    EXPECT_EQ(1u, numRedo());
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingCommandObserversTest, MayLeaveNothingToUndo)
{
    attach([this] {
        detach();
        project->undo();
    });
    EXPECT_THROW(project->undo(), TarnMediaLibException);
    EXPECT_EQ(k_strip, strip());
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingCommandObserversTest, HoldsTheLockBeforeAnUndoAndNotBeforeAnExecute)
{
    std::unique_ptr<OtherThread> other;
    bool waits = false;
    attach([&] {
        other = std::make_unique<OtherThread>([this] { static_cast<void>(project->timeline()); });
        waits = other->isWaiting();
    });
    project->execute(NullCmd::create());
    EXPECT_FALSE(waits);
    project->undo();
    EXPECT_TRUE(waits);
    EXPECT_TRUE(other->finishes());
    detach();
}

TEST_P(CallingCommandObserversTest, MayDestroyItself)
{
    for (Edit const& edit : test::edits()) {
        SCOPED_TRACE(edit.name);
        project->execute(NullCmd::create());
        project->execute(NullCmd::create());
        project->undo();
        bool isHeard = false;
        attach([&] {
            isHeard = true;
            detach();
            destroy();
        });
        edit.run(*project);
        EXPECT_TRUE(isHeard);
    }
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingCommandObserversTest, AnotherOneIsHeardFromTheNextEditOn)
{
    int calls = 0;
    Announced second([&] { ++calls; });
    attach([&] {
        detach();
        project->attachCommandObserver(&second);
    });
    project->execute(NullCmd::create());
    EXPECT_EQ(0, calls);
    project->execute(NullCmd::create());
    EXPECT_EQ(1, calls);
    project->detachCommandObserver(&second);
}

TEST_P(CallingCommandObserversTest, MayDropTheLastPointerToTheProject)
{
    for (Edit const& edit : test::edits()) {
        SCOPED_TRACE(edit.name);
        boost::shared_ptr<InternalProject> mine = InternalProject::create(project->editRate());
        mine->execute(NullCmd::create());
        mine->execute(NullCmd::create());
        mine->undo();
        boost::weak_ptr<InternalProject> const watched = mine;
        InternalProject& raw = *mine;
        Announced killer([&] { mine.reset(); });
        raw.attachCommandObserver(&killer);
        edit.run(raw);
        EXPECT_EQ(nullptr, mine);
        EXPECT_TRUE(watched.expired());
    }
}

}  // namespace test
}  // namespace tarn
