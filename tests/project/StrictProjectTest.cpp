#include "support/ModelTest.h"
#include "support/OtherThread.h"
#include "support/Thrown.h"

#include "commands/CommandHistory.h"
#include "commands/CommandObserver.h"
#include "exceptions/ThreadLockingException.h"
#include "parameters/MTVector.h"
#include "project/Project.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <memory>

namespace tarn {
namespace test {

namespace {

char const* const k_whileReading =
    "ThreadLockingException: trying to aquire a write lock while reading";

/// A host that looks at the model before each edit.
class ReadingObserver : public CommandObserver
{
public:
    explicit ReadingObserver(Timeline const& timeline) : m_timeline(timeline) {}
    void onPreCommand() override { m_timeline.allMedias(); }

private:
    Timeline const& m_timeline;
};

}  // namespace

class StrictProjectTest : public ModelTest
{
protected:
    StrictProjectTest()
    {
        project =
            InternalProject::create(boost::rational<unsigned long>(30, 1), LockPolicy::Strict);
    }
};

TEST_F(StrictProjectTest, TheHostChoosesTheLock)
{
    boost::rational<unsigned long> const rate(30, 1);
    EXPECT_EQ(LockPolicy::Counted, Project::create(30, 1)->mutex().policy());
    EXPECT_EQ(LockPolicy::Counted, Project::create(rate)->mutex().policy());
    EXPECT_EQ(LockPolicy::Strict, Project::create(30, 1, LockPolicy::Strict)->mutex().policy());
    EXPECT_EQ(LockPolicy::Strict, Project::create(rate, LockPolicy::Strict)->mutex().policy());
}

TEST_F(StrictProjectTest, EditsAsWithTheDefaultLock)
{
    given("A1: aaa / V1: aaa...bb");
    EXPECT_TRUE(edits(move("V1.a", +3), "A1: ...aaa / V1: ...aaabb"));
}

TEST_F(StrictProjectTest, AnEditUnderAConstIteratorIsRefusedAndChangesNothing)
{
    given("V1: aaa...bb");
    auto const command = move("V1.a", +3);
    {
        Track const& lane = *track("V1");
        auto const first = lane.mediaBegin();
        EXPECT_EQ(std::string(k_whileReading),
                  thrownBy<ThreadLockingException>([&] { project->execute(command); }).what());
    }
    EXPECT_EQ("V1: aaa...bb", strip());
    EXPECT_EQ(0u, project->commandHistory()->numUndoCommands());
    EXPECT_TRUE(edits(command, "V1: ...aaabb"));
}

TEST_F(StrictProjectTest, HistoryStepsUnderAResultThatReadsAreRefusedAndChangeNothing)
{
    given("V1: aaa...bb");
    project->execute(move("V1.a", +1));
    project->execute(move("V1.a", +1));
    project->undo();
    CommandHistoryState const state = project->commandState();
    {
        auto const parameters = media("V1.a")->parameterVector();
        EXPECT_THROW(project->undo(), ThreadLockingException);
        EXPECT_THROW(project->redo(), ThreadLockingException);
        EXPECT_THROW(project->combineLastCommands(), ThreadLockingException);
        EXPECT_THROW(project->restoreCommandState(state), ThreadLockingException);
    }
    EXPECT_EQ("V1: .aaa..bb", strip());
    EXPECT_EQ(1u, project->commandHistory()->numUndoCommands());
    EXPECT_EQ(1u, project->commandHistory()->numRedoCommands());
}

TEST_F(StrictProjectTest, ARefusedEditKeepsTheWishToCombine)
{
    given("V1: aaa...bb");
    project->execute(move("V1.a", +1));
    project->combineNextCommand();
    {
        auto const parameters = media("V1.a")->parameterVector();
        EXPECT_THROW(project->execute(move("V1.a", +1)), ThreadLockingException);
    }
    project->execute(move("V1.a", +1));
    EXPECT_EQ(1u, project->commandHistory()->numUndoCommands());
}

TEST_F(StrictProjectTest, ACommandObserverReadsBeforeTheEditAndWithinIt)
{
    given("V1: aaa...bb");
    boost::shared_ptr<Timeline> const medias = timeline();
    ReadingObserver observer(*medias);
    project->attachCommandObserver(&observer);
    project->execute(move("V1.a", +3));
    project->undo();
    project->detachCommandObserver(&observer);
    EXPECT_EQ("V1: aaa...bb", strip());
}

TEST_F(StrictProjectTest, ACloneReadsByTheLockOfTheProjectItCameFrom)
{
    given("V1: aaa");
    std::unique_ptr<InternalProject> const copy(project->clone());
    EXPECT_EQ(&project->mutex(), &copy->timeline()->mutex());
    auto const markers = copy->timeline()->parameterVector();
    EXPECT_THROW(project->undo(), ThreadLockingException);
}

TEST_F(StrictProjectTest, AnyThreadMayEdit)
{
    given("V1: aaa...bb");
    boost::shared_ptr<Command> const command = move("V1.a", +3);
    OtherThread([&] { project->execute(command); }).join();
    EXPECT_EQ("V1: ...aaabb", strip());
    project->undo();
    EXPECT_EQ("V1: aaa...bb", strip());
}

}  // namespace test
}  // namespace tarn
