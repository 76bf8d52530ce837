#include "faults/FaultStage.h"

#include "clipbin/ClipBoard.h"
#include "clipbin/SourceBin.h"
#include "commands/AddMarkerCmd.h"
#include "commands/CommandHistory.h"
#include "commands/MoveCmd.h"
#include "commands/NullCmd.h"
#include "datatypes/NotifyDelay.h"
#include "datatypes/UpdateCollector.h"
#include "parameters/LeftParameter.h"
#include "project/ReadWriteMutex.h"
#include "support/OtherThread.h"
#include "support/WatchingHandler.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/VisualMixer.h"

#include <algorithm>
#include <memory>
#include <new>
#include <ostream>

namespace tarn {
namespace test {
namespace {

/// Beyond everything that the operations place.
long long const k_farAway = 1000000;

std::vector<boost::shared_ptr<Mixer>> mixersOf(Timeline const& timeline)
{
    std::vector<boost::shared_ptr<Mixer>> mixers;
    if (timeline.visualMixer())
        mixers.push_back(timeline.visualMixer());
    if (timeline.audioMixer())
        mixers.push_back(timeline.audioMixer());
    return mixers;
}

/// What a step puts on the clipboard is taken off it apart from the steps before.
bool isSameButForBoard(Fingerprint const& one, Fingerprint const& other)
{
    if (one == other)
        return true;
    auto const differences = one.differences(other);
    return std::all_of(differences.begin(), differences.end(),
                       [](auto const& difference) { return difference.field == Field::Clipping; });
}

/// The text of a model without the line that counts its clippings.
std::string withoutBoard(std::string const& text)
{
    std::size_t const line = text.find("\n clippings ");
    std::size_t const end = text.find('\n', line + 1);
    return line == std::string::npos ? text : text.substr(0, line) + text.substr(end);
}

/// An attribute whose value is an object is written as its address.
std::string withoutAddresses(std::string const& xml)
{
    std::string text;
    std::size_t from = 0;
    for (std::size_t at = xml.find("0x"); at != std::string::npos; at = xml.find("0x", from)) {
        text.append(xml, from, at - from) += '#';
        from = xml.find_first_not_of("0123456789abcdef", at + 2);
    }
    return text.append(xml, from, std::string::npos);
}

}  // namespace

std::ostream& operator<<(std::ostream& out, Operation const& operation)
{
    return out << operation.name;
}

FaultStage::FaultStage(Operation const& operation, Phase phase)
    : m_operation(operation), m_phase(phase)
{
    begin(operation.strip);
    if (operation.prepare)
        operation.prepare(*this);
    project->execute(NullCmd::create());
    project->execute(NullCmd::create());
    project->execute(NullCmd::create());
    project->undo();
    bringTo(phase);
    observeAll();
}

void FaultStage::bringTo(Phase phase)
{
    if (phase == Execute)
        return;
    m_command = m_operation.command(*this);
    project->execute(m_command);
    if (phase == Redo)
        project->undo();
}

bool FaultStage::beginAgain()
{
    if (m_operation.leavesClipping || m_operation.dropsCommands)
        return false;
    if (m_phase == Undo) {
        // What a composite could not undo, it has lost. Another command can still be undone by who
        // holds it.
        if (m_operation.kind != Operation::Atomic)
            return false;
        ReadWriteMutex::ScopedWriteLock lock(project->mutex());
        NotifyDelay const delay;
        m_command->unexecute(project.get());
    }
    bringTo(m_phase);
    return true;
}

FaultStage::~FaultStage()
{
    auto observer = m_observers.begin();
    for (Subject const* subject : m_observed)
        subject->detach(&*observer++);
}

void FaultStage::observeAll()
{
    observe(*timeline());
    observe(*project->commandHistory());
    observe(*project->sourceBin());
    for (auto const& mixer : mixersOf(*timeline())) {
        observe(*mixer);
        for (auto const& track : mixer->trackList()) {
            observe(*track);
            for (auto const& entry : track->medias())
                observe(*entry.second);
        }
    }
}

void FaultStage::observe(Subject const& subject)
{
    m_observers.emplace_back();
    subject.attach(&m_observers.back());
    m_observed.push_back(&subject);
    // A subject must not die while it is observed here.
    if (auto const* media = dynamic_cast<Media const*>(&subject))
        kept.push_back(media->shared_from_this());
    if (auto const* track = dynamic_cast<Track const*>(&subject))
        kept.push_back(track->shared_from_this());
    if (auto const* mixer = dynamic_cast<Mixer const*>(&subject))
        kept.push_back(mixer->shared_from_this());
}

void FaultStage::act()
{
    if (m_phase == Undo)
        project->undo();
    else if (m_phase == Redo)
        project->redo();
    else if (m_operation.command)
        project->execute(m_operation.command(*this));
    else
        m_operation.run(*this);
}

FaultStage::Outcome FaultStage::actWithFault(int k, AllocationFault::Lasting lasting)
{
    m_callsBefore.clear();
    for (CountingObserver const& observer : m_observers)
        m_callsBefore.push_back(observer.calls());
    m_betweenPrimitives.clear();
    std::unique_ptr<WatchingHandler> watch;
    // What is to be taken back stays when there is no memory for that either.
    bool const mayStop =
        m_operation.kind == Operation::Pair ||
        (m_operation.kind == Operation::Composite && lasting == AllocationFault::ForEver);
    if (mayStop) {
        watch.reset(new WatchingHandler(*project, [this](auto const&, auto const&) {
            AllocationFault::Pause const pause;
            m_betweenPrimitives.push_back(Fingerprint(*this));
        }));
    }
    std::string thrown;
    AllocationFault fault(k, lasting);
    try {
        act();
    } catch (std::bad_alloc const&) {
        AllocationFault::Pause const pause;
        thrown = "bad_alloc";
    } catch (std::exception const& other) {
        AllocationFault::Pause const pause;
        thrown = std::string("another exception: ") + other.what();
    }
    return {AllocationFault::hasFired(), thrown};
}

FaultStage::Snapshot FaultStage::snapshot() const
{
    Snapshot result;
    result.model = Fingerprint(*this);
    result.text = wholeText();
    renewHistory(result);
    return result;
}

std::string FaultStage::wholeText() const
{
    // A reader, though what it reads may be handed out for changes.
    FaultStage& self = const_cast<FaultStage&>(*this);
    std::string const model = exactModelText(*project);
    return (m_operation.leavesClipping ? withoutBoard(model) : model) +
           (m_operation.tell ? m_operation.tell(self) : "");
}

void FaultStage::renewHistory(Snapshot& snapshot) const
{
    CommandHistoryState const history = project->commandState();
    snapshot.undoTop = history.undoTop();
    snapshot.redoCommands = history.redoCommands();
    snapshot.numUndo = project->commandHistory()->numUndoCommands();
}

std::string FaultStage::difference(Snapshot const& before) const
{
    std::string text;
    for (Fingerprint::Difference const& found : before.model.differences(Fingerprint(*this))) {
        if (!m_operation.leavesClipping || found.field != Field::Clipping)
            text += found.text() + "\n";
    }
    std::string const now = wholeText();
    if (text.empty() && now != before.text)
        text = "the model is\n" + now + "\nand not\n" + before.text;
    return text;
}

bool FaultStage::isBetweenPrimitives() const
{
    Fingerprint const now(*this);
    return std::any_of(m_betweenPrimitives.begin(), m_betweenPrimitives.end(),
                       [&now](Fingerprint const& then) { return isSameButForBoard(then, now); });
}

std::string FaultStage::historyFault(Snapshot const& before) const
{
    CommandHistoryState const now = project->commandState();
    std::size_t const numUndo = project->commandHistory()->numUndoCommands();
    std::list<boost::shared_ptr<Command>> redo = before.redoCommands;
    if (m_phase == Redo)
        redo.pop_back();
    if (m_operation.dropsCommands)
        return "";
    if (now.redoCommands() != redo)
        return "the list to redo is another";
    if (numUndo != before.numUndo - (m_phase == Undo ? 1 : 0))
        return "the list to undo has " + std::to_string(numUndo);
    if (m_phase != Undo && now.undoTop() != before.undoTop)
        return "the list to undo has another top";
    return "";
}

std::string FaultStage::unrest()
{
    if (NotifyDelay::isActive())
        return "a delay is still open";
    if (UpdateCollector::instance()->isCollecting())
        return "updates are still collected";
    int const calls = callsOfObservers();
    {
        NotifyDelay const delay;
        UpdateCollector::Collection const collection;
    }
    if (callsOfObservers() != calls)
        return "a notification was still held";
    OtherThread* const other =
        new OtherThread([this] { ReadWriteMutex::ScopedWriteLock lock(project->mutex()); });
    if (!other->finishes()) {
        other->abandon();  // and leaked, as it waits for ever
        return "the lock is still held";
    }
    delete other;
    return "";
}

std::string FaultStage::nextEditFault(Snapshot const& before)
{
    project->execute(AddMarkerCmd::create(timeline(), k_farAway, "next"));
    if (!timeline()->markerParam()->hasKeyFrameAtTime(k_farAway))
        return "the next edit did nothing";
    project->undo();
    if (timeline()->markerParam()->hasKeyFrameAtTime(k_farAway))
        return "the next edit was not undone";
    for (auto const& mixer : mixersOf(*timeline())) {
        for (auto const& track : mixer->trackList()) {
            if (track->medias().empty())
                continue;
            boost::shared_ptr<Media> const last = track->medias().rbegin()->second;
            long long const start = last->trackRange().start;
            project->execute(MoveCmd::create(track, last, k_farAway));
            if (last->trackRange().start != start + k_farAway)
                return "the next edit did nothing";
            project->undo();
        }
    }
    return Fingerprint(*this) == before.model ? "" : "the next edit was not undone";
}

std::string FaultStage::look() const
{
    return strip() + "\n" + std::to_string(project->clipBoard()->size()) + " clippings, " +
           std::to_string(project->commandHistory()->numUndoCommands()) + " to undo, " +
           std::to_string(project->commandHistory()->numRedoCommands()) + " to redo\n" +
           withoutAddresses(xmlWithoutIdents(*project)) +
           (m_operation.tell ? m_operation.tell(const_cast<FaultStage&>(*this)) : "");
}

std::set<std::size_t> FaultStage::notified() const
{
    std::set<std::size_t> result;
    std::size_t place = 0;
    for (CountingObserver const& observer : m_observers) {
        if (observer.calls() != m_callsBefore[place])
            result.insert(place);
        ++place;
    }
    return result;
}

int FaultStage::callsOfObservers() const
{
    int calls = 0;
    for (CountingObserver const& observer : m_observers)
        calls += observer.calls();
    return calls;
}

}  // namespace test
}  // namespace tarn
