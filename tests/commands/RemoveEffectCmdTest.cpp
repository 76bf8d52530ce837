#include "commands/RemoveEffectCmd.h"

#include "effects/CompositeEffect.h"
#include "exceptions/IndexException.h"
#include "exceptions/ValueException.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "support/Xml.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <sstream>

namespace tarn {
namespace test {
namespace {

using EffectException = ValueException<boost::shared_ptr<Effect const>>;

class RemoveEffectCmdTest : public ModelTest
{
protected:
    /// V1.a has three effects.
    RemoveEffectCmdTest()
    {
        given("V1: .aaa");
        media("V1.a")->addEffect(first);
        media("V1.a")->addEffect(middle);
        media("V1.a")->addEffect(last);
    }

    boost::shared_ptr<Effect> effect(std::string const& name) const
    {
        return boost::shared_ptr<Effect>(new CompositeEffect(name, lock()));
    }

    boost::shared_ptr<Effect> const first = effect("first");
    boost::shared_ptr<Effect> const middle = effect("middle");
    boost::shared_ptr<Effect> const last = effect("last");
};

TEST_F(RemoveEffectCmdTest, TheOthersCloseUp)
{
    EXPECT_TRUE(edits(RemoveEffectCmd::create(media("V1.a"), middle), "V1: .aaa"));
    ASSERT_EQ(2, media("V1.a")->numEffects());
    EXPECT_EQ(first, media("V1.a")->effectAtIndex(0));
    EXPECT_EQ(last, media("V1.a")->effectAtIndex(1));
}

TEST_F(RemoveEffectCmdTest, UndoPutsTheMiddleOneBackBetweenItsNeighbours)
{
    project->execute(RemoveEffectCmd::create(media("V1.a"), middle));
    project->undo();
    ASSERT_EQ(3, media("V1.a")->numEffects());
    EXPECT_EQ(first, media("V1.a")->effectAtIndex(0));
    EXPECT_EQ(middle, media("V1.a")->effectAtIndex(1));
    EXPECT_EQ(last, media("V1.a")->effectAtIndex(2));
}

TEST_F(RemoveEffectCmdTest, TheLastOneComesBackToTheEnd)
{
    EXPECT_TRUE(edits(RemoveEffectCmd::create(media("V1.a"), last)));
    project->undo();
    EXPECT_EQ(last, media("V1.a")->effectAtIndex(2));
}

TEST_F(RemoveEffectCmdTest, ARemovedEffectRunsOnTheTimelinesClock)
{
    project->execute(RemoveEffectCmd::create(media("V1.a"), middle));
    EXPECT_EQ(15, middle->fromGlobalToParametricTime(15));
    project->undo();
    // 515 on the source's clock, less the track start of 10.
    EXPECT_EQ(505, middle->fromGlobalToParametricTime(15));
}

TEST_F(RemoveEffectCmdTest, AnEffectThatIsNotThereIsRefused)
{
    boost::shared_ptr<Effect> const stranger = effect("stranger");
    auto const command = RemoveEffectCmd::create(media("V1.a"), stranger);
    EXPECT_TRUE(refuses<EffectException>(command, "effect to remove isn't found"));
    EXPECT_EQ(stranger, thrownBy<EffectException>([&] { project->execute(command); }).value());
}

TEST_F(RemoveEffectCmdTest, NoEffectIsRefused)
{
    EXPECT_TRUE(refuses<EffectException>(
        RemoveEffectCmd::create(media("V1.a"), boost::shared_ptr<Effect const>()),
        "trying to remove a null effect"));
}

TEST_F(RemoveEffectCmdTest, UndoIsRefusedWhenThePlaceIsGone)
{
    project->execute(RemoveEffectCmd::create(media("V1.a"), last));
    media("V1.a")->removeEffect(first);
    EXPECT_EQ(2, thrownBy<IndexException>([this] { project->undo(); }).index());
    EXPECT_EQ(1, media("V1.a")->numEffects());
}

TEST_F(RemoveEffectCmdTest, XmlTellsTheObjectsByAddress)
{
    boost::shared_ptr<Effectable const> const target = media("V1.a");
    auto const command = RemoveEffectCmd::create(target, middle);
    project->execute(command);
    std::ostringstream expected;
    expected << "<RemoveEffectCmd id=\"#\" effectable=\"" << target << "\" effectToRemove=\""
             << middle << "\" removedEffect=\"" << middle << "\" removedEffectIndex=\"1\" >\n"
             << "</RemoveEffectCmd>\n";
    EXPECT_EQ(expected.str(), xmlOf(*command));
}

TEST_F(RemoveEffectCmdTest, XmlBeforeTheRunHasNoRemovedEffect)
{
    auto const command = RemoveEffectCmd::create(media("V1.a"), middle);
    EXPECT_NE(std::string::npos,
              xmlOf(*command).find(" removedEffect=\"0\" removedEffectIndex=\""));
}

TEST_F(RemoveEffectCmdTest, ACloneRemovesTheSameEffect)
{
    boost::shared_ptr<Command> const copy(RemoveEffectCmd::create(media("V1.a"), middle)->clone());
    EXPECT_TRUE(edits(copy));
    ASSERT_EQ(2, media("V1.a")->numEffects());
    EXPECT_EQ(last, media("V1.a")->effectAtIndex(1));
}

}  // namespace
}  // namespace test
}  // namespace tarn
