#pragma once

#include "faults/AllocationFault.h"
#include "faults/Operation.h"
#include "fuzz/Fingerprint.h"
#include "fuzz/Stage.h"
#include "support/CountingObserver.h"

#include <list>
#include <set>
#include <string>

namespace tarn {
namespace test {

/// A project at the beginning of an operation, watched from all sides.
///
/// Its history has two steps to undo and one to redo. Every object of the model is observed.
class FaultStage : public Stage
{
public:
    enum Phase
    {
        Execute,
        Undo,
        Redo
    };

    /// All that a failed operation must leave alone.
    struct Snapshot
    {
        Fingerprint model;
        std::string text;
        boost::shared_ptr<Command const> undoTop;
        std::list<boost::shared_ptr<Command>> redoCommands;
        std::size_t numUndo = 0;
    };

    /// What became of an operation that met a fault.
    struct Outcome
    {
        bool hasMetFault;
        std::string thrown;  ///< empty for nothing, "bad_alloc", or another exception's text
    };

    /// Where that phase of the operation can begin.
    FaultStage(Operation const& operation, Phase phase);
    ~FaultStage() override;

    void act();
    Outcome actWithFault(int k, AllocationFault::Lasting lasting);
    /// Brings it back to where the phase can begin, after a failure that has changed no model.
    /// @return false when only another stage can do that
    bool beginAgain();

    Snapshot snapshot() const;
    /// Of a snapshot whose model is the present one.
    void renewHistory(Snapshot& snapshot) const;
    /// How the model differs from that one; empty if it does not. The history is another matter.
    std::string difference(Snapshot const& before) const;
    /// Whether the model is what it was when some primitive of the faulty run began.
    bool isBetweenPrimitives() const;
    /// How the history differs from what the phase has to leave when it throws; empty if not at
    /// all.
    std::string historyFault(Snapshot const& before) const;
    /// What a failure has left open: a delay, a collection, held notifications, a lock.
    std::string unrest();
    /// Edits and takes it back; what went wrong with that. `before` has the present model.
    std::string nextEditFault(Snapshot const& before);
    /// What is there, without addresses.
    std::string look() const;
    /// Which of the observed objects have notified since the operation began.
    std::set<std::size_t> notified() const;

    using ModelTest::add;
    using ModelTest::audioMixer;
    using ModelTest::freshVideo;
    using ModelTest::media;
    using ModelTest::move;
    using ModelTest::remove;
    using ModelTest::visualMixer;

    std::vector<boost::shared_ptr<void const>> kept;  ///< for what an operation makes and keeps

private:
    void TestBody() override {}
    std::string wholeText() const;
    void observeAll();
    void observe(Subject const& subject);
    void bringTo(Phase phase);
    int callsOfObservers() const;

    Operation m_operation;
    Phase m_phase;
    boost::shared_ptr<Command> m_command;
    std::list<CountingObserver> m_observers;
    std::vector<Subject const*> m_observed;
    std::vector<int> m_callsBefore;
    std::vector<Fingerprint> m_betweenPrimitives;
};

}  // namespace test
}  // namespace tarn
