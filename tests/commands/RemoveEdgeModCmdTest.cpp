#include "commands/RemoveEdgeModCmd.h"

#include "commands/RemoveLeftEdgeModCmd.h"
#include "commands/RemoveRightEdgeModCmd.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/FadeOutFunc.h"
#include "edgemods/LinearSlideInFunc.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "support/ModelTest.h"
#include "support/Xml.h"
#include "timeline/VisualMedia.h"

namespace tarn {
namespace test {
namespace {

class RemoveEdgeModCmdTest : public ModelTest
{
protected:
    /// V1.a fades in and out.
    RemoveEdgeModCmdTest()
    {
        given("V1: aaa");
        picture = boost::dynamic_pointer_cast<VisualMedia>(media("V1.a"));
        picture->addLeftEdgeModification(EdgeModification(picture->opacity(), FadeInFunc()));
        picture->addRightEdgeModification(EdgeModification(picture->opacity(), FadeOutFunc()));
    }

    boost::shared_ptr<Command> removeLeft() const
    {
        return RemoveLeftEdgeModCmd::create(picture, picture->opacity());
    }
    boost::shared_ptr<Command> removeRight() const
    {
        return RemoveRightEdgeModCmd::create(picture, picture->opacity());
    }

    boost::shared_ptr<VisualMedia> picture;
};

TEST_F(RemoveEdgeModCmdTest, TheLeftModificationGoes)
{
    EXPECT_TRUE(edits(removeLeft(), "V1: aaa"));
    EXPECT_TRUE(picture->leftEdgeModifications().empty());
    EXPECT_EQ(1u, picture->rightEdgeModifications().size());
}

TEST_F(RemoveEdgeModCmdTest, TheRightModificationGoes)
{
    EXPECT_TRUE(edits(removeRight(), "V1: aaa"));
    EXPECT_EQ(1u, picture->leftEdgeModifications().size());
    EXPECT_TRUE(picture->rightEdgeModifications().empty());
}

TEST_F(RemoveEdgeModCmdTest, UndoGivesTheSameFunctionBackOnEachEdge)
{
    project->execute(removeLeft());
    project->execute(removeRight());
    project->undo();
    project->undo();
    EXPECT_EQ(picture->opacity(), picture->leftEdgeModifications().front().parameter());
    EXPECT_EQ("FadeInFunc", picture->leftEdgeModifications().front().func().ident());
    EXPECT_EQ("FadeOutFunc", picture->rightEdgeModifications().front().func().ident());
}

TEST_F(RemoveEdgeModCmdTest, UndoAppendsToTheEdgesList)
{
    picture->addLeftEdgeModification(
        EdgeModification(picture->translation()->at(0), LinearSlideInFunc(-50)));
    project->execute(removeLeft());
    project->undo();
    ASSERT_EQ(2u, picture->leftEdgeModifications().size());
    EXPECT_EQ(picture->translation()->at(0), picture->leftEdgeModifications().front().parameter());
    EXPECT_EQ(picture->opacity(), picture->leftEdgeModifications().back().parameter());
}

TEST_F(RemoveEdgeModCmdTest, LengthsStay)
{
    picture->setLeftEdgeModificationLength(7);
    EXPECT_TRUE(edits(removeLeft()));
    EXPECT_EQ(7, picture->leftEdgeModificationLength());
}

TEST_F(RemoveEdgeModCmdTest, AParameterWithoutAModificationIsRefused)
{
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        RemoveLeftEdgeModCmd::create(picture, picture->translation()->at(0)),
        "trying to remove non existant left edge mod"));
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        RemoveRightEdgeModCmd::create(picture, picture->translation()->at(0)),
        "trying to remove non existant right edge mod"));
}

TEST_F(RemoveEdgeModCmdTest, AModificationOfTheOtherEdgeIsRefused)
{
    picture->removeLeftEdgeModification(picture->opacity());
    EXPECT_TRUE(refuses<TarnMediaLibException>(removeLeft(),
                                               "trying to remove non existant left edge mod"));
    EXPECT_EQ(1u, picture->rightEdgeModifications().size());
}

TEST_F(RemoveEdgeModCmdTest, ClonesOfTheCommandsRemoveOnTheirEdge)
{
    boost::shared_ptr<Command> const left(removeLeft()->clone());
    boost::shared_ptr<Command> const right(removeRight()->clone());
    EXPECT_TRUE(edits(left));
    EXPECT_TRUE(edits(right));
    EXPECT_TRUE(picture->leftEdgeModifications().empty());
    EXPECT_TRUE(picture->rightEdgeModifications().empty());
}

TEST_F(RemoveEdgeModCmdTest, XmlIsTheNameAlone)
{
    EXPECT_EQ("<RemoveLeftEdgeModCmd id=\"#\"  >\n</RemoveLeftEdgeModCmd>\n", xmlOf(*removeLeft()));
    EXPECT_EQ("<RemoveRightEdgeModCmd id=\"#\"  >\n</RemoveRightEdgeModCmd>\n",
              xmlOf(*removeRight()));
}

}  // namespace
}  // namespace test
}  // namespace tarn
