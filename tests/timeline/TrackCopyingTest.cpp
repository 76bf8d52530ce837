#include "timeline/Track.h"

#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "edgemods/FadeOutFunc.h"
#include "effects/Blur.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/VisualMedia.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

namespace tarn {
namespace test {
namespace {

class TrackCopyingTest : public ModelTest
{
protected:
    boost::shared_ptr<Track> copyOf(long long start, long long duration,
                                    MediaCloneMap* clones = nullptr) const
    {
        return track("V1")->copyPortion(Range<long long>(start, duration), clones);
    }
    static boost::shared_ptr<Media> first(boost::shared_ptr<Track> const& track)
    {
        return track->mediaBegin()->second;
    }
    /// Gives V1.a a fade over its first and one over its last edit units.
    void fade(long long left, long long right) const
    {
        auto const picture = boost::dynamic_pointer_cast<VisualMedia>(media("V1.a"));
        picture->addLeftEdgeModification(EdgeModification(picture->opacity(), FadeInFunc()));
        picture->addRightEdgeModification(EdgeModification(picture->opacity(), FadeOutFunc()));
        picture->setLeftEdgeModificationLength(left);
        picture->setRightEdgeModificationLength(right);
    }
};

TEST_F(TrackCopyingTest, ACloneHasNoMediasUntilItIsSetUp)
{
    given("V1: a.bb");
    boost::shared_ptr<Track> const clone(track("V1")->clone());
    EXPECT_EQ(0u, clone->numMedias());
    track("V1")->setupSharedClone(clone);
    EXPECT_EQ(2u, clone->numMedias());
}

TEST_F(TrackCopyingTest, ASharedCloneHasClonesOfTheMediasAtTheirTimes)
{
    given("V1: .a.bb");
    boost::shared_ptr<Track> const clone = sharedClone(track("V1"));
    EXPECT_EQ(Range<long long>(10, 40), clone->timeRange());
    EXPECT_NE(media("V1.a"), first(clone));
    EXPECT_EQ(Range<long long>(10, 10), first(clone)->trackRange());
    EXPECT_EQ(media("V1.a")->mediaRange(), first(clone)->mediaRange());
    EXPECT_EQ(clone, first(clone)->parentTrack().lock());
    EXPECT_EQ("V1: .a.bb", strip());
}

TEST_F(TrackCopyingTest, ASharedCloneIsNotLinked)
{
    given("A1: aa / V1: aa");
    boost::shared_ptr<Media const> const copied = first(sharedClone(track("V1")));
    EXPECT_EQ(copied->linkEnd(), copied->linkBegin());
    EXPECT_FALSE(media("A1.a")->isLinkedWith(copied));
}

TEST_F(TrackCopyingTest, ACloneHasParametersAndEffectsOfItsOwn)
{
    given("V1: a");
    auto const picture = boost::dynamic_pointer_cast<VisualTrack>(track("V1"));
    picture->translation()->at(0)->changeKeyFrame(0, 7);
    boost::shared_ptr<Effect> const effect(new Blur(lock()));
    picture->addEffect(effect);
    boost::shared_ptr<VisualTrack> const clone(picture->clone());
    picture->translation()->at(0)->changeKeyFrame(0, 9);
    EXPECT_EQ(7, clone->translation()->at(0)->valueAtTime(0));
    ASSERT_EQ(1, clone->numEffects());
    EXPECT_NE(effect, clone->effectAtIndex(0));
}

TEST_F(TrackCopyingTest, APortionOfARangeIsTrimmedAtBothEndsInPlace)
{
    given("V1: aaaaaa");
    boost::shared_ptr<Track> const copy = copyOf(15, 20);
    ASSERT_EQ(1u, copy->numMedias());
    EXPECT_EQ(Range<long long>(15, 20), first(copy)->trackRange());
    EXPECT_EQ(Range<double>(515, 20), first(copy)->mediaRange());
    EXPECT_EQ(first(copy), copy->medias().at(15));
    EXPECT_EQ(copy, first(copy)->parentTrack().lock());
    EXPECT_EQ("V1: aaaaaa", strip());
}

TEST_F(TrackCopyingTest, APortionBeginsWithWhatReachesIntoItsStart)
{
    given("V1: .aaa..bb.c");
    boost::shared_ptr<Track> const copy = copyOf(30, 40);
    // a from 30 to 40, b from 60 to 70; the copy keeps those times.
    ASSERT_EQ(2u, copy->numMedias());
    EXPECT_EQ(Range<long long>(30, 10), first(copy)->trackRange());
    EXPECT_EQ(Range<double>(520, 10), first(copy)->mediaRange());
    EXPECT_EQ(Range<long long>(60, 10), copy->mediaRBegin()->second->trackRange());
    EXPECT_EQ(Range<double>(500, 10), copy->mediaRBegin()->second->mediaRange());
}

TEST_F(TrackCopyingTest, AMediaWhollyInRangeIsCopiedAsItIs)
{
    given("V1: .aa.");
    boost::shared_ptr<Track> const copy = copyOf(0, 100);
    EXPECT_EQ(Range<long long>(10, 20), first(copy)->trackRange());
    EXPECT_EQ(Range<double>(500, 20), first(copy)->mediaRange());
}

TEST_F(TrackCopyingTest, AStretchedMediaIsTrimmedOnItsOwnClock)
{
    given("V1: aaaa");
    track("V1")->stretch(media("V1.a"), 2, false);
    boost::shared_ptr<Track> const copy = copyOf(20, 40);
    // Twice as slow: 40 units of the track are 20 of the source, the first 20 of the track 10.
    EXPECT_EQ(Range<long long>(20, 40), first(copy)->trackRange());
    EXPECT_EQ(Range<double>(510, 20), first(copy)->mediaRange());
    EXPECT_EQ(2.0, first(copy)->scalar());
}

TEST_F(TrackCopyingTest, APortionOfNothingIsAnEmptyTrack)
{
    given("V1: aa.b");
    EXPECT_EQ(0u, copyOf(20, 10)->numMedias());
    EXPECT_EQ(0u, copyOf(5, 0)->numMedias());
    EXPECT_EQ(0u, copyOf(15, -10)->numMedias());
}

TEST_F(TrackCopyingTest, APortionTellsWhichCloneIsWhose)
{
    given("V1: aabb.c");
    MediaCloneMap clones;
    boost::shared_ptr<Track> const copy = copyOf(10, 20, &clones);
    ASSERT_EQ(2u, clones.size());
    EXPECT_EQ(copy->medias().at(10), clones.at(media("V1.a")));
    EXPECT_EQ(copy->medias().at(20), clones.at(media("V1.b")));
}

TEST_F(TrackCopyingTest, AnEntryThatTheMapHasAlreadyStays)
{
    given("V1: aa");
    boost::shared_ptr<Media> const earlier = freshVideo('a', 2);
    MediaCloneMap clones{{media("V1.a"), earlier}};
    copyOf(0, 20, &clones);
    track("V1")->copyPortion(ConstMediaVector{media("V1.a")}, &clones);
    EXPECT_EQ(earlier, clones.at(media("V1.a")));
}

TEST_F(TrackCopyingTest, ChosenMediasAreCopiedWholeAtTheirTimes)
{
    given("V1: aa.bb.cc");
    MediaCloneMap clones;
    boost::shared_ptr<Track> const copy =
        track("V1")->copyPortion(ConstMediaVector{media("V1.c"), media("V1.a")}, &clones);
    ASSERT_EQ(2u, copy->numMedias());
    EXPECT_EQ(clones.at(media("V1.a")), copy->medias().at(0));
    EXPECT_EQ(clones.at(media("V1.c")), copy->medias().at(60));
    EXPECT_EQ(copy, clones.at(media("V1.c"))->parentTrack().lock());
}

TEST_F(TrackCopyingTest, ChosenMediasNeedNoMap)
{
    given("V1: aa");
    EXPECT_EQ(1u, track("V1")->copyPortion(ConstMediaVector{media("V1.a")}, nullptr)->numMedias());
    EXPECT_EQ(0u, track("V1")->copyPortion(ConstMediaVector(), nullptr)->numMedias());
}

TEST_F(TrackCopyingTest, EdgesThatTheRangeLeavesWholeStay)
{
    given("V1: aaaaaaaaaa");
    fade(20, 30);
    boost::shared_ptr<Media> const copied = first(copyOf(0, 100));
    EXPECT_EQ(1u, copied->leftEdgeModifications().size());
    EXPECT_EQ(1u, copied->rightEdgeModifications().size());
    EXPECT_EQ(20, copied->leftEdgeModificationLength());
    EXPECT_EQ(30, copied->rightEdgeModificationLength());
}

TEST_F(TrackCopyingTest, ACopyKeepsOfAnEdgeWhatCouldBeSeenOfIt)
{
    given("V1: aaaaaaaaaa");
    fade(150, 0);
    EXPECT_EQ(100, media("V1.a")->leftEdgeModificationLength());
    boost::shared_ptr<Media> const copied = first(copyOf(0, 100));
    copied->trimEnd(-60);
    EXPECT_EQ(Range<long long>(0, 160), copied->trackRange());
    EXPECT_EQ(100, copied->leftEdgeModificationLength());
}

TEST_F(TrackCopyingTest, ALeftEdgeThatTheRangeCutsThroughIsLeftOut)
{
    given("V1: aaaaaaaaaa");
    fade(20, 30);
    boost::shared_ptr<Media> const copied = first(copyOf(1, 99));
    EXPECT_TRUE(copied->leftEdgeModifications().empty());
    EXPECT_EQ(1u, copied->rightEdgeModifications().size());
    EXPECT_EQ(30, copied->rightEdgeModificationLength());
    EXPECT_EQ(1u, media("V1.a")->leftEdgeModifications().size());
}

TEST_F(TrackCopyingTest, ARightEdgeThatTheRangeCutsThroughIsLeftOut)
{
    given("V1: aaaaaaaaaa");
    fade(20, 30);
    boost::shared_ptr<Media> const copied = first(copyOf(0, 99));
    EXPECT_TRUE(copied->rightEdgeModifications().empty());
    EXPECT_EQ(1u, copied->leftEdgeModifications().size());
    EXPECT_EQ(20, copied->leftEdgeModificationLength());
}

TEST_F(TrackCopyingTest, EdgesThatTheRangeDoesNotReachAreLeftOut)
{
    given("V1: aaaaaaaaaa");
    fade(20, 30);
    boost::shared_ptr<Media> const copied = first(copyOf(30, 20));
    EXPECT_TRUE(copied->leftEdgeModifications().empty());
    EXPECT_TRUE(copied->rightEdgeModifications().empty());
}

TEST_F(TrackCopyingTest, AnEdgeWithoutLengthStaysWithoutLength)
{
    given("V1: aaaaaaaaaa");
    fade(0, 0);
    boost::shared_ptr<Media> const copied = first(copyOf(30, 20));
    EXPECT_EQ(1u, copied->leftEdgeModifications().size());
    EXPECT_EQ(1u, copied->rightEdgeModifications().size());
    EXPECT_EQ(0, copied->leftEdgeModificationLength());
    EXPECT_EQ(0, copied->rightEdgeModificationLength());
}

TEST_F(TrackCopyingTest, CopiedEdgesBendTheCopysOwnParameter)
{
    given("V1: aaaaaaaaaa");
    fade(20, 30);
    auto const copied = boost::dynamic_pointer_cast<VisualMedia>(first(copyOf(0, 100)));
    EXPECT_EQ(copied->opacity(), copied->leftEdgeModifications().front().parameter());
}

TEST_F(TrackCopyingTest, ChosenMediasKeepTheirEdges)
{
    given("V1: aaaaaaaaaa");
    fade(20, 30);
    boost::shared_ptr<Media> const copied =
        first(track("V1")->copyPortion(ConstMediaVector{media("V1.a")}, nullptr));
    EXPECT_EQ(1u, copied->leftEdgeModifications().size());
    EXPECT_EQ(30, copied->rightEdgeModificationLength());
}

}  // namespace
}  // namespace test
}  // namespace tarn
