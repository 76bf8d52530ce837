#pragma once

#include "fuzz/Fingerprint.h"
#include "fuzz/Generator.h"
#include "fuzz/KnownLimits.h"
#include "fuzz/NaiveModel.h"

#include "commands/CommandHistoryState.h"
#include "project/InternalProject.h"
#include "project/LockPolicy.h"

#include <boost/shared_ptr.hpp>

#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tarn {
namespace test {

class Stage;

/// What happened in a session, or in many.
struct Figures
{
    std::size_t commands = 0;  ///< executed, refused ones too
    std::size_t refused = 0;
    std::size_t historySteps = 0;
    std::size_t comparisons = 0;  ///< of whole models
    std::size_t naiveAnswers = 0;
    std::array<std::size_t, static_cast<std::size_t>(Op::Count)> done{};
    std::array<std::size_t, static_cast<std::size_t>(Op::Count)> refusedOf{};
    std::map<std::string, std::size_t> limits;

    void add(Figures const& other);
};

/// One random editing session, watched at every step.
///
/// After each command: invariants; naive model; undo gives the former model bit by bit, redo the
/// executed one. What throws must have changed nothing. At the end everything is undone and redone.
/// A known limit ends the session, since the rules promise nothing for what follows.
class Session
{
public:
    using Listener = std::function<void(Fingerprint const&)>;

    explicit Session(Script const& script, LockPolicy policy = LockPolicy::Counted);
    /// With a project, the session is one part of a long one: it begins by emptying that project,
    /// which never has more than some commands to undo.
    Session(Script const& script, boost::shared_ptr<InternalProject> const& project);
    ~Session();

    /// Is told each model that an edit leaves, on the thread of the session.
    void setListener(Listener const& listener) { m_listener = listener; }
    /// Makes the first model, for those who want to look at it before run() goes on.
    void begin();
    /// Where the session is run; other threads may look at it under a read lock once it has begun.
    Stage const& stage() const { return *m_stage; }

    /// @return whether no fault was found
    bool run();

    Figures const& figures() const { return m_figures; }
    /// Kind of fault, the same for equal faults; empty without one.
    std::string const& fault() const { return m_fault; }
    std::string const& details() const { return m_details; }
    /// The session as a test of the stage, up to the fault.
    std::string asTest() const;
    /// Of the project as the session left it, without identity numbers and addresses.
    std::string xml() const;

private:
    using State = boost::shared_ptr<Fingerprint const>;

    /// A command in the history, as it is known here.
    struct Entry
    {
        std::size_t id;
        Op op;
        std::set<Op> ops;  ///< all that were combined into it
        State model;       ///< before it on the undo side, after it on the redo side
    };
    struct Snapshot
    {
        CommandHistoryState state;
        std::size_t top;
        std::vector<Entry> redo;
        State model;
    };
    /// Ends a session at a fault or a known limit.
    struct End
    {
    };

    void setLimit(int limit);
    void runStep(Step const& step);
    void runCommand(Step const& step);
    void checkRefused(Op op, std::string const& thrown, NaiveModel::Outcome predicted);
    void checkExecuted(Op op, NaiveModel::Outcome predicted);
    void checkUndoAndRedo();
    /// Whether one step through the history threw nothing and led to the model of the entry.
    void checkStep(Entry const& entry, Phase phase, std::string const& thrown, State const& found);
    void undo();
    void redo();
    void runHistoryStep(Step const& step);
    void restoreSnapshot();
    void restoreTo(Snapshot const& snapshot, bool isOnRedoSide);
    void undoToTheStart();

    void record(Op op);
    void combineRecords();
    void applyLimit();
    void checkSizes();
    State model() const;
    void compare(std::set<Op> const& ops, Phase phase, State const& wanted, State const& found);
    void judge(Evidence evidence);
    [[noreturn]] void fail(std::string const& kind, std::string const& details);
    void write(std::string const& code, std::string const& ending);

    Script m_script;
    bool m_isPart;
    std::unique_ptr<Stage> m_stage;
    Listener m_listener;
    NaiveModel m_naive;
    Figures m_figures;
    State m_model;
    std::vector<Entry> m_undo;
    std::vector<Entry> m_redo;
    std::size_t m_nextId = 1;
    int m_limit = -1;
    bool m_combinesNext = false;
    bool m_isWild = false;
    bool m_hasDropped = false;
    std::optional<Snapshot> m_snapshot;
    std::string m_code;
    std::string m_fault;
    std::string m_details;
};

}  // namespace test
}  // namespace tarn
