#include "commands/MoveEdgeModCmd.h"

#include "commands/MoveLeftEdgeModCmd.h"
#include "commands/MoveRightEdgeModCmd.h"
#include "support/ModelTest.h"
#include "support/Xml.h"
#include "timeline/Media.h"

namespace tarn {
namespace test {
namespace {

/// V1.a is 100 edit units long.
class MoveEdgeModCmdTest : public ModelTest
{
protected:
    MoveEdgeModCmdTest()
    {
        given("V1: aaaaaaaaaa");
        edited = media("V1.a");
    }

    boost::shared_ptr<Command> moveLeft(long long delta) const
    {
        return MoveLeftEdgeModCmd::create(edited, delta);
    }
    boost::shared_ptr<Command> moveRight(long long delta) const
    {
        return MoveRightEdgeModCmd::create(edited, delta);
    }
    void giveLengths(long long left, long long right) const
    {
        edited->setLeftEdgeModificationLength(left);
        edited->setRightEdgeModificationLength(right);
    }

    boost::shared_ptr<Media> edited;
};

TEST_F(MoveEdgeModCmdTest, TheLeftEdgeGrowsByTheDelta)
{
    giveLengths(20, 5);
    EXPECT_TRUE(edits(moveLeft(30), "V1: aaaaaaaaaa"));
    EXPECT_EQ(50, edited->leftEdgeModificationLength());
    EXPECT_EQ(5, edited->rightEdgeModificationLength());
}

TEST_F(MoveEdgeModCmdTest, TheRightEdgeGrowsByTheDelta)
{
    giveLengths(5, 20);
    EXPECT_TRUE(edits(moveRight(30), "V1: aaaaaaaaaa"));
    EXPECT_EQ(5, edited->leftEdgeModificationLength());
    EXPECT_EQ(50, edited->rightEdgeModificationLength());
}

TEST_F(MoveEdgeModCmdTest, UndoRestoresTheEarlierLength)
{
    giveLengths(20, 10);
    project->execute(moveLeft(-15));
    project->execute(moveRight(-4));
    EXPECT_EQ(5, edited->leftEdgeModificationLength());
    EXPECT_EQ(6, edited->rightEdgeModificationLength());
    project->undo();
    project->undo();
    EXPECT_EQ(20, edited->leftEdgeModificationLength());
    EXPECT_EQ(10, edited->rightEdgeModificationLength());
}

TEST_F(MoveEdgeModCmdTest, RedoAddsTheDeltaToTheLengthOfTheFirstRun)
{
    giveLengths(20, 20);
    project->execute(moveLeft(30));
    project->execute(moveRight(10));
    project->undo();
    project->undo();
    giveLengths(1, 1);
    project->redo();
    project->redo();
    EXPECT_EQ(50, edited->leftEdgeModificationLength());
    EXPECT_EQ(30, edited->rightEdgeModificationLength());
}

TEST_F(MoveEdgeModCmdTest, TheDeltaIsAddedToTheLengthThatIsVisible)
{
    // Of the 80 asked for, the 40 on the right leave 60.
    giveLengths(80, 40);
    project->execute(moveLeft(-25));
    EXPECT_EQ(35, edited->leftEdgeModificationLength());
}

TEST_F(MoveEdgeModCmdTest, UndoLowersAStoredLengthThatWasLonger)
{
    giveLengths(80, 40);
    project->execute(moveLeft(10));
    project->undo();
    EXPECT_EQ(60, edited->leftEdgeModificationLength());
    // With all the room there is, it still is what was visible, and not the 80.
    edited->setRightEdgeModificationLength(0);
    EXPECT_EQ(60, edited->leftEdgeModificationLength());
}

TEST_F(MoveEdgeModCmdTest, UndoLowersAStoredLengthOnTheRightAsWell)
{
    giveLengths(60, 80);
    project->execute(moveRight(10));
    project->undo();
    // Both were more than half of the 100.
    edited->setLeftEdgeModificationLength(0);
    EXPECT_EQ(50, edited->rightEdgeModificationLength());
}

TEST_F(MoveEdgeModCmdTest, ALengthMayGoBelowZero)
{
    EXPECT_TRUE(edits(moveLeft(-10)));
    EXPECT_EQ(-10, edited->leftEdgeModificationLength());
}

TEST_F(MoveEdgeModCmdTest, ADeltaOfZeroIsAnEdit)
{
    giveLengths(20, 0);
    EXPECT_TRUE(edits(moveLeft(0)));
    EXPECT_EQ(20, edited->leftEdgeModificationLength());
}

TEST_F(MoveEdgeModCmdTest, ClonesOfTheCommandsMoveTheirEdge)
{
    boost::shared_ptr<Command> const left(moveLeft(3)->clone());
    boost::shared_ptr<Command> const right(moveRight(4)->clone());
    EXPECT_TRUE(edits(left));
    EXPECT_TRUE(edits(right));
    EXPECT_EQ(3, edited->leftEdgeModificationLength());
    EXPECT_EQ(4, edited->rightEdgeModificationLength());
}

TEST_F(MoveEdgeModCmdTest, XmlIsTheNameAlone)
{
    EXPECT_EQ("<MoveLeftEdgeModCmd id=\"#\"  >\n</MoveLeftEdgeModCmd>\n", xmlOf(*moveLeft(1)));
    EXPECT_EQ("<MoveRightEdgeModCmd id=\"#\"  >\n</MoveRightEdgeModCmd>\n", xmlOf(*moveRight(1)));
}

}  // namespace
}  // namespace test
}  // namespace tarn
