#include "commands/AddEdgeModCmd.h"

#include "clipbin/Source.h"
#include "commands/AddLeftEdgeModCmd.h"
#include "commands/AddRightEdgeModCmd.h"
#include "edgemods/AuxEdgeModInfo.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/FadeOutFunc.h"
#include "edgemods/MixerXSlideInFunc.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "support/ModelTest.h"
#include "support/Xml.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMedia.h"
#include "timeline/Track.h"
#include "timeline/VisualMedia.h"
#include "timeline/VisualMixer.h"

#include <boost/weak_ptr.hpp>

namespace tarn {
namespace test {
namespace {

class AddEdgeModCmdTest : public ModelTest
{
protected:
    static boost::shared_ptr<VisualMedia> visual(boost::shared_ptr<Media> const& media)
    {
        return boost::dynamic_pointer_cast<VisualMedia>(media);
    }
    boost::shared_ptr<VisualMedia> picture() const { return visual(media("V1.a")); }

    EdgeModification fadeIn() const { return EdgeModification(picture()->opacity(), FadeInFunc()); }
    EdgeModification fadeOut() const
    {
        return EdgeModification(picture()->opacity(), FadeOutFunc());
    }
    static EdgeModification slideIn(boost::shared_ptr<VisualMedia> const& picture)
    {
        return EdgeModification(picture->translation()->at(0), MixerXSlideInFunc());
    }
    /// What the first function on a media's left edge knows.
    static AuxEdgeModInfo leftInfo(Media const& media)
    {
        return *media.leftEdgeModifications().front().func().auxInfo();
    }
    static bool isEmpty(AuxEdgeModInfo const& info)
    {
        return !info.visualMixer().lock() && !info.visualMedia().lock();
    }
};

TEST_F(AddEdgeModCmdTest, AModificationIsPutOnTheLeftEdge)
{
    given("V1: aaa");
    EXPECT_TRUE(edits(AddLeftEdgeModCmd::create(media("V1.a"), fadeIn()), "V1: aaa"));
    ASSERT_EQ(1u, picture()->leftEdgeModifications().size());
    EXPECT_TRUE(picture()->rightEdgeModifications().empty());
    EXPECT_EQ(picture()->opacity(), picture()->leftEdgeModifications().front().parameter());
    EXPECT_EQ("FadeInFunc", picture()->leftEdgeModifications().front().func().ident());
}

TEST_F(AddEdgeModCmdTest, AModificationIsPutOnTheRightEdge)
{
    given("V1: aaa");
    EXPECT_TRUE(edits(AddRightEdgeModCmd::create(media("V1.a"), fadeOut()), "V1: aaa"));
    EXPECT_TRUE(picture()->leftEdgeModifications().empty());
    ASSERT_EQ(1u, picture()->rightEdgeModifications().size());
    EXPECT_EQ("FadeOutFunc", picture()->rightEdgeModifications().front().func().ident());
}

TEST_F(AddEdgeModCmdTest, TheFunctionBendsTheParameterOverTheEdge)
{
    given("V1: aaa");
    picture()->setLeftEdgeModificationLength(10);
    project->execute(AddLeftEdgeModCmd::create(media("V1.a"), fadeIn()));
    // Opacity 1 times the position 5 / 10.
    EXPECT_DOUBLE_EQ(0.5, picture()->doubleParametricTransform(picture()->opacity(), 1.0, 5.0));
    project->undo();
    EXPECT_DOUBLE_EQ(1.0, picture()->doubleParametricTransform(picture()->opacity(), 1.0, 5.0));
}

TEST_F(AddEdgeModCmdTest, ASecondForTheParameterOnTheEdgeIsRefused)
{
    given("V1: aaa");
    char const* const text = "trying to add an edge mod for a parameter already with a mod";
    project->execute(AddLeftEdgeModCmd::create(media("V1.a"), fadeIn()));
    project->execute(AddRightEdgeModCmd::create(media("V1.a"), fadeIn()));
    EXPECT_TRUE(
        refuses<TarnMediaLibException>(AddLeftEdgeModCmd::create(media("V1.a"), fadeOut()), text));
    EXPECT_TRUE(
        refuses<TarnMediaLibException>(AddRightEdgeModCmd::create(media("V1.a"), fadeOut()), text));
}

TEST_F(AddEdgeModCmdTest, AFunctionIsAimedAtItsMediaAndTheMixer)
{
    given("V1: aaa");
    EXPECT_TRUE(edits(AddLeftEdgeModCmd::create(media("V1.a"), slideIn(picture()))));
    EXPECT_EQ(visualMixer(), leftInfo(*picture()).visualMixer().lock());
    EXPECT_EQ(picture(), leftInfo(*picture()).visualMedia().lock());
}

TEST_F(AddEdgeModCmdTest, TheFunctionGivenStaysAsItWas)
{
    given("V1: aaa");
    EdgeModification const given = slideIn(picture());
    project->execute(AddLeftEdgeModCmd::create(media("V1.a"), given));
    EXPECT_TRUE(isEmpty(*given.func().auxInfo()));
}

TEST_F(AddEdgeModCmdTest, AnAimedSlideStartsBesideTheMixer)
{
    given("V1: aaa");
    project->execute(AddLeftEdgeModCmd::create(media("V1.a"), slideIn(picture())));
    EdgeModification const slide = picture()->leftEdgeModifications().front();
    // Mixer and picture are 640 wide: half of each to the left.
    EXPECT_DOUBLE_EQ(-640.0, slide.func().execute(0.0, 100.0));
    EXPECT_DOUBLE_EQ(100.0, slide.func().execute(1.0, 100.0));
}

TEST_F(AddEdgeModCmdTest, OnAMediaWithoutATrackTheFunctionKnowsNothing)
{
    given("V1: aaa");
    boost::shared_ptr<VisualMedia> const loose = visual(freshVideo('b', 3));
    EXPECT_TRUE(project->execute(AddLeftEdgeModCmd::create(loose, slideIn(loose))));
    EXPECT_TRUE(isEmpty(leftInfo(*loose)));
    EdgeModification const slide = loose->leftEdgeModifications().front();
    EXPECT_THROW(slide.func().execute(0.5, 0.0), boost::bad_weak_ptr);
}

TEST_F(AddEdgeModCmdTest, OnAMediaOfASourceTheFunctionKnowsNothing)
{
    given("V1: aaa");
    boost::shared_ptr<VisualMedia> const prototype =
        visual(source('a')->timeline()->visualMixer()->trackAtIndex(0)->mediaBegin()->second);
    EXPECT_TRUE(project->execute(AddLeftEdgeModCmd::create(prototype, slideIn(prototype))));
    EXPECT_TRUE(isEmpty(leftInfo(*prototype)));
}

TEST_F(AddEdgeModCmdTest, WithoutAVisualMixerTheFunctionKnowsNothing)
{
    given("V1: aaa");
    boost::shared_ptr<VisualMixer> const removed = timeline()->removeVisualMixer();
    boost::shared_ptr<VisualMedia> const kept = picture();
    EXPECT_TRUE(project->execute(AddLeftEdgeModCmd::create(kept, slideIn(kept))));
    EXPECT_TRUE(isEmpty(leftInfo(*kept)));
}

TEST_F(AddEdgeModCmdTest, OnASoundTheFunctionKnowsNothing)
{
    given("A1: bbb / V1: aaa");
    auto const sound = boost::dynamic_pointer_cast<AudioMedia>(media("A1.b"));
    EXPECT_TRUE(edits(
        AddLeftEdgeModCmd::create(sound, EdgeModification(sound->volume(), MixerXSlideInFunc()))));
    EXPECT_TRUE(isEmpty(leftInfo(*sound)));
}

TEST_F(AddEdgeModCmdTest, RedoAimsAnew)
{
    given("V1: aaa");
    boost::shared_ptr<VisualMedia> const loose = visual(freshVideo('b', 3));
    project->execute(AddLeftEdgeModCmd::create(loose, slideIn(loose)));
    project->undo();
    track("V1")->addMedia(loose, 50);
    project->redo();
    EXPECT_EQ(visualMixer(), leftInfo(*loose).visualMixer().lock());
    EXPECT_EQ(loose, leftInfo(*loose).visualMedia().lock());
}

TEST_F(AddEdgeModCmdTest, AFunctionWhoseMixerIsGoneThrows)
{
    given("V1: aaa");
    boost::shared_ptr<VisualMedia> const kept = picture();
    project->execute(AddLeftEdgeModCmd::create(kept, slideIn(kept)));
    EdgeModification const slide = kept->leftEdgeModifications().front();
    timeline()->removeVisualMixer();
    EXPECT_THROW(slide.func().execute(0.5, 0.0), boost::bad_weak_ptr);
}

TEST_F(AddEdgeModCmdTest, UndoRefusesAModificationThatIsGone)
{
    given("V1: aaa");
    project->execute(AddLeftEdgeModCmd::create(media("V1.a"), fadeIn()));
    picture()->removeLeftEdgeModification(picture()->opacity());
    EXPECT_THROW(project->undo(), TarnMediaLibException);
}

TEST_F(AddEdgeModCmdTest, XmlIsTheNameAlone)
{
    given("V1: aaa");
    EXPECT_EQ("<AddLeftEdgeModCmd id=\"#\"  >\n</AddLeftEdgeModCmd>\n",
              xmlOf(*AddLeftEdgeModCmd::create(media("V1.a"), fadeIn())));
    EXPECT_EQ("<AddRightEdgeModCmd id=\"#\"  >\n</AddRightEdgeModCmd>\n",
              xmlOf(*AddRightEdgeModCmd::create(media("V1.a"), fadeIn())));
}

TEST_F(AddEdgeModCmdTest, ClonesOfTheCommandsAddOnTheirEdge)
{
    given("V1: aaa");
    boost::shared_ptr<Command> const left(
        AddLeftEdgeModCmd::create(media("V1.a"), fadeIn())->clone());
    boost::shared_ptr<Command> const right(
        AddRightEdgeModCmd::create(media("V1.a"), fadeOut())->clone());
    EXPECT_TRUE(edits(left));
    EXPECT_TRUE(edits(right));
    EXPECT_EQ(1u, picture()->leftEdgeModifications().size());
    EXPECT_EQ(1u, picture()->rightEdgeModifications().size());
}

}  // namespace
}  // namespace test
}  // namespace tarn
