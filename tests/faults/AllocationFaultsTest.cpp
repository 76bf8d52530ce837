// Every operation of the library, broken down at every allocation it makes.

#include "faults/FaultStage.h"
#include "fuzz/Invariants.h"

#include "commands/CommandHistory.h"
#include "commands/MoveCmd.h"
#include "timeline/Media.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <iostream>
#include <map>
#include <memory>
#include <set>
#include <string>

namespace tarn {
namespace test {
namespace {

using Phase = FaultStage::Phase;
using Lasting = AllocationFault::Lasting;

/// What came of the faults of all rows.
struct Tally
{
    long long unchanged = 0;  ///< threw std::bad_alloc, the model is the former one
    long long absorbed = 0;   ///< did all its work nevertheless
    long long stopped = 0;    ///< threw std::bad_alloc, a composite stands between two primitives
};

Tally s_tally;

class FiguresPrinter : public ::testing::Environment
{
public:
    void TearDown() override
    {
        std::cout << "operations broken down: "
                  << s_tally.unchanged + s_tally.absorbed + s_tally.stopped
                  << ", allocations refused: " << AllocationFault::numRefused()
                  << "\n  former model: " << s_tally.unchanged
                  << "\n  done nevertheless: " << s_tally.absorbed
                  << "\n  between two primitives: " << s_tally.stopped << std::endl;
    }
};

::testing::Environment* const s_printer = ::testing::AddGlobalTestEnvironment(new FiguresPrinter);

/// One phase of an operation, with the k-th allocation failing, for all k.
class Breakdown
{
public:
    Breakdown(Operation const& operation, Phase phase, Lasting lasting)
        : m_operation(operation), m_phase(phase), m_lasting(lasting)
    {
        FaultStage stage(operation, phase);
        m_wanted.thrown = stage.actWithFault(1000000000, lasting).thrown;
        m_wanted.look = stage.look();
        m_wanted.notified = stage.notified();
        m_stride = 1 + AllocationFault::numSeen() / maxRuns();
    }

    void run()
    {
        ASSERT_EQ("", m_wanted.thrown) << "without any fault";
        bool isDone = false;
        // The second time between those of the first.
        int const first = m_lasting == Lasting::Once ? 1 : 1 + m_stride / 2;
        for (int k = first; !isDone; k += m_stride) {
            std::string const fault = step(k, isDone);
            ASSERT_EQ("", fault) << "for allocation " << k
                                 << (m_lasting == Lasting::Once ? ", once" : ", for ever")
                                 << ", which was asked for at\n"
                                 << AllocationFault::whereFired();
        }
    }

private:
    struct Result
    {
        std::string thrown;
        std::string look;
        std::set<std::size_t> notified;
    };

    /// How many allocations of a phase fail, evenly spread: about so many at most, or as many as
    /// TARN_FAULTS in the environment says.
    static int maxRuns()
    {
        if (char const* const asked = std::getenv("TARN_FAULTS"))
            return std::max(1, std::atoi(asked));
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        return 4;
#else
        return 20;
#endif
    }

    std::string step(int k, bool& isDone)
    {
        if (!m_stage) {
            m_stage.reset(new FaultStage(m_operation, m_phase));
            m_before = m_stage->snapshot();
        }
        m_stage->renewHistory(m_before);
        FaultStage::Outcome const outcome = m_stage->actWithFault(k, m_lasting);
        isDone = !outcome.hasMetFault;
        std::string fault;
        if (outcome.thrown.empty())
            fault = successFault(isDone);
        else if (outcome.thrown == "bad_alloc")
            fault = failureFault();
        else
            return outcome.thrown;
        if (fault.empty())
            fault = m_stage->unrest();
        if (fault.empty() && !outcome.thrown.empty())
            fault = m_stage->nextEditFault(
                m_isStopped || m_operation.leavesClipping ? m_stage->snapshot() : m_before);
        if (outcome.thrown.empty() || m_isStopped || !fault.empty() || !m_stage->beginAgain())
            m_stage.reset();
        else if (m_phase != Phase::Execute)
            m_before = m_stage->snapshot();
        return fault;
    }

    std::string successFault(bool isDone)
    {
        if (!isDone)
            ++s_tally.absorbed;
        std::string const look = m_stage->look();
        if (look != m_wanted.look)
            return "it came to\n" + look + "\nand not to\n" + m_wanted.look;
        if (m_stage->notified() != m_wanted.notified)
            return "others have notified than without a fault";
        return "";
    }

    std::string failureFault()
    {
        std::string const history = m_stage->historyFault(m_before);
        if (!history.empty())
            return history;
        std::string const difference = m_stage->difference(m_before);
        m_isStopped = !difference.empty();
        if (difference.empty()) {
            ++s_tally.unchanged;
            return "";
        }
        if (!m_stage->isBetweenPrimitives())
            return "it stopped where it must not:\n" + difference;
        // A group that is half linked is all that such a model may have wrong.
        for (Broken const& broken : brokenInvariants(*m_stage)) {
            if (broken.breach != Breach::NoMesh)
                return broken.text;
        }
        ++s_tally.stopped;
        return "";
    }

