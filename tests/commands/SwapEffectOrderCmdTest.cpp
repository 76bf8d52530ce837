#include "commands/SwapEffectOrderCmd.h"

#include "effects/CompositeEffect.h"
#include "exceptions/IndexException.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "support/Xml.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <sstream>

namespace tarn {
namespace test {
namespace {

class SwapEffectOrderCmdTest : public ModelTest
{
protected:
    /// V1.a has the effects 0, 1 and 2.
    SwapEffectOrderCmdTest()
    {
        given("V1: aaa");
        media("V1.a")->addEffect(effect("0"));
        media("V1.a")->addEffect(effect("1"));
        media("V1.a")->addEffect(effect("2"));
    }

    boost::shared_ptr<Effect> effect(std::string const& name) const
    {
        return boost::shared_ptr<Effect>(new CompositeEffect(name, lock()));
    }
    std::string nameAt(int index) const { return media("V1.a")->effectAtIndex(index)->name(); }
    std::string order() const { return nameAt(0) + nameAt(1) + nameAt(2); }
    boost::shared_ptr<Command> swap(int index1, int index2) const
    {
        return SwapEffectOrderCmd::create(media("V1.a"), index1, index2);
    }
};

TEST_F(SwapEffectOrderCmdTest, TwoEffectsChangePlaces)
{
    EXPECT_TRUE(edits(swap(0, 2), "V1: aaa"));
    EXPECT_EQ("210", order());
    project->undo();
    EXPECT_EQ("012", order());
}

TEST_F(SwapEffectOrderCmdTest, TheGreaterIndexMayComeFirst)
{
    EXPECT_TRUE(edits(swap(2, 1)));
    EXPECT_EQ("021", order());
}

TEST_F(SwapEffectOrderCmdTest, AnEffectMayBeSwappedWithItself)
{
    EXPECT_TRUE(edits(swap(1, 1)));
    EXPECT_EQ("012", order());
    project->undo();
    EXPECT_EQ("012", order());
}

TEST_F(SwapEffectOrderCmdTest, AnIndexWithoutAnEffectIsRefused)
{
    EXPECT_TRUE(refuses<IndexException>(swap(0, 3)));
    EXPECT_TRUE(refuses<IndexException>(swap(-1, 0)));
    EXPECT_EQ(3, thrownBy<IndexException>([this] { project->execute(swap(0, 3)); }).index());
}

TEST_F(SwapEffectOrderCmdTest, OfTwoBadIndicesTheFirstIsNamed)
{
    EXPECT_EQ(-1, thrownBy<IndexException>([this] { project->execute(swap(-1, 7)); }).index());
}

TEST_F(SwapEffectOrderCmdTest, UndoAsksTheOtherWayRound)
{
    project->execute(swap(1, 2));
    media("V1.a")->removeEffect(0);
    media("V1.a")->removeEffect(0);
    // Both places are gone; undo exchanges 2 with 1.
    EXPECT_EQ(2, thrownBy<IndexException>([this] { project->undo(); }).index());
}

TEST_F(SwapEffectOrderCmdTest, TracksHaveAnOrderOfEffectsToo)
{
    boost::shared_ptr<Effect> const upper = effect("upper");
    track("V1")->addEffect(effect("lower"));
    track("V1")->addEffect(upper);
    EXPECT_TRUE(edits(SwapEffectOrderCmd::create(track("V1"), 0, 1)));
    EXPECT_EQ(upper, track("V1")->effectAtIndex(0));
}

TEST_F(SwapEffectOrderCmdTest, XmlTellsOwnerAndIndices)
{
    boost::shared_ptr<Effectable const> const target = media("V1.a");
    std::ostringstream expected;
    expected << "<SwapEffectOrderCmd id=\"#\" effectable=\"" << target
             << "\" index1=\"0\" index2=\"2\" >\n</SwapEffectOrderCmd>\n";
    EXPECT_EQ(expected.str(), xmlOf(*swap(0, 2)));
}

TEST_F(SwapEffectOrderCmdTest, ACloneSwapsTheSamePlaces)
{
    boost::shared_ptr<Command> const original = swap(0, 2);
    boost::shared_ptr<Command> const copy(original->clone());
    project->execute(original);
    EXPECT_TRUE(edits(copy));
    EXPECT_EQ("012", order());
}

}  // namespace
}  // namespace test
}  // namespace tarn
