#include "commands/EdgeModCloneCmd.h"

#include "commands/AddRightEdgeModCmd.h"
#include "edgemods/AuxEdgeModInfo.h"
#include "edgemods/MixerXSlideOutFunc.h"
#include "parameters/VectorParam.h"
#include "support/CommandXml.h"
#include "support/Fades.h"
#include "support/FaultyHandler.h"
#include "support/ModelTest.h"
#include "support/WatchingHandler.h"
#include "timeline/AudioMixer.h"
#include "timeline/VisualMixer.h"

namespace tarn {
namespace test {
namespace {

class EdgeModCloneCmdTest : public ModelTest
{
protected:
    EdgeModCloneCmdTest() { given("A1: aaaaaaaaaa / V1: aaaaaaaaaa"); }

    boost::shared_ptr<Media> original() const { return media("V1.a"); }
    boost::shared_ptr<EdgeModCloneCmd> cloning() const
    {
        return EdgeModCloneCmd::create(original());
    }
    static boost::shared_ptr<Parameter<double> const> xOf(boost::shared_ptr<Media> const& media)
    {
        return boost::dynamic_pointer_cast<VisualMedia>(media)->translation()->at(0);
    }
};

TEST_F(EdgeModCloneCmdTest, DividesTheEdges)
{
    giveFades(original(), 10, 20);
    boost::shared_ptr<EdgeModCloneCmd> const command = cloning();
    EXPECT_FALSE(command->mediaClone());
    EXPECT_TRUE(edits(command));
    EXPECT_EQ(1u, original()->leftEdgeModifications().size());
    EXPECT_EQ(0u, original()->rightEdgeModifications().size());
    EXPECT_EQ(0u, command->mediaClone()->leftEdgeModifications().size());
    EXPECT_EQ(1u, command->mediaClone()->rightEdgeModifications().size());
}

TEST_F(EdgeModCloneCmdTest, DividesTheLengths)
{
    giveFades(original(), 10, 20);
    boost::shared_ptr<EdgeModCloneCmd> const command = cloning();
    project->execute(command);
    EXPECT_EQ(10, original()->leftEdgeModificationLength());
    EXPECT_EQ(0, original()->rightEdgeModificationLength());
    EXPECT_EQ(0, command->mediaClone()->leftEdgeModificationLength());
    EXPECT_EQ(20, command->mediaClone()->rightEdgeModificationLength());
}

TEST_F(EdgeModCloneCmdTest, TheCloneBendsItsOwnParameter)
{
    giveFades(original(), 10, 20);
    boost::shared_ptr<EdgeModCloneCmd> const command = cloning();
    project->execute(command);
    EdgeModification const right = command->mediaClone()->rightEdgeModifications().front();
    EXPECT_EQ(opacityOf(command->mediaClone()), right.parameter());
    EXPECT_EQ(FadeOutFunc().ident(), right.func().ident());
}

TEST_F(EdgeModCloneCmdTest, TheCloneLiesOnNoTrackAndHasNoLinks)
{
    boost::shared_ptr<EdgeModCloneCmd> const command = cloning();
    EXPECT_TRUE(edits(command, "A1: aaaaaaaaaa / V1: aaaaaaaaaa"));
    boost::shared_ptr<Media> const clone = command->mediaClone();
    EXPECT_FALSE(clone->parentTrack().lock());
    EXPECT_TRUE(clone->linkBegin() == clone->linkEnd());
    EXPECT_EQ(original()->mediaRange(), clone->mediaRange());
}

TEST_F(EdgeModCloneCmdTest, UndoGivesBackAllRightModificationsInOrder)
{
    giveFades(original(), 10, 20);
    original()->addRightEdgeModification(EdgeModification(xOf(original()), FadeInFunc()));
    project->execute(cloning());
    EXPECT_EQ(0u, original()->rightEdgeModifications().size());
    project->undo();
    EXPECT_EQ(20, original()->rightEdgeModificationLength());
    ASSERT_EQ(2u, original()->rightEdgeModifications().size());
    EXPECT_EQ(opacityOf(original()), original()->rightEdgeModifications().front().parameter());
    EXPECT_EQ(xOf(original()), original()->rightEdgeModifications().back().parameter());
    EXPECT_EQ(FadeInFunc().ident(), original()->rightEdgeModifications().back().func().ident());
}

TEST_F(EdgeModCloneCmdTest, SeveralModificationsComeBackExactly)
{
    giveFades(original(), 10, 20);
    original()->addRightEdgeModification(EdgeModification(xOf(original()), FadeInFunc()));
    original()->addLeftEdgeModification(EdgeModification(xOf(original()), FadeOutFunc()));
    boost::shared_ptr<EdgeModCloneCmd> const command = cloning();
    EXPECT_TRUE(edits(command));
    EXPECT_EQ(2u, original()->leftEdgeModifications().size());
    EXPECT_EQ(0u, command->mediaClone()->leftEdgeModifications().size());
    EXPECT_EQ(2u, command->mediaClone()->rightEdgeModifications().size());
}

TEST_F(EdgeModCloneCmdTest, RedoKeepsTheClone)
{
    giveFades(original(), 10, 20);
    boost::shared_ptr<EdgeModCloneCmd> const command = cloning();
    project->execute(command);
    boost::shared_ptr<Media> const clone = command->mediaClone();
    project->undo();
    EXPECT_EQ(clone, command->mediaClone());
    project->redo();
    EXPECT_EQ(clone, command->mediaClone());
    EXPECT_EQ(20, clone->rightEdgeModificationLength());
    EXPECT_EQ(1u, clone->rightEdgeModifications().size());
    EXPECT_EQ(0u, clone->leftEdgeModifications().size());
}

TEST_F(EdgeModCloneCmdTest, UndoGivesBackTheLengthThatShowed)
{
    // 300 were asked for and the media is 100 long.
    original()->setRightEdgeModificationLength(300);
    EXPECT_TRUE(edits(cloning()));
    project->undo();
    project->execute(trimEnd("V1.a", -10));
    EXPECT_EQ(100, original()->rightEdgeModificationLength());
}

TEST_F(EdgeModCloneCmdTest, EditsTheOriginalThroughTheHandler)
{
    giveFades(original(), 10, 20);
    EXPECT_EQ("setRightEdgeModificationLength@0 removeRightEdgeModification@0 ",
              primitivesOf(*project, cloning()));
}

TEST_F(EdgeModCloneCmdTest, WorksForSoundWithoutEdges)
{
    boost::shared_ptr<EdgeModCloneCmd> const command = EdgeModCloneCmd::create(media("A1.a"));
    EXPECT_TRUE(edits(command));
    EXPECT_EQ(0, command->mediaClone()->rightEdgeModificationLength());
    EXPECT_NE(media("A1.a"), command->mediaClone());
}

TEST_F(EdgeModCloneCmdTest, TheClonesSlideMeasuresTheClone)
{
    EdgeModification const slide(xOf(original()), MixerXSlideOutFunc());
    project->execute(AddRightEdgeModCmd::create(original(), slide));
    boost::shared_ptr<EdgeModCloneCmd> const command = cloning();
    project->execute(command);
    EdgeModification const right = command->mediaClone()->rightEdgeModifications().front();
    ASSERT_TRUE(right.func().auxInfo());
    EXPECT_EQ(command->mediaClone(), right.func().auxInfo()->visualMedia().lock());
    EXPECT_EQ(visualMixer(), right.func().auxInfo()->visualMixer().lock());
}

TEST_F(EdgeModCloneCmdTest, UndoLetsTheSlideMeasureTheOriginalAgain)
{
    EdgeModification const slide(xOf(original()), MixerXSlideOutFunc());
    project->execute(AddRightEdgeModCmd::create(original(), slide));
    project->execute(cloning());
    project->undo();
    EdgeModification const right = original()->rightEdgeModifications().front();
    EXPECT_EQ(original(), right.func().auxInfo()->visualMedia().lock());
}

TEST_F(EdgeModCloneCmdTest, IsWrittenByItsNameAlone)
{
    boost::shared_ptr<EdgeModCloneCmd> const command = cloning();
    project->execute(command);
    EXPECT_EQ(emptyElement("EdgeModCloneCmd", ""), xmlOf(*command));
}

TEST_F(EdgeModCloneCmdTest, ACloneOfTheCommandMakesAMediaOfItsOwn)
{
    boost::shared_ptr<EdgeModCloneCmd> const command = cloning();
    boost::shared_ptr<EdgeModCloneCmd> const copy(command->clone());
    EXPECT_TRUE(edits(copy));
    EXPECT_TRUE(copy->mediaClone());
    EXPECT_FALSE(command->mediaClone());
}

TEST_F(EdgeModCloneCmdTest, ExecutedAgainItKeepsTheMediaItMade)
{
    boost::shared_ptr<EdgeModCloneCmd> const command = cloning();
    project->execute(command);
    boost::shared_ptr<Media> const made = command->mediaClone();
    project->undo();
    project->execute(command);
    EXPECT_EQ(made, command->mediaClone());
}

TEST_F(EdgeModCloneCmdTest, AnUndoThatBreaksDownLeavesTheWholeEdgeWithTheClone)
{
    giveFades(original(), 10, 20);
    original()->addRightEdgeModification(EdgeModification(xOf(original()), FadeOutFunc()));
    project->execute(cloning());
    {
        // After the length, the first of the two is back, and the second is refused.
        FaultyHandler<ForeignFault> const faulty(*project, 3, ForeignFault());
        EXPECT_THROW(project->undo(), ForeignFault);
    }
    EXPECT_EQ(0u, original()->rightEdgeModifications().size());
    EXPECT_EQ(0, original()->rightEdgeModificationLength());
}

}  // namespace
}  // namespace test
}  // namespace tarn
