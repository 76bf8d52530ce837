#include "hosts/HostTest.h"

#include "support/CountingObserver.h"

#include "commands/CommandHistory.h"
#include "commands/NewVisualTrackCmd.h"
#include "commands/NullCmd.h"
#include "datatypes/MediaObserver.h"
#include "exceptions/CollisionException.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/Media.h"
#include "timeline/Mixer.h"
#include "timeline/Track.h"
#include "timeline/VisualMixer.h"

#include <memory>
#include <stdexcept>
#include <vector>

namespace tarn {
namespace test {

namespace {

/// What the host may observe, and an edit of which that tells.
struct Place
{
    char const* name;
    std::function<Observable const*(InternalProject const&)> subject;
    bool hearsOfMoves;
};

std::vector<Place> const& places()
{
    static std::vector<Place> const all = {
        {"a track",
         [](InternalProject const& p) {
             return p.timeline()->visualMixer()->trackAtIndex(0).get();
         },
         false},
        {"a media",
         [](InternalProject const& p) {
             return p.timeline()->visualMixer()->trackAtIndex(0)->medias().begin()->second.get();
         },
         true},
        {"the history", [](InternalProject const& p) { return p.commandHistory().get(); }, true},
    };
    return all;
}

}  // namespace

class ObserversTest : public HostTest
{
protected:
    ObserversTest() { given(k_strip); }

    /// Detaches when it goes.
    class Listener : public CountingObserver
    {
    public:
        Listener(Observable const& subject, std::function<void()> const& action)
            : CountingObserver(action), m_subject(&subject)
        {
            m_subject->attach(this);
        }
        ~Listener() override { m_subject->detach(this); }

