#include "commands/ForwardingHandler.h"

#include "commands/AddEffectCmd.h"
#include "commands/AddLeftEdgeModCmd.h"
#include "commands/MoveLeftEdgeModCmd.h"
#include "commands/NewAudioMixerCmd.h"
#include "commands/NewAudioTrackCmd.h"
#include "commands/NewImageTrackCmd.h"
#include "commands/NewTrackCmd.h"
#include "commands/NewVisualMixerCmd.h"
#include "commands/NewVisualTrackCmd.h"
#include "commands/RemoveEffectCmd.h"
#include "commands/SwapEffectOrderCmd.h"
#include "commands/SwapTrackOrderCmd.h"
#include "effects/CompositeEffect.h"
#include "exceptions/TypeException.h"
#include "parameters/Attribute.h"
#include "support/Fades.h"
#include "support/ModelTest.h"
#include "support/WatchingHandler.h"
#include "timeline/AudioMixer.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

namespace tarn {
namespace test {
namespace {

/// A host's wrapping handler hears of each primitive and leaves its work to the project.
class ForwardingHandlerTest : public ModelTest
{
protected:
    /// The primitives of an execution, an undo and a redo of a command that must do its work.
    std::string primitivesOf(boost::shared_ptr<Command> const& command)
    {
        std::string log;
        WatchingHandler const watch(*project, [&log](std::string const& primitive, auto const&) {
            log += primitive + " ";
        });
        project->execute(command);
        log += "| ";
        project->undo();
        log += "| ";
        project->redo();
        return log;
    }
    boost::shared_ptr<Effect> effect() const
    {
        return boost::shared_ptr<Effect>(new CompositeEffect("effect", lock()));
    }
};

TEST_F(ForwardingHandlerTest, Mixers)
{
    given("A1: a / V1: b");
    timeline()->removeVisualMixer();
    timeline()->removeAudioMixer();
    EXPECT_EQ("newVisualMixer | removeVisualMixer | newVisualMixer ",
              primitivesOf(NewVisualMixerCmd::create(640, 480)));
    EXPECT_EQ("newAudioMixer | removeAudioMixer | newAudioMixer ",
              primitivesOf(NewAudioMixerCmd::create(44100, 16, 2)));
    EXPECT_EQ(640, visualMixer()->attributeWidth()->value());
    EXPECT_EQ(44100u, audioMixer()->attributeSampleRate()->value());
}

TEST_F(ForwardingHandlerTest, Tracks)
{
    given("A1: a / V1: b");
    EXPECT_EQ("newVisualTrack | removeTrack | addTrack ",
              primitivesOf(NewVisualTrackCmd::create(0)));
    EXPECT_EQ("newAudioTrack | removeTrack | addTrack ", primitivesOf(NewAudioTrackCmd::create(0)));
    EXPECT_EQ("newTrack | removeTrack | addTrack ",
              primitivesOf(NewTrackCmd<VisualMixer, VisualTrack>::create(visualMixer(), 0)));
    EXPECT_EQ("A2: a / V3: b", strip());
    EXPECT_EQ("swapTrackOrder | swapTrackOrder | swapTrackOrder ",
              primitivesOf(SwapTrackOrderCmd::create(visualMixer(), track("V1"), track("V3"))));
    EXPECT_EQ("A2: a / V1: b", strip());
}

TEST_F(ForwardingHandlerTest, AnImageTrackIsRefusedByTheProjectItself)
{
    given("V1: a");
    EXPECT_THROW(primitivesOf(NewImageTrackCmd::create(0)), TypeException);
}

TEST_F(ForwardingHandlerTest, Effects)
{
    given("V1: a");
    boost::shared_ptr<Effect> const first = effect();
    boost::shared_ptr<Effect> const second = effect();
    EXPECT_EQ("addEffect | removeEffect | insertEffect ",
              primitivesOf(AddEffectCmd::create(media("V1.a"), first)));
    project->execute(AddEffectCmd::create(media("V1.a"), second));
    EXPECT_EQ("swapEffectOrder | swapEffectOrder | swapEffectOrder ",
              primitivesOf(SwapEffectOrderCmd::create(media("V1.a"), 0, 1)));
    EXPECT_EQ(second, media("V1.a")->effectAtIndex(0));
    EXPECT_EQ("removeEffect | insertEffect | removeEffect ",
              primitivesOf(RemoveEffectCmd::create(media("V1.a"), second)));
    ASSERT_EQ(1, media("V1.a")->numEffects());
    EXPECT_EQ(first, media("V1.a")->effectAtIndex(0));
}

TEST_F(ForwardingHandlerTest, LeftEdges)
{
    given("V1: aaaaaaaaaa");
    EXPECT_EQ("addLeftEdgeModification | removeLeftEdgeModification | addLeftEdgeModification ",
              primitivesOf(AddLeftEdgeModCmd::create(media("V1.a"), fadeIn(media("V1.a")))));
    EXPECT_EQ(1u, media("V1.a")->leftEdgeModifications().size());
    EXPECT_EQ("setLeftEdgeModificationLength | setLeftEdgeModificationLength | "
              "setLeftEdgeModificationLength ",
              primitivesOf(MoveLeftEdgeModCmd::create(media("V1.a"), 7)));
    EXPECT_EQ(7, media("V1.a")->leftEdgeModificationLength());
}

TEST_F(ForwardingHandlerTest, AKeyFrameOfAnOwner)
{
    given("V1: a");
    boost::shared_ptr<Media> const owner = media("V1.a");
    boost::shared_ptr<Parameter<double> const> const opacity = opacityOf(owner);
    std::string log;
    WatchingHandler watch(*project,
                          [&log](std::string const& primitive, auto const&) { log += primitive; });
    static_cast<CommandHandler&>(watch).moveParameterKeyFrame(owner, opacity, -k_mediaStart, 30);
    EXPECT_EQ("moveParameterKeyFrame", log);
    EXPECT_FALSE(opacity->hasKeyFrameAtTime(0));
    EXPECT_TRUE(opacity->hasKeyFrameAtTime(530));
}

}  // namespace
}  // namespace test
}  // namespace tarn
