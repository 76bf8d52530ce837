#include "datatypes/LinkUtil.h"

#include "exceptions/DanglingWeakPtrException.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/VisualTrack.h"

#include <set>

namespace tarn {
namespace test {
namespace {

using Medias = std::set<boost::shared_ptr<Media const>>;
using Tracks = std::set<boost::shared_ptr<Track const>>;
using DeadMedia = DanglingWeakPtrException<Media const>;
using DeadTrack = DanglingWeakPtrException<Track const>;

class LinkUtilTest : public ModelTest
{
protected:
    static Medias thinned(Medias const& medias)
    {
        Medias result;
        LinkUtil::minimumSetOfLinkedMedia(medias, &result);
        return result;
    }
    static Tracks thinned(long long time, Tracks const& tracks)
    {
        Tracks result;
        LinkUtil::minimumSetOfLinkedTracks(time, tracks, &result);
        return result;
    }
    static Tracks affected(Range<long long> const& range, Tracks const& tracks)
    {
        Tracks result;
        LinkUtil::tracksAffectedByRangeWithLinks(range, tracks, &result);
        return result;
    }
    /// A link to a media that no longer lives.
    void linkWithTheDead(std::string const& name) { media(name)->link(freshVideo('d', 3)); }
};

// ---- Medias ----

TEST_F(LinkUtilTest, OfALinkedPairTheFirstInTheSetsOrderStays)
{
    given("A1: aaa / V1: aaa");
    Medias const both{media("A1.a"), media("V1.a")};
    EXPECT_EQ(Medias{*both.begin()}, thinned(both));
}

TEST_F(LinkUtilTest, OfALargeGroupOneStays)
{
    given("A1: aaa / A2: aaa / V1: aaa / V2: aaa");
    Medias const all{media("A1.a"), media("A2.a"), media("V1.a"), media("V2.a")};
    EXPECT_EQ(Medias{*all.begin()}, thinned(all));
}

TEST_F(LinkUtilTest, MediasWithoutLinksAllStay)
{
    given("A1: aaa / V1: bbbccc");
    Medias const all{media("A1.a"), media("V1.b"), media("V1.c")};
    EXPECT_EQ(all, thinned(all));
}

TEST_F(LinkUtilTest, EachGroupIsRepresentedOnce)
{
    given("A1: aaabbb / V1: aaabbb / V2: ccc");
    Medias const result =
        thinned({media("A1.a"), media("V1.a"), media("A1.b"), media("V1.b"), media("V2.c")});
    EXPECT_EQ(3u, result.size());
    EXPECT_EQ(1u, result.count(media("A1.a")) + result.count(media("V1.a")));
    EXPECT_EQ(1u, result.count(media("A1.b")) + result.count(media("V1.b")));
    EXPECT_EQ(1u, result.count(media("V2.c")));
}

TEST_F(LinkUtilTest, AMediaLinkedOutsideTheSelectionStays)
{
    given("A1: aaa / V1: aaa");
    EXPECT_EQ(Medias{media("V1.a")}, thinned(Medias{media("V1.a")}));
}

TEST_F(LinkUtilTest, NothingThinsToNothing)
{
    EXPECT_TRUE(thinned(Medias()).empty());
}

TEST_F(LinkUtilTest, WhatTheResultHeldStays)
{
    given("A1: aaa / V1: aaabbb");
    Medias result{media("V1.b")};
    LinkUtil::minimumSetOfLinkedMedia(Medias{media("V1.a")}, &result);
    EXPECT_EQ((Medias{media("V1.a"), media("V1.b")}), result);
}

TEST_F(LinkUtilTest, ADeadLinkStopsTheThinningOfMedias)
{
    given("V1: aaa");
    linkWithTheDead("V1.a");
    EXPECT_STREQ("", thrownBy<DeadMedia>([&] { thinned(Medias{media("V1.a")}); }).what());
}

// ---- Tracks at a time ----

TEST_F(LinkUtilTest, OfTwoTracksWithALinkedPairAtTheTimeOneStays)
{
    given("A1: aaa / V1: aaa");
    Tracks const both{track("A1"), track("V1")};
    EXPECT_EQ(Tracks{*both.begin()}, thinned(15, both));
}

TEST_F(LinkUtilTest, BeyondThePairBothTracksStay)
{
    given("A1: aaa / V1: aaa");
    Tracks const both{track("A1"), track("V1")};
    EXPECT_EQ(both, thinned(31, both));
}

TEST_F(LinkUtilTest, TracksAreTiedByWhatEndsAtTheTime)
{
    given("A1: aaa / V1: aaa");
    EXPECT_EQ(1u, thinned(30, {track("A1"), track("V1")}).size());
}

TEST_F(LinkUtilTest, TracksAreTiedByWhatStartsAtTheTime)
{
    given("A1: .aaa / V1: .aaa");
    EXPECT_EQ(1u, thinned(10, {track("A1"), track("V1")}).size());
}

TEST_F(LinkUtilTest, TracksAreTiedByOneSideOfACut)
{
    given("A1: aaabbb / V1: cccbbb");
    EXPECT_EQ(2u, thinned(29, {track("A1"), track("V1")}).size());
    EXPECT_EQ(1u, thinned(30, {track("A1"), track("V1")}).size());
}

TEST_F(LinkUtilTest, UnlinkedTracksBothStay)
{
    given("A1: aaa / V1: bbb");
    Tracks const both{track("A1"), track("V1")};
    EXPECT_EQ(both, thinned(15, both));
}

TEST_F(LinkUtilTest, OfThreeTracksAThirdWithoutLinksStays)
{
    given("A1: aaa / V1: aaa / V2: bbb");
    Tracks const result = thinned(15, {track("A1"), track("V1"), track("V2")});
    EXPECT_EQ(2u, result.size());
    EXPECT_EQ(1u, result.count(track("V2")));
}

TEST_F(LinkUtilTest, EmptyTracksAreTiedToNone)
{
    given("A1: aaa / V1: aaa / V2: bbb / V3: ...ccc");
    Tracks const both{track("V1"), track("V3")};
    EXPECT_EQ(both, thinned(15, both));
    EXPECT_EQ(both, thinned(45, both));
}

TEST_F(LinkUtilTest, ATrackTiedToOneTakenBeforeIsLeftOut)
{
    given("A1: aaa / V1: aaa / V2: aaa");
    Tracks result{track("A1")};
    LinkUtil::minimumSetOfLinkedTracks(15, {track("V1"), track("V2")}, &result);
    EXPECT_EQ(Tracks{track("A1")}, result);
}

// ---- Tracks reached by a range ----

TEST_F(LinkUtilTest, AChangeReachesTheTracksOfLinks)
{
    given("A1: aaa / A2: bbb / V1: aaa");
    EXPECT_EQ((Tracks{track("V1"), track("A1")}), affected(Range<long long>(0, 10), {track("V1")}));
}

TEST_F(LinkUtilTest, AChangeReachesTheWholeGroup)
{
    given("A1: aaa / A2: aaa / V1: aaa / V2: aaa");
    EXPECT_EQ((Tracks{track("A1"), track("A2"), track("V1"), track("V2")}),
              affected(Range<long long>(29, 1), {track("A2")}));
}

TEST_F(LinkUtilTest, AChangeBesideALinkedMediaReachesItsTrackOnly)
{
    given("A1: .aaa / V1: .aaa");
    EXPECT_EQ(Tracks{track("V1")}, affected(Range<long long>(0, 10), {track("V1")}));
    EXPECT_EQ(Tracks{track("V1")}, affected(Range<long long>(40, 10), {track("V1")}));
    EXPECT_EQ(2u, affected(Range<long long>(39, 1), {track("V1")}).size());
}

TEST_F(LinkUtilTest, AChangeOfNoLengthReachesTheGivenTracksOnly)
{
    given("A1: aaa / V1: aaa");
    EXPECT_EQ(Tracks{track("V1")}, affected(Range<long long>(10, 0), {track("V1")}));
}

TEST_F(LinkUtilTest, AChangeAcrossSeveralMediasReachesTheLinksOfAll)
{
    given("A1: aaa / A2: ...bbb / V1: aaabbb");
    EXPECT_EQ((Tracks{track("V1"), track("A1"), track("A2")}),
              affected(Range<long long>(29, 2), {track("V1")}));
}

TEST_F(LinkUtilTest, ADeadLinkStopsTheWidening)
{
    given("V1: aaa");
    linkWithTheDead("V1.a");
    EXPECT_STREQ(
        "", thrownBy<DeadMedia>([&] { affected(Range<long long>(0, 10), {track("V1")}); }).what());
}

TEST_F(LinkUtilTest, ALinkedMediaOffAllTracksStopsTheWidening)
{
    given("V1: aaa");
    boost::shared_ptr<Media> const away = freshVideo('b', 3);
    media("V1.a")->link(away);
    EXPECT_STREQ(
        "", thrownBy<DeadTrack>([&] { affected(Range<long long>(0, 10), {track("V1")}); }).what());
}

}  // namespace
}  // namespace test
}  // namespace tarn
