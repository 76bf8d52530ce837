#include "commands/AddEffectCmd.h"

#include "effects/CompositeEffect.h"
#include "support/ModelTest.h"
#include "support/Xml.h"
#include "timeline/AudioMixer.h"
#include "timeline/Media.h"
#include "timeline/Track.h"
#include "timeline/VisualMixer.h"

#include <sstream>

namespace tarn {
namespace test {
namespace {

class AddEffectCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<Effect> effect(std::string const& name) const
    {
        return boost::shared_ptr<Effect>(new CompositeEffect(name, lock()));
    }
};

TEST_F(AddEffectCmdTest, AnEffectComesAfterThoseThere)
{
    given("V1: aaa");
    boost::shared_ptr<Effect> const first = effect("first");
    boost::shared_ptr<Effect> const second = effect("second");
    EXPECT_TRUE(edits(AddEffectCmd::create(media("V1.a"), first), "V1: aaa"));
    EXPECT_TRUE(edits(AddEffectCmd::create(media("V1.a"), second), "V1: aaa"));
    ASSERT_EQ(2, media("V1.a")->numEffects());
    EXPECT_EQ(first, media("V1.a")->effectAtIndex(0));
    EXPECT_EQ(second, media("V1.a")->effectAtIndex(1));
}

TEST_F(AddEffectCmdTest, UndoTakesTheVeryEffectOff)
{
    given("V1: aaa");
    boost::shared_ptr<Effect> const kept = effect("kept");
    media("V1.a")->addEffect(kept);
    project->execute(AddEffectCmd::create(media("V1.a"), effect("new")));
    project->undo();
    ASSERT_EQ(1, media("V1.a")->numEffects());
    EXPECT_EQ(kept, media("V1.a")->effectAtIndex(0));
}

TEST_F(AddEffectCmdTest, RedoPutsTheVeryObjectAtTheVeryIndex)
{
    given("V1: aaa");
    boost::shared_ptr<Effect> const added = effect("added");
    media("V1.a")->addEffect(effect("below"));
    project->execute(AddEffectCmd::create(media("V1.a"), added));
    project->undo();
    // Another effect has taken the place meanwhile: the one that returns goes before it.
    media("V1.a")->addEffect(effect("above"));
    project->redo();
    ASSERT_EQ(3, media("V1.a")->numEffects());
    EXPECT_EQ(added, media("V1.a")->effectAtIndex(1));
}

TEST_F(AddEffectCmdTest, TheEffectRunsOnTheMediasClockWhileItIsOn)
{
    given("V1: .aaa");
    boost::shared_ptr<Effect> const added = effect("added");
    project->execute(AddEffectCmd::create(media("V1.a"), added));
    // Global 15 is 515 on the source's clock, less the track start of 10.
    EXPECT_EQ(505, added->fromGlobalToParametricTime(15));
    project->undo();
    EXPECT_EQ(15, added->fromGlobalToParametricTime(15));
    project->redo();
    EXPECT_EQ(505, added->fromGlobalToParametricTime(15));
}

TEST_F(AddEffectCmdTest, TracksAndMixersTakeEffectsToo)
{
    given("A1: aaa / V1: aaa");
    EXPECT_TRUE(edits(AddEffectCmd::create(track("V1"), effect("track"))));
    EXPECT_TRUE(edits(AddEffectCmd::create(visualMixer(), effect("picture"))));
    EXPECT_TRUE(edits(AddEffectCmd::create(audioMixer(), effect("sound"))));
    EXPECT_EQ(1, track("V1")->numEffects());
    EXPECT_EQ(1, visualMixer()->numEffects());
    EXPECT_EQ(1, audioMixer()->numEffects());
}

TEST_F(AddEffectCmdTest, ACloneOfTheCommandAddsByItself)
{
    given("V1: aaa");
    boost::shared_ptr<Effect> const added = effect("added");
    boost::shared_ptr<Command> const copy(AddEffectCmd::create(media("V1.a"), added)->clone());
    EXPECT_TRUE(edits(copy));
    ASSERT_EQ(1, media("V1.a")->numEffects());
    EXPECT_EQ(added, media("V1.a")->effectAtIndex(0));
}

TEST_F(AddEffectCmdTest, XmlTellsTheObjectsByAddress)
{
    given("V1: aaa");
    boost::shared_ptr<Effectable const> const target = media("V1.a");
    boost::shared_ptr<Effect> const added = effect("added");
    auto const command = AddEffectCmd::create(target, added);
    project->execute(command);
    project->undo();
    std::ostringstream expected;
    expected << "<AddEffectCmd id=\"#\" effectable=\"" << target << "\" effectToAdd=\"" << added
             << "\" removedEffect=\"" << added << "\" removedEffectIndex=\"0\" >\n"
             << "</AddEffectCmd>\n";
    EXPECT_EQ(expected.str(), xmlOf(*command));
}

TEST_F(AddEffectCmdTest, XmlOfACommandNeverUndoneHasNoRemovedEffect)
{
    given("V1: aaa");
    auto const command = AddEffectCmd::create(media("V1.a"), effect("added"));
    EXPECT_NE(std::string::npos,
              xmlOf(*command).find(" removedEffect=\"0\" removedEffectIndex=\""));
}

}  // namespace
}  // namespace test
}  // namespace tarn
