#pragma once

#include "support/ModelTest.h"
#include "support/WatchingHandler.h"

#include "commands/NullCmd.h"
#include "exceptions/TarnMediaLibException.h"

#include <functional>
#include <new>
#include <regex>
#include <string>
#include <typeinfo>

namespace tarn {
namespace test {

/// A project's primitives, of which the k-th call, counted from 1 and edges included, throws a
/// fault instead of doing anything. What is called afterwards, to take back, works.
template <class Fault>
class FaultyHandler
{
public:
    FaultyHandler(InternalProject& project, int k, Fault const& fault)
        : m_callsToGo(k), m_watch(project, [this, fault](auto const&, auto const&) {
            if (--m_callsToGo == 0)
                throw fault;
        })
    {}

private:
    int m_callsToGo;
    WatchingHandler m_watch;
};

/// What a host's own handler may throw, unknown to the library and of no standard class.
struct ForeignFault
{
};

/// The fixture for composites that break down in the middle.
class FaultTest : public ModelTest
{
protected:
    using CommandFactory = std::function<boost::shared_ptr<Command>()>;

    /// given(), with a command to undo and one to redo, which a failing command must leave alone.
    void givenWithPast(std::string const& strip)
    {
        given(strip);
        project->execute(NullCmd::create());
        project->execute(NullCmd::create());
        project->undo();
    }

    /// For a command that leaves its clipping on the board when undone.
    void letTheBoardGrow() { m_boardGrows = true; }

    /// Executes the command with a fault at its first primitive, then a new one with a fault at its
    /// second, and so on until one succeeds. After each failure strip, exact model and both stacks
    /// must be as before, and the same edit must work and be undone. All that for an exception of
    /// the library, for std::bad_alloc and for a foreign one.
    /// @param numPrimitives how many the command needs, so how often it must have failed
    ::testing::AssertionResult allFaultsRollBack(CommandFactory const& command, int numPrimitives)
    {
        ::testing::AssertionResult result =
            faultsRollBack(command, numPrimitives, TarnMediaLibException("fault"));
        if (result)
            result = faultsRollBack(command, numPrimitives, std::bad_alloc());
        if (result)
            result = faultsRollBack(command, numPrimitives, ForeignFault());
        return result;
    }

private:
    struct Snapshot
    {
        std::string strip;
        std::string model;
        CommandHistoryState history;
    };

    Snapshot snapshot() const
    {
        static std::regex const k_board(" clippings [0-9]+\n");
        std::string const model = exactModelText(*project);
        return {strip(), m_boardGrows ? std::regex_replace(model, k_board, "") : model,
                project->commandState()};
    }

    template <class Fault>
    ::testing::AssertionResult faultsRollBack(CommandFactory const& command, int numPrimitives,
                                              Fault const& fault)
    {
        for (int k = 1; k <= numPrimitives; ++k) {
            ::testing::AssertionResult result = failsCleanly(command(), k, fault);
            if (result)
                result = works([&] { project->execute(command()); });
            if (!result)
                return result << "\nfor call " << k << " throwing " << typeid(Fault).name();
        }
        try {
            return works([&] {
                FaultyHandler<Fault> const faulty(*project, numPrimitives + 1, fault);
                project->execute(command());
            });
        } catch (Fault const&) {
            return ::testing::AssertionFailure()
                   << "the command has more than " << numPrimitives << " primitives";
        }
    }

    template <class Fault>
    ::testing::AssertionResult failsCleanly(boost::shared_ptr<Command> const& command, int k,
                                            Fault const& fault)
    {
        Snapshot const before = snapshot();
        try {
            FaultyHandler<Fault> const faulty(*project, k, fault);
            project->execute(command);
            return ::testing::AssertionFailure()
                   << "the command has fewer than " << k << " primitives";
        } catch (Fault const& thrown) {
            if (typeid(thrown) != typeid(Fault))
                return ::testing::AssertionFailure() << "thrown is " << typeid(thrown).name();
        }
        ::testing::AssertionResult const model = modelIs(before);
        if (!model)
            return model;
        CommandHistoryState const history = project->commandState();
        if (history.undoTop() != before.history.undoTop() ||
            history.redoCommands() != before.history.redoCommands())
            return ::testing::AssertionFailure() << "the failure changed the history";
        return ::testing::AssertionSuccess();
    }

    /// An edit, here the very one that failed, changes the model and is undone exactly.
    ::testing::AssertionResult works(std::function<void()> const& edit)
    {
        Snapshot const before = snapshot();
        edit();
        if (snapshot().model == before.model)
            return ::testing::AssertionFailure() << "the edit changed nothing";
        project->undo();
        return modelIs(before);
    }

    ::testing::AssertionResult modelIs(Snapshot const& before) const
    {
        Snapshot const now = snapshot();
        if (now.strip != before.strip)
            return ::testing::AssertionFailure()
                   << "the timeline is\n  " << now.strip << "\nand not\n  " << before.strip;
        if (now.model != before.model)
            return ::testing::AssertionFailure() << "the model is\n"
                                                 << now.model << "\nand not\n"
                                                 << before.model;
        return ::testing::AssertionSuccess();
    }

    bool m_boardGrows = false;
};

}  // namespace test
}  // namespace tarn
