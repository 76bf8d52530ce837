#include "clipbin/Clipping.h"

#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/ValueException.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/KeyFrame.h"
#include "support/ClippingText.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "support/Xml.h"
#include "timeline/VisualMedia.h"

#include <sstream>

namespace tarn {
namespace test {
namespace {

class ClippingTest : public ModelTest
{
protected:
    boost::shared_ptr<Clipping> range(long long start, long long duration,
                                      ConstTrackSet const& tracks) const
    {
        return boost::shared_ptr<Clipping>(
            new Clipping(timeline(), Range<long long>(start, duration), tracks, "piece"));
    }
    boost::shared_ptr<Clipping> selection(ConstMediaVector const& medias) const
    {
        return boost::shared_ptr<Clipping>(new Clipping(timeline(), medias, "choice"));
    }
};

TEST_F(ClippingTest, TracksKeepTheirDistanceFromTheTopmost)
{
    given("V1: a / V2: b / V3: c / V4: d");
    auto const clipping = range(0, 10, {track("V2"), track("V4")});
    EXPECT_EQ("V1: (0,10)\nV2: (0,10)\n", placesIn(*clipping));
    EXPECT_EQ(0, clipping->trackPosition(visualTrackOf(*clipping, 0)));
    EXPECT_EQ(2, clipping->trackPosition(visualTrackOf(*clipping, 1)));
}

TEST_F(ClippingTest, ASelectionKeepsTheDistanceOfItsTracksToo)
{
    given("V1: a / V2: b / V3: c");
    auto const clipping = selection({media("V3.c"), media("V2.b")});
    EXPECT_EQ(0, clipping->trackPosition(visualTrackOf(*clipping, 0)));
    EXPECT_EQ(1, clipping->trackPosition(visualTrackOf(*clipping, 1)));
}

TEST_F(ClippingTest, PicturesAndSoundsCountFromOneLowestPosition)
{
    given("A1: d / A2: e / V1: a / V2: b / V3: c");
    auto const clipping = range(0, 10, {track("V3"), track("A2")});
    // V3 is 2 among the pictures, A2 is 1 among the sounds.
    EXPECT_EQ(1, clipping->trackPosition(visualTrackOf(*clipping, 0)));
    EXPECT_EQ(0, clipping->trackPosition(audioTrackOf(*clipping, 0)));
}

TEST_F(ClippingTest, SoundsNeedNoVisualMixer)
{
    given("A1: a / A2: b / A3: c");
    timeline()->removeVisualMixer();
    auto const clipping = range(0, 10, {track("A2"), track("A3")});
    EXPECT_EQ("A1: (0,10)\nA2: (0,10)\n", placesIn(*clipping));
}

TEST_F(ClippingTest, TheEarliestMediaStartsAtZero)
{
    given("V1: ..........aa.bb");
    auto const clipping = selection({media("V1.a"), media("V1.b")});
    EXPECT_EQ("V1: (0,20) (30,20)\n", placesIn(*clipping));
}

TEST_F(ClippingTest, TheEarliestIsSoughtOnAllTracks)
{
    given("A1: ..dd / V1: ....aabb");
    auto const clipping = selection({media("V1.b"), media("V1.a"), media("A1.d")});
    EXPECT_EQ("V1: (20,20) (40,20)\nA1: (0,20)\n", placesIn(*clipping));
}

TEST_F(ClippingTest, TouchingMediasShiftWithoutACollision)
{
    given("V1: .aabbc");
    auto const clipping = range(0, 60, {track("V1")});
    EXPECT_EQ("V1: (0,20) (20,20) (40,10)\n", placesIn(*clipping));
}

TEST_F(ClippingTest, LinkedMediasAreShiftedOnce)
{
    given("A1: ..aa / V1: ..aa");
    auto const clipping = range(0, 60, {track("V1"), track("A1")});
    EXPECT_EQ("V1: (0,20)\nA1: (0,20)\n", placesIn(*clipping));
}

TEST_F(ClippingTest, ClonesAreLinkedAmongEachOther)
{
    given("A1: aa / V1: aa");
    auto const clipping = selection({media("V1.a"), media("A1.a")});
    boost::shared_ptr<Media> const picture = firstMediaOf(*visualTrackOf(*clipping, 0));
    boost::shared_ptr<Media> const sound = firstMediaOf(*audioTrackOf(*clipping, 0));
    EXPECT_TRUE(picture->isLinkedWith(sound));
    EXPECT_TRUE(sound->isLinkedWith(picture));
    EXPECT_FALSE(picture->isLinkedWith(media("A1.a")));
    EXPECT_EQ(1, std::distance(media("V1.a")->linkBegin(), media("V1.a")->linkEnd()));
}

TEST_F(ClippingTest, ARangeTakesThePieceOfAMediaThatLiesInIt)
{
    given("V1: aaaaaa");
    auto const clipping = range(20, 10, {track("V1")});
    boost::shared_ptr<Media> const piece = firstMediaOf(*visualTrackOf(*clipping, 0));
    EXPECT_EQ(Range<long long>(0, 10), piece->trackRange());
    // 20 units into a media that starts at 500.
    EXPECT_EQ(Range<double>(520, 10), piece->mediaRange());
}

TEST_F(ClippingTest, AMixerOfWhichNothingIsCopiedIsLeftOut)
{
    given("A1: b / V1: a");
    EXPECT_FALSE(selection({media("V1.a")})->timeline()->hasAudioMixer());
    EXPECT_FALSE(selection({media("A1.b")})->timeline()->hasVisualMixer());
}

TEST_F(ClippingTest, LaterEditsOfTheOriginalDoNotReachTheClone)
{
    given("V1: aaa");
    auto const clipping = selection({media("V1.a")});
    auto const original = boost::dynamic_pointer_cast<VisualMedia>(media("V1.a"));
    project->execute(move("V1.a", 4));
    project->execute(trimEnd("V1.a", 1));
    original->opacity()->keyframeAtTime(0)->setValue(0.25);
    auto const clone =
        boost::dynamic_pointer_cast<VisualMedia>(firstMediaOf(*visualTrackOf(*clipping, 0)));
    EXPECT_EQ("V1: (0,30)\n", placesIn(*clipping));
    EXPECT_DOUBLE_EQ(1.0, clone->opacity()->valueAtTime(0));
}

TEST_F(ClippingTest, TheProjectIsNotTouched)
{
    given("A1: ..aa / V1: ..aa");
    range(0, 60, {track("V1"), track("A1")});
    EXPECT_EQ("A1: ..aa / V1: ..aa", strip());
}

TEST_F(ClippingTest, ItHasTheNameOfItsCopy)
{
    given("V1: a");
    EXPECT_EQ("piece", range(0, 10, {track("V1")})->name());
    EXPECT_EQ("choice", selection({media("V1.a")})->name());
    EXPECT_EQ("choice", selection({media("V1.a")})->nameAttribute()->value());
}

TEST_F(ClippingTest, AnEmptyRangeIsRefusedWithTheName)
{
    given("V1: a...b");
    auto const thrown =
        thrownBy<ValueException<std::string>>([this] { range(10, 30, {track("V1")}); });
    EXPECT_STREQ("trying to make a clipping with no medias", thrown.what());
    EXPECT_EQ("piece", thrown.value());
}

TEST_F(ClippingTest, AnEmptySelectionIsRefusedWithTheName)
{
    given("V1: a");
    auto const thrown = thrownBy<ValueException<std::string>>([this] { selection({}); });
    EXPECT_STREQ("trying to make a clipping with no medias", thrown.what());
    EXPECT_EQ("choice", thrown.value());
}

TEST_F(ClippingTest, ATrackThatGaveNoMediaHasNoPosition)
{
    given("V1: a / V2: ...b");
    auto const clipping = range(0, 10, {track("V1"), track("V2")});
    boost::shared_ptr<Track const> const empty = visualTrackOf(*clipping, 1);
    EXPECT_EQ("V1: (0,10)\nV2:\n", placesIn(*clipping));
    auto const thrown = thrownBy<ValueException<boost::shared_ptr<Track const>>>(
        [&] { clipping->trackPosition(empty); });
    EXPECT_STREQ("track not in clipping", thrown.what());
    EXPECT_EQ(empty, thrown.value());
}

TEST_F(ClippingTest, ATrackOfTheProjectHasNoPosition)
{
    given("V1: a");
    EXPECT_THROW(selection({media("V1.a")})->trackPosition(track("V1")),
                 ValueException<boost::shared_ptr<Track const>>);
}

TEST_F(ClippingTest, AMediaThatHasLostItsTrackIsRefused)
{
    given("V1: a");
    media("V1.a")->setParentTrack(boost::weak_ptr<Track>());
    auto const thrown =
        thrownBy<DanglingWeakPtrException<Track const>>([this] { range(0, 10, {track("V1")}); });
    EXPECT_STREQ("", thrown.what());
}

TEST_F(ClippingTest, ItCanBeMadeOfPartsThatExist)
{
    given("V1: a");
    boost::shared_ptr<Timeline> const content(new Timeline(lock()));
    Clipping const clipping("parts", content, {{track("V1"), 7}}, lock());
    EXPECT_EQ("parts", clipping.name());
    EXPECT_EQ(content, clipping.timeline());
    EXPECT_EQ(7, clipping.trackPosition(track("V1")));
}

TEST_F(ClippingTest, ItsDescriptionListsThePositions)
{
    given("V1: a");
    auto const clipping = selection({media("V1.a")});
    boost::shared_ptr<Track const> const only = visualTrackOf(*clipping, 0);
    std::ostringstream expected;
    expected << "Clipping\ntrack positions:\n" << only << " - 0\n";
    EXPECT_EQ(expected.str(), clipping->description());
}

TEST_F(ClippingTest, ItsXmlIsTheNameAlone)
{
    given("V1: a");
    EXPECT_EQ("<Clipping id=\"#\"  >\n</Clipping>\n", xmlOf(*selection({media("V1.a")})));
}

}  // namespace
}  // namespace test
}  // namespace tarn
