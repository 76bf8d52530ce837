#include "fuzz/Session.h"

#include "fuzz/CommandMaker.h"
#include "fuzz/Invariants.h"
#include "fuzz/Stage.h"

#include "commands/Command.h"
#include "commands/CommandHistory.h"
#include "exceptions/CollisionException.h"
#include "exceptions/TarnMediaLibException.h"
#include "project/ReadWriteMutex.h"
#include "timeline/ImageMedia.h"
#include "timeline/MediaImpl.h"

#include <algorithm>
#include <iostream>
#include <regex>
#include <sstream>
#include <typeinfo>

namespace tarn {
namespace test {
namespace {

std::size_t const k_shownDifferences = 12;

/// The undo limit of a long session.
int const k_longLimit = 40;

/// The stage outside a test.
class FuzzStage : public Stage
{
public:
    explicit FuzzStage(LockPolicy policy)
    {
        project = InternalProject::create(boost::rational<unsigned long>(30, 1), policy);
    }

private:
    void TestBody() override {}
};

/// What the action throws as text; empty when nothing.
template <class Action>
std::string thrownBy(Action const& action)
{
    try {
        action();
    } catch (TarnMediaLibException const& thrown) {
        return std::string(thrown.what()) + " [" + typeid(thrown).name() + "]";
    } catch (std::exception const& thrown) {
        return std::string("foreign: ") + thrown.what() + " [" + typeid(thrown).name() + "]";
    }
    return "";
}

bool isCollision(std::string const& thrown)
{
    return thrown.find("CollisionException]") != std::string::npos ||
           thrown.find("CollisionExceptionE]") != std::string::npos;
}

/// Whether each pair of linked medias that has come apart could not have stayed together.
bool linksDifferInLimits(Stage const& stage)
{
    auto const medias = stage.timeline()->allMedias();
    for (boost::shared_ptr<Media const> const& media : *medias) {
        MediaImpl const& one = static_cast<MediaImpl const&>(*media);
        Media& links = const_cast<Media&>(*media);  // the plain iterators, which lock nothing
        for (auto link = links.linkBegin(); link != links.linkEnd(); ++link) {
            boost::shared_ptr<Media const> const linked = link->lock();
            if (!linked || (linked->trackRange() == media->trackRange() &&
                            linked->mediaRange() == media->mediaRange()))
                continue;
            MediaImpl const& other = static_cast<MediaImpl const&>(*linked);
            bool const sameKind = (dynamic_cast<ImageMedia const*>(&one) != nullptr) ==
                                  (dynamic_cast<ImageMedia const*>(&other) != nullptr);
            if (sameKind && one.mediaEndLimit() == other.mediaEndLimit())
                return false;
        }
    }
    return true;
}

/// Keeps what the library writes to the error stream when a state is gone.
class SilentErrors
{
public:
    SilentErrors() : m_real(std::cerr.rdbuf(m_text.rdbuf())) {}
    ~SilentErrors() { std::cerr.rdbuf(m_real); }
    SilentErrors(SilentErrors const&) = delete;
    SilentErrors& operator=(SilentErrors const&) = delete;

private:
    std::ostringstream m_text;
    std::streambuf* m_real;
};

char const* name(Phase phase)
{
    static char const* const names[] = {"after execution", "after a refusal", "after undo",
                                        "after redo", "after a restored snapshot"};
    return names[static_cast<int>(phase)];
}

}  // namespace

void Figures::add(Figures const& other)
{
    commands += other.commands;
    refused += other.refused;
    historySteps += other.historySteps;
    comparisons += other.comparisons;
    naiveAnswers += other.naiveAnswers;
    for (std::size_t i = 0; i < done.size(); ++i) {
        done[i] += other.done[i];
        refusedOf[i] += other.refusedOf[i];
    }
    for (auto const& limit : other.limits)
        limits[limit.first] += limit.second;
}

Session::Session(Script const& script, LockPolicy policy)
    : m_script(script), m_isPart(false), m_stage(new FuzzStage(policy))
{}

Session::Session(Script const& script, boost::shared_ptr<InternalProject> const& project)
    : m_script(script), m_isPart(project), m_stage(new FuzzStage(LockPolicy::Counted))
{
    if (project)
        m_stage->takeOver(project);
}

Session::~Session() = default;

void Session::begin()
{
    m_stage->begin(m_script.strip);
    if (m_isPart)
        setLimit(k_longLimit);
    m_model = model();
    m_naive.copy(*m_stage);
}

bool Session::run()
{
    if (!m_model)
        begin();
    try {
        for (Step const& step : m_script.steps)
            runStep(step);
        undoToTheStart();
    } catch (End const&) {
    }
    return m_fault.empty();
}

void Session::runStep(Step const& step)
{
    if (isCommand(step.op)) {
        runCommand(step);
    } else {
        ++m_figures.historySteps;
        m_isWild = false;
        runHistoryStep(step);
        m_naive.copy(*m_stage);
    }
    checkSizes();
}

void Session::runCommand(Step const& step)
{
    MadeCommand made = CommandMaker(*m_stage, step).make();
    if (!made.command && step.op != Op::NoCommand)
        return;
    ++m_figures.commands;
    m_isWild = made.code.find("92233720368547758") != std::string::npos ||
               made.code.find("numeric_limits") != std::string::npos;
    NaiveModel::Outcome predicted = NaiveModel::Outcome::Unknown;
    if (NaiveModel::knows(step.op))
        predicted = m_naive.run(step.op, made);
    bool hadWork = true;
    std::string const thrown = thrownBy([&] { hadWork = m_stage->project->execute(made.command); });
    // From here on the history alone keeps it alive, and with it what it took off the timeline.
    made.command.reset();
    if (!thrown.empty()) {
        write(made.code, "EXPECT_ANY_THROW(project->execute(command));");
        checkRefused(step.op, thrown, predicted);
        return;
    }
    write(made.code, "EXPECT_TRUE(edits(command));");
    if (!hadWork)
        fail(std::string("nothing to do in ") + name(step.op), "execute gave false");
    ++m_figures.done[static_cast<std::size_t>(step.op)];
    checkExecuted(step.op, predicted);
}

void Session::checkRefused(Op op, std::string const& thrown, NaiveModel::Outcome predicted)
{
    ++m_figures.refused;
    ++m_figures.refusedOf[static_cast<std::size_t>(op)];
    if (thrown.find("foreign: ") == 0)
        fail(std::string("foreign exception from ") + name(op), thrown);
    compare({op}, Phase::Refused, m_model, model());
    // The bin is not the naive model's: what a media shows may have been unloaded.
    bool const isUnloaded = thrown.find("whose source doesn't belong") != std::string::npos;
    if (predicted != NaiveModel::Outcome::Unknown && !isUnloaded) {
        ++m_figures.naiveAnswers;
        bool const expected = predicted == NaiveModel::Outcome::Collides;
        if (predicted == NaiveModel::Outcome::Done || expected != isCollision(thrown))
            fail(std::string("naive model disagrees on refusing ") + name(op),
                 thrown + '\n' + m_stage->strip() + '\n');
    }
    m_naive.copy(*m_stage);
}

void Session::checkExecuted(Op op, NaiveModel::Outcome predicted)
{
    State const executed = model();
    Evidence evidence;
    evidence.op = op;
    evidence.ops = {op};
    evidence.wanted = *m_model;
    evidence.found = *executed;
    evidence.broken = brokenInvariants(*m_stage);
    if (!evidence.broken.empty()) {
        evidence.linksDifferInLimits = linksDifferInLimits(*m_stage);
        judge(evidence);
    }
    if (predicted != NaiveModel::Outcome::Unknown) {
        ++m_figures.naiveAnswers;
        if (predicted != NaiveModel::Outcome::Done)
            fail(std::string("naive model refuses ") + name(op),
                 predicted == NaiveModel::Outcome::Collides ? "it sees a collision" : "");
        std::string const difference = m_naive.difference(*m_stage);
        if (!difference.empty())
            fail(std::string("naive model differs after ") + name(op), difference);
    } else {
        m_naive.copy(*m_stage);
    }
    record(op);
    m_model = executed;
    checkSizes();
    checkUndoAndRedo();
}

void Session::checkUndoAndRedo()
{
    if (m_undo.empty())
        return;
    undo();
    redo();
}

void Session::checkStep(Entry const& entry, Phase phase, std::string const& thrown,
                        State const& found)
{
    if (!thrown.empty()) {
        Evidence evidence;
        evidence.op = entry.op;
        evidence.ops = entry.ops;
        evidence.phase = phase;
        evidence.thrown = thrown;
        evidence.wanted = *entry.model;
        evidence.found = *found;
        evidence.from = *m_model;
        evidence.differences = evidence.wanted.differences(evidence.found);
        judge(evidence);
    }
    compare(entry.ops, phase, entry.model, found);
}

void Session::undo()
{
    Entry const entry = m_undo.back();
    std::string const thrown = thrownBy([this] { m_stage->project->undo(); });
    State const found = model();
    checkStep(entry, Phase::Undone, thrown, found);
    m_undo.pop_back();
    m_redo.push_back({entry.id, entry.op, entry.ops, m_model});
    m_model = found;
}

void Session::redo()
{
    Entry const entry = m_redo.back();
    std::string const thrown = thrownBy([this] { m_stage->project->redo(); });
    State const found = model();
    checkStep(entry, Phase::Redone, thrown, found);
    m_redo.pop_back();
    m_undo.push_back({entry.id, entry.op, entry.ops, m_model});
    m_model = found;
}

void Session::runHistoryStep(Step const& step)
{
    Project& project = *m_stage->project;
    static int const limits[] = {-1, -1, 0, 3, 10, 40};
    switch (step.op) {
    case Op::Undo:
        write("", m_undo.empty() ? "EXPECT_ANY_THROW(project->undo());" : "project->undo();");
        if (!m_undo.empty())
            undo();
        else if (thrownBy([&] { project.undo(); }).find("no commands to undo") != 0)
            fail("undo of nothing", "");
        break;
    case Op::Redo:
        write("", m_redo.empty() ? "EXPECT_ANY_THROW(project->redo());" : "project->redo();");
        if (!m_redo.empty())
            redo();
        else if (thrownBy([&] { project.redo(); }).find("no commands to redo") != 0)
            fail("redo of nothing", "");
        break;
    case Op::CombineLast:
        write("", "project->combineLastCommands();");
        project.combineLastCommands();
        combineRecords();
        compare({step.op}, Phase::Executed, m_model, model());
        break;
    case Op::CombineNext:
        write("", "project->combineNextCommand();");
        project.combineNextCommand();
        m_combinesNext = true;
        break;
    case Op::UndoLimit:
        setLimit(limits[m_isPart ? 2 + step.numbers[0] % 4 : step.numbers[0] % 6]);
        compare({step.op}, Phase::Executed, m_model, model());
        break;
    case Op::TakeSnapshot:
        write("", "CommandHistoryState const snapshot = project->commandState();");
        m_snapshot = Snapshot{project.commandState(), m_undo.empty() ? 0 : m_undo.back().id, m_redo,
                              m_model};
        break;
    default:
        restoreSnapshot();
        break;
    }
}

void Session::restoreSnapshot()
{
    if (!m_snapshot)
        return;
    Snapshot const snapshot = *m_snapshot;
    m_snapshot.reset();
    auto const isTop = [&snapshot](Entry const& entry) { return entry.id == snapshot.top; };
    bool const isDone = std::any_of(m_undo.begin(), m_undo.end(), isTop);
    bool const isUndone = std::any_of(m_redo.begin(), m_redo.end(), isTop);
    if (snapshot.top == 0 || isDone) {
        restoreTo(snapshot, false);
    } else if (isUndone) {
        restoreTo(snapshot, true);
    } else {
        write("", "EXPECT_ANY_THROW(project->restoreCommandState(snapshot));");
        SilentErrors const silence;
        std::string const thrown =
            thrownBy([&] { m_stage->project->restoreCommandState(snapshot.state); });
        if (thrown.find("State cannot be restored, cannot find undo top") != 0)
            fail("restoring what is gone", thrown);
        compare({Op::RestoreSnapshot}, Phase::Refused, m_model, model());
    }
}

void Session::restoreTo(Snapshot const& snapshot, bool isOnRedoSide)
{
    write("", "project->restoreCommandState(snapshot);");
    Evidence evidence;
    evidence.op = Op::RestoreSnapshot;
    for (Entry const& entry : m_undo)
        evidence.ops.insert(entry.ops.begin(), entry.ops.end());
    evidence.phase = isOnRedoSide ? Phase::Restored : Phase::Undone;
    evidence.thrown = thrownBy([&] { m_stage->project->restoreCommandState(snapshot.state); });
    evidence.found = *model();
    evidence.wanted = isOnRedoSide ? *snapshot.model : *m_model;
    while (!isOnRedoSide && !m_undo.empty() && m_undo.back().id != snapshot.top) {
        evidence.wanted = *m_undo.back().model;
        m_model = m_undo.back().model;
        m_undo.pop_back();
    }
    evidence.differences = evidence.wanted.differences(evidence.found);
    if (isOnRedoSide || !evidence.thrown.empty() || evidence.wanted != evidence.found)
        judge(evidence);
    m_redo = snapshot.redo;
    // A limit has dropped what lay between: what was undone belongs to another model then.
    if (*m_model != *snapshot.model && !m_redo.empty()) {
        evidence.phase = Phase::Restored;
        judge(evidence);
    }
}

void Session::undoToTheStart()
{
    m_code += "    // Everything is undone and redone.\n";
    while (!m_undo.empty())
        undo();
    while (!m_redo.empty())
        redo();
}

void Session::record(Op op)
{
    m_undo.push_back({m_nextId++, op, {op}, m_model});
    m_hasDropped = m_hasDropped || !m_redo.empty();
    m_redo.clear();
    applyLimit();
    if (m_combinesNext)
        combineRecords();
    m_combinesNext = false;
}

void Session::combineRecords()
{
    if (m_undo.size() < 2)
        return;
    Entry const second = m_undo.back();
    m_undo.pop_back();
    m_undo.back().id = m_nextId++;
    m_undo.back().ops.insert(second.ops.begin(), second.ops.end());
    if (m_undo.back().op != second.op)
        m_undo.back().op = Op::Pair;
}

void Session::setLimit(int limit)
{
    m_limit = limit;
    write("", "project->commandHistory()->setUndoLimit(" + std::to_string(m_limit) + ");");
    {
        // The history has no lock of its own, and what it drops may be what others read.
        ReadWriteMutex::ScopedWriteLock const lock(m_stage->project->mutex());
        m_stage->project->commandHistory()->setUndoLimit(m_limit);
    }
    applyLimit();
}

void Session::applyLimit()
{
    while (m_limit >= 0 && m_undo.size() > static_cast<std::size_t>(m_limit)) {
        m_undo.erase(m_undo.begin());
        m_hasDropped = true;
    }
}

void Session::checkSizes()
{
    CommandHistory const& history = *m_stage->project->commandHistory();
    if (history.numUndoCommands() != m_undo.size() || history.numRedoCommands() != m_redo.size())
        fail("history sizes", std::to_string(history.numUndoCommands()) + " and " +
                                  std::to_string(history.numRedoCommands()) + " instead of " +
                                  std::to_string(m_undo.size()) + " and " +
                                  std::to_string(m_redo.size()));
}

Session::State Session::model() const
{
    State const state(new Fingerprint(*m_stage));
    if (m_listener)
        m_listener(*state);
    return state;
}

void Session::compare(std::set<Op> const& ops, Phase phase, State const& wanted, State const& found)
{
    ++m_figures.comparisons;
    if (*wanted == *found)
        return;
    Evidence evidence;
    evidence.op = *ops.begin();
    evidence.ops = ops;
    evidence.phase = phase;
    evidence.wanted = *wanted;
    evidence.found = *found;
    evidence.from = *m_model;
    evidence.differences = wanted->differences(*found);
    judge(evidence);
}

void Session::judge(Evidence evidence)
{
    evidence.hasDroppedCommands = m_hasDropped;
    evidence.isWild = m_isWild;
    std::set<KnownLimit const*> const limits = explanations(evidence);
    for (KnownLimit const* limit : limits)
        ++m_figures.limits[limit->name];
    if (!limits.empty())
        throw End();
    std::string kind = std::string(name(evidence.op)) + ' ' + name(evidence.phase);
    std::ostringstream details;
    if (!evidence.thrown.empty()) {
        kind += " threw " + evidence.thrown.substr(0, 30);
        details << "  thrown: " << evidence.thrown << '\n';
    }
    if (!evidence.broken.empty())
        kind += " broken " + std::to_string(static_cast<int>(evidence.broken[0].breach));
    for (Broken const& broken : evidence.broken)
        details << "  " << broken.text << '\n';
    if (!evidence.differences.empty())
        kind += std::string(" changed ") + name(evidence.differences[0].field);
    std::size_t shown = 0;
    for (Fingerprint::Difference const& difference : evidence.differences)
        if (++shown <= k_shownDifferences)
            details << "  " << difference.text() << '\n';
    if (shown > k_shownDifferences)
        details << "  and " << shown - k_shownDifferences << " more\n";
    details << "  " << m_stage->strip() << '\n';
    fail(kind, details.str());
}

void Session::fail(std::string const& kind, std::string const& details)
{
    m_fault = kind;
    m_details = details;
    throw End();
}

void Session::write(std::string const& code, std::string const& ending)
{
    if (code.empty()) {
        m_code += "    " + ending + "\n";
        return;
    }
    m_code += "    {\n";
    std::istringstream lines(code);
    for (std::string line; std::getline(lines, line);)
        m_code += "        " + line + "\n";
    m_code += "        " + ending + "\n    }\n";
}

std::string Session::asTest() const
{
    return "TEST_F(Stage, Seed" + std::to_string(m_script.seed) + ")\n{\n    begin(\"" +
           m_script.strip + "\");\n" + m_code + "    // Here: " + m_fault + "\n}\n";
}

std::string Session::xml() const
{
    try {
        // Metadata is printed as its address, an identity of the run.
        static std::regex const addresses("\"0x[0-9a-f]+\"");
        return std::regex_replace(xmlWithoutIdents(*m_stage->project), addresses, "\"#\"");
    } catch (TarnMediaLibException const&) {
        return "a dead link, which cannot be printed\n";
    }
}

}  // namespace test
}  // namespace tarn