    Operation const m_operation;
    Phase const m_phase;
    Lasting const m_lasting;
    Result m_wanted;
    std::unique_ptr<FaultStage> m_stage;
    FaultStage::Snapshot m_before;
    bool m_isStopped = false;
    int m_stride = 1;
};

class AllocationFaultsTest : public ::testing::TestWithParam<Operation>
{
protected:
    static void breakDown(Phase phase)
    {
        if (phase != Phase::Execute && !GetParam().command)
            return;
        Breakdown(GetParam(), phase, Lasting::Once).run();
        Breakdown(GetParam(), phase, Lasting::ForEver).run();
    }
};

TEST_P(AllocationFaultsTest, Execute)
{
    breakDown(Phase::Execute);
}

TEST_P(AllocationFaultsTest, Undo)
{
    breakDown(Phase::Undo);
}

TEST_P(AllocationFaultsTest, Redo)
{
    breakDown(Phase::Redo);
}

/// Combining comes after the command: when there is no memory for it alone, the command stays, as a
/// step of its own, and the next one is combined with it.
TEST(AllocationFaultsOfCombining, LeaveAnExecutedCommand)
{
    Operation operation;
    operation.strip = "V1: aa.bb";
    operation.run = [](FaultStage& s) {
        s.project->combineNextCommand();
        s.project->execute(MoveCmd::create(s.track("V1"), s.media("V1.b"), 10));
    };
    int numExecuted = 0;
    bool isDone = false;
    for (int k = 1; !isDone; ++k) {
        FaultStage stage(operation, Phase::Execute);
        FaultStage::Snapshot const before = stage.snapshot();
        FaultStage::Outcome const outcome = stage.actWithFault(k, Lasting::Once);
        isDone = !outcome.hasMetFault;
        ASSERT_EQ("", stage.unrest()) << k;
        if (stage.media("V1.b")->trackRange().start == 30) {
            ASSERT_EQ("", stage.historyFault(before)) << k;
            ASSERT_EQ("", stage.difference(before)) << k;
            continue;
        }
        EXPECT_EQ(40, stage.media("V1.b")->trackRange().start) << k;
        std::size_t const numUndo = stage.project->commandHistory()->numUndoCommands();
        if (outcome.thrown.empty()) {
            EXPECT_EQ(before.numUndo, numUndo) << k;
            continue;
        }
        ++numExecuted;
        EXPECT_EQ(before.numUndo + 1, numUndo) << k;
        stage.project->execute(MoveCmd::create(stage.track("V1"), stage.media("V1.b"), 10));
        EXPECT_EQ(before.numUndo + 1, stage.project->commandHistory()->numUndoCommands()) << k;
        stage.project->undo();
        EXPECT_EQ("", stage.difference(before)) << k;
    }
    EXPECT_LT(0, numExecuted);
}

/// A command without a row would not be broken down.
TEST(AllocationFaultsTable, HasEveryCommand)
{
    // What only others derive from, and what the model always refuses, by the row that runs it.
    std::map<std::string, std::string> const k_withoutRow{
        {"AtomicEditCmd", "MoveCmd"},
        {"AddEdgeModCmd", "AddLeftEdgeModCmd"},
        {"MoveEdgeModCmd", "MoveLeftEdgeModCmd"},
        {"RemoveEdgeModCmd", "RemoveLeftEdgeModCmd"},
        {"NewTypedTrackCmd", "NewVisualTrackCmd"},
        {"NewImageTrackCmd", "NewVisualTrackCmd"},
    };
    std::set<std::string> rows;
    for (Operation const& operation : commandOperations())
        rows.insert(operation.name.substr(0, operation.name.find(' ')));
    int numHeaders = 0;
    boost::filesystem::directory_iterator const end;
    for (boost::filesystem::directory_iterator file(TARN_COMMANDS_FOLDER); file != end; ++file) {
        std::string const name = file->path().filename().string();
        if (name.size() < 5 || name.compare(name.size() - 5, 5, "Cmd.h") != 0)
            continue;
        ++numHeaders;
        std::string const command = name.substr(0, name.size() - 2);
        auto const known = k_withoutRow.find(command);
        EXPECT_EQ(1u, rows.count(known == k_withoutRow.end() ? command : known->second)) << command;
    }
    EXPECT_LT(60, numHeaders);
}

std::string nameOf(::testing::TestParamInfo<Operation> const& info)
{
    std::string name = info.param.name;
    for (char& letter : name)
        if (!std::isalnum(static_cast<unsigned char>(letter)))
            letter = '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(Commands, AllocationFaultsTest, ::testing::ValuesIn(commandOperations()),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Others, AllocationFaultsTest, ::testing::ValuesIn(otherOperations()),
                         nameOf);

}  // namespace
}  // namespace test
}  // namespace tarn
