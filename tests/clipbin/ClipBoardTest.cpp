#include "clipbin/ClipBoard.h"

#include "clipbin/Clipping.h"
#include "exceptions/TarnMediaLibException.h"
#include "support/FakeProject.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "timeline/Timeline.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {
namespace {

class ClipBoardTest : public ::testing::Test
{
protected:
    boost::shared_ptr<Clipping> clipping(std::string const& name) const
    {
        boost::shared_ptr<Timeline> const empty(new Timeline(project->weak()));
        return boost::shared_ptr<Clipping>(
            new Clipping(name, empty, Clipping::TrackPositions(), project->weak()));
    }

    boost::shared_ptr<FakeProject> project = FakeProject::create();
    ClipBoard board{project->weak()};
};

TEST_F(ClipBoardTest, ANewBoardIsEmpty)
{
    EXPECT_EQ(0u, board.size());
    EXPECT_TRUE(board.clippings().empty());
}

TEST_F(ClipBoardTest, ClippingsStandInOrderOfArrival)
{
    boost::shared_ptr<Clipping> const first = clipping("first");
    boost::shared_ptr<Clipping> const second = clipping("second");
    board.addClipping(first);
    board.addClipping(second);
    ASSERT_EQ(2u, board.size());
    EXPECT_EQ(first, board.clippings().front());
    EXPECT_EQ(second, board.clippings().back());
}

TEST_F(ClipBoardTest, RemovalTakesOutTheOneGiven)
{
    boost::shared_ptr<Clipping> const kept = clipping("same name");
    boost::shared_ptr<Clipping> const removed = clipping("same name");
    board.addClipping(kept);
    board.addClipping(removed);
    board.removeClipping(removed);
    ASSERT_EQ(1u, board.size());
    EXPECT_EQ(kept, board.clippings().front());
}

TEST_F(ClipBoardTest, RemovalTakesOutEveryEntryOfIt)
{
    boost::shared_ptr<Clipping> const kept = clipping("kept");
    boost::shared_ptr<Clipping> const removed = clipping("removed");
    board.addClipping(removed);
    board.addClipping(kept);
    board.addClipping(removed);
    board.removeClipping(removed);
    ASSERT_EQ(1u, board.size());
    EXPECT_EQ(kept, board.clippings().front());
}

TEST_F(ClipBoardTest, RemovalOfAStrangerChangesNothing)
{
    board.addClipping(clipping("kept"));
    board.removeClipping(clipping("stranger"));
    EXPECT_EQ(1u, board.size());
}

TEST_F(ClipBoardTest, NoClippingIsRefused)
{
    EXPECT_THROW(board.addClipping(boost::shared_ptr<Clipping>()), TarnMediaLibException);
    EXPECT_EQ(0u, board.size());
}

TEST_F(ClipBoardTest, TheBoardKeepsItsClippingsAlive)
{
    boost::shared_ptr<Clipping> owner = clipping("kept");
    boost::weak_ptr<Clipping> const watched(owner);
    board.addClipping(owner);
    owner.reset();
    EXPECT_FALSE(watched.expired());
    board.removeClipping(watched.lock());
    EXPECT_TRUE(watched.expired());
}

TEST_F(ClipBoardTest, WithoutItsProjectItCannotBeAsked)
{
    project.reset();
    EXPECT_THROW(board.size(), boost::bad_weak_ptr);
}

class ProjectsClipBoardTest : public ModelTest
{
};

TEST_F(ProjectsClipBoardTest, TheHandlerPutsOnAndTakesOff)
{
    given("V1: aaa");
    boost::shared_ptr<Clipping> const clipping(
        new Clipping(timeline(), ConstMediaVector{media("V1.a")}, "choice"));
    project->addClipping(clipping);
    ASSERT_EQ(1u, project->clipBoard()->size());
    EXPECT_EQ(clipping, project->clipBoard()->clippings().front());
    project->removeClipping(clipping);
    EXPECT_EQ(0u, project->clipBoard()->size());
}

TEST_F(ClipBoardTest, NothingIsNoClipping)
{
    EXPECT_STREQ("attempting to add an empty clipping",
                 thrownBy<TarnMediaLibException>([this] { board.addClipping(nullptr); }).what());
    EXPECT_EQ(0u, board.size());
}

}  // namespace
}  // namespace test
}  // namespace tarn