    private:
        Observable const* m_subject;
    };
};

TARN_WITH_EACH_FAULT(ObserversTest);

TEST_P(ObserversTest, AThrowPassesAfterTheEditWhichStands)
{
    for (Place const& place : places()) {
        SCOPED_TRACE(place.name);
        boost::shared_ptr<Command> const edit =
            place.hearsOfMoves ? move("V1.a", +1) : remove("V1.b");
        std::string const edited =
            place.hearsOfMoves ? "A1: .aaa.bb / A2: c / V1: .aaa.bb" : "A1: aaa / A2: c / V1: aaa";
        Listener const thrower(*place.subject(*project), [this] { throwFault(fault()); });
        EXPECT_TRUE(throwsFault(fault(), [&] { project->execute(edit); }));
        EXPECT_EQ(edited, strip());
        EXPECT_EQ(1u, project->commandHistory()->numUndoCommands());
        EXPECT_TRUE(throwsFault(fault(), [this] { project->undo(); }));
        EXPECT_EQ(k_strip, strip());
        EXPECT_TRUE(throwsFault(fault(), [this] { project->redo(); }));
        EXPECT_EQ(edited, strip());
        EXPECT_TRUE(throwsFault(
            fault(), [this] { project->restoreCommandState(CommandHistoryState({}, {})); }));
        EXPECT_EQ(k_strip, strip());
        EXPECT_EQ(0u, project->commandHistory()->numUndoCommands());
    }
    EXPECT_TRUE(isAtRest());
}

TEST_P(ObserversTest, TheOthersAreToldAllTheSame)
{
    Track const& same = *track("V1");
    Track const& other = *track("A1");
    Listener const before(same, [] {});
    Listener const thrower(same, [this] { throwFault(fault()); });
    Listener const after(same, [] {});
    Listener const elsewhere(other, [] {});
    EXPECT_TRUE(throwsFault(fault(), [this] { project->execute(remove("V1.a")); }));
    EXPECT_EQ(1, before.calls());
    EXPECT_EQ(1, after.calls());
    EXPECT_EQ(1, elsewhere.calls());
    EXPECT_TRUE(isAtRest());
}

TEST_P(ObserversTest, OfSeveralThrowsTheFirstPasses)
{
    Listener const first(*track("V1"), [this] { throwFault(fault()); });
    Listener const second(*track("V1"), [] { throw std::logic_error("second"); });
    Listener const elsewhere(*track("A1"), [] { throw std::logic_error("third"); });
    EXPECT_TRUE(throwsFault(fault(), [this] { project->execute(remove("V1.a")); }));
    EXPECT_EQ("A1: .....bb / A2: c / V1: .....bb", strip());
}

TEST_P(ObserversTest, ARefusalsOwnExceptionWins)
{
    // The track was changed and changed back, so its observers are told.
    Listener const thrower(*track("V1"), [this] { throwFault(fault()); });
    boost::shared_ptr<Command> const colliding =
        Command::groupCommands(remove("V1.a"), add("V1", freshVideo('a', 1), 5));
    EXPECT_THROW(project->execute(colliding), CollisionException);
    EXPECT_LT(0, thrower.calls());
    EXPECT_EQ(k_strip, strip());
    EXPECT_EQ(0u, project->commandHistory()->numUndoCommands());
}

TEST_P(ObserversTest, AParentlessMediaThatNotifiesHasChanged)
{
    boost::shared_ptr<Media> const loose = freshVideo('d', 3);
    Listener const thrower(*loose, [this] { throwFault(fault()); });
    EXPECT_TRUE(throwsFault(fault(), [&] { loose->trimEnd(10); }));
    EXPECT_EQ(20, loose->trackRange().duration);
    EXPECT_TRUE(isAtRest());
}

TEST_P(ObserversTest, ThrowsBehindAMediaObserverPass)
{
    MediaObserver const all(timeline());
    Listener const thrower(all, [this] { throwFault(fault()); });
    Listener const after(all, [] {});
    EXPECT_TRUE(throwsFault(fault(), [this] { project->execute(NewVisualTrackCmd::create(-1)); }));
    EXPECT_LT(0, after.calls());
    EXPECT_EQ(2u, visualMixer()->numTracks());
    // The new track is watched although the mixer's first hearer threw.
    int const calls = after.calls();
    EXPECT_TRUE(
        throwsFault(fault(), [this] { project->execute(add("V2", freshVideo('a', 1), 0)); }));
    EXPECT_LT(calls, after.calls());
}

TEST_P(ObserversTest, AThrowInsideANestedEditReachesTheOneWhoEdited)
{
    Listener const thrower(*track("A1"), [this] { throwFault(fault()); });
    bool isCaught = false;
    std::unique_ptr<Listener> editor;
    editor = std::make_unique<Listener>(*track("V1"), [&] {
        editor.reset();
        try {
            project->execute(remove("A1.b"));
        } catch (...) {
            isCaught = true;
        }
    });
    project->execute(add("V1", freshVideo('a', 1), 8));
    EXPECT_TRUE(isCaught);
    EXPECT_EQ(2u, project->commandHistory()->numUndoCommands());
}

// What an observer may call: no fault is needed for these, so they run once.

class CallingObserversTest : public ObserversTest
{
};

INSTANTIATE_TEST_SUITE_P(Once, CallingObserversTest, ::testing::Values(Fault::Foreign));

TEST_P(CallingObserversTest, MayEditUndoAndRedo)
{
    std::unique_ptr<Listener> editor;
    editor = std::make_unique<Listener>(*track("V1"), [&] {
        editor.reset();
        project->execute(move("V1.b", +2));
        project->undo();
        project->redo();
    });
    project->execute(remove("V1.a"));
    EXPECT_EQ("A1: .......bb / A2: c / V1: .......bb", strip());
    EXPECT_EQ(2u, project->commandHistory()->numUndoCommands());
    project->undo();
    project->undo();
    EXPECT_EQ(k_strip, strip());
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingObserversTest, MayUndoWhatItHearsOf)
{
    std::unique_ptr<Listener> veto;
    veto = std::make_unique<Listener>(*track("V1"), [&] {
        veto.reset();
        project->undo();
    });
    EXPECT_TRUE(project->execute(remove("V1.a")));
    EXPECT_EQ(k_strip, strip());
    EXPECT_EQ(0u, project->commandHistory()->numUndoCommands());
    EXPECT_EQ(1u, project->commandHistory()->numRedoCommands());
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingObserversTest, ANestedEditDeliversWhatWasStillWaiting)
{
    std::vector<std::string> heard;
    std::unique_ptr<Listener> editor;
    editor = std::make_unique<Listener>(*track("V1"), [&] {
        editor.reset();
        heard.push_back("V1");
        project->execute(NullCmd::create());
        heard.push_back("edited");
    });
    Listener const last(*project->commandHistory(), [&] { heard.push_back("history"); });
    project->execute(add("V1", freshVideo('a', 1), 8));
    // One for the outer command, which waited, and one for the inner, both before it returns.
    EXPECT_EQ((std::vector<std::string>{"V1", "history", "history", "edited"}), heard);
}

TEST_P(CallingObserversTest, MayReadTheModelUnderTheLock)
{
    std::string seen;
    Listener const reader(*track("V1"), [&] { seen = strip(); });
    project->execute(remove("V1.a"));
    EXPECT_EQ("A1: .....bb / A2: c / V1: .....bb", seen);
}

TEST_P(CallingObserversTest, HoldsTheWriteLockWhileItHears)
{
    bool isKept = false;
    std::unique_ptr<OtherThread> other;
    Listener const reader(*track("A2"), [&] {
        other = std::make_unique<OtherThread>([this] { static_cast<void>(project->timeline()); });
        isKept = other->isWaiting();
    });
    project->execute(remove("A2.c"));
    EXPECT_TRUE(isKept);
    EXPECT_TRUE(other->finishes());
}

TEST_P(CallingObserversTest, MayAttachAndDetachOthersAndItself)
{
    Track const& subject = *track("V1");
    CountingObserver late;
    CountingObserver gone;
    CountingObserver self;
    self.setAction([&] {
        subject.detach(&self);
        subject.detach(&gone);
        subject.attach(&late);
    });
    subject.attach(&self);
    subject.attach(&gone);
    project->execute(remove("V1.a"));
    EXPECT_EQ(1, self.calls());
    EXPECT_EQ(0, gone.calls());
    int const heard = late.calls();
    EXPECT_LT(0, heard);
    project->undo();
    EXPECT_EQ(1, self.calls());
    EXPECT_EQ(0, gone.calls());
    EXPECT_LT(heard, late.calls());
    subject.detach(&late);
}

TEST_P(CallingObserversTest, MayDestroyItselfAndOneThatWaitsItsTurn)
{
    Track const& subject = *track("V1");
    auto gone = std::make_unique<CountingObserver>();
    auto self = std::make_unique<CountingObserver>();
    CountingObserver last;
    self->setAction([&] {
        // Neither detaches: both are told of by what is being delivered.
        gone.reset();
        self.reset();
    });
    subject.attach(self.get());
    subject.attach(gone.get());
    subject.attach(&last);
    project->execute(remove("V1.a"));
    EXPECT_EQ(nullptr, self);
    int const heard = last.calls();
    EXPECT_LT(0, heard);
    project->undo();
    EXPECT_LT(heard, last.calls());
    subject.detach(&last);
}

TEST_P(CallingObserversTest, MayDestroyTheSubject)
{
    boost::shared_ptr<Media> loose = freshVideo('d', 3);
    CountingObserver killer([&] { loose.reset(); });
    CountingObserver next;
    loose->attach(&killer);
    loose->attach(&next);
    loose->trimEnd(10);
    EXPECT_EQ(nullptr, loose);
    EXPECT_EQ(1, killer.calls());
    EXPECT_EQ(0, next.calls());
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingObserversTest, MayDestroyASubjectThatWaits)
{
    boost::shared_ptr<Media> loose = freshVideo('d', 3);
    CountingObserver next;
    loose->attach(&next);
    Listener const killer(*track("V1"), [&] { loose.reset(); });
    {
        NotifyDelay const delay;
        project->execute(remove("V1.a"));
        loose->trimEnd(10);
        EXPECT_NE(nullptr, loose);
    }
    EXPECT_EQ(nullptr, loose);
    EXPECT_EQ(0, next.calls());
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingObserversTest, MayDestroyTheMediaObserverItHearsOf)
{
    auto all = std::make_unique<MediaObserver>(timeline());
    CountingObserver next;
    CountingObserver killer([&] { all.reset(); });
    all->attach(&killer);
    all->attach(&next);
    project->execute(NewVisualTrackCmd::create(-1));
    EXPECT_EQ(nullptr, all);
    EXPECT_EQ(1, killer.calls());
    EXPECT_EQ(0, next.calls());
    EXPECT_TRUE(isAtRest());
}

TEST_P(CallingObserversTest, MayDropTheLastPointerToTheProject)
{
    boost::shared_ptr<InternalProject> mine = InternalProject::create(project->editRate());
    boost::weak_ptr<InternalProject> const watched = mine;
    bool wasAlive = false;
    CountingObserver killer([&] {
        mine.reset();
        wasAlive = !watched.expired();
    });
    mine->commandHistory()->attach(&killer);
    InternalProject& raw = *mine;
    EXPECT_TRUE(raw.execute(NullCmd::create()));
    EXPECT_TRUE(wasAlive);
    EXPECT_TRUE(watched.expired());
    EXPECT_FALSE(NotifyDelay::isActive());
}

}  // namespace test
}  // namespace tarn
