#include "timeline/Track.h"

#include "exceptions/CollisionException.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/LinkException.h"
#include "exceptions/ValueException.h"
#include "support/CountingObserver.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Media.h"
#include "timeline/ParentedMedia.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <stdexcept>

namespace tarn {
namespace test {
namespace {

using UnknownMedia = ValueException<boost::shared_ptr<Media const>>;
using WrongMedia = ValueException<boost::shared_ptr<Media>>;

/// Edits of a track itself, without commands. Offsets here are edit units, of which a cell has ten.
class TrackEditingTest : public ModelTest
{
protected:
    ~TrackEditingTest() override
    {
        if (m_observed)
            m_observed->detach(&m_observer);
    }

    void watch(boost::shared_ptr<Track const> const& observed)
    {
        observed->attach(&m_observer);
        m_observed = observed;
    }
    Range<long long> range(std::string const& name) const { return media(name)->trackRange(); }

    boost::shared_ptr<Track const> m_observed;
    CountingObserver m_observer;
};

/// The medias that a refused edit would have hit.
template <class Action>
ConstMediaList hitBy(Action const& action)
{
    return *thrownBy<CollisionException>(action).medias();
}

// ---- Adding ----

TEST_F(TrackEditingTest, AnAddedMediaStartsThereAndKnowsItsTrack)
{
    given("V1: a");
    boost::shared_ptr<Media> const added = freshVideo('b', 2);
    watch(track("V1"));
    track("V1")->addMedia(added, 30);
    EXPECT_EQ(Range<long long>(30, 20), added->trackRange());
    EXPECT_EQ(track("V1"), added->parentTrack().lock());
    EXPECT_EQ(added, track("V1")->medias().at(30));
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(TrackEditingTest, MediasMayTouch)
{
    given("V1: ..bb");
    track("V1")->addMedia(freshVideo('a', 2), 0);
    track("V1")->addMedia(freshVideo('c', 2), 40);
    EXPECT_EQ("V1: aabbcc", strip());
}

TEST_F(TrackEditingTest, AnAddedMediaMayNotOverlapByOneUnit)
{
    given("V1: ..bb");
    boost::shared_ptr<Media> const added = freshVideo('a', 2);
    watch(track("V1"));
    EXPECT_EQ(ConstMediaList{media("V1.b")}, hitBy([&] { track("V1")->addMedia(added, 1); }));
    EXPECT_EQ(ConstMediaList{media("V1.b")}, hitBy([&] { track("V1")->addMedia(added, 39); }));
    EXPECT_EQ("V1: ..bb", strip());
    EXPECT_EQ(0, added->trackRange().start);
    EXPECT_FALSE(added->parentTrack().lock());
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(TrackEditingTest, ARefusalNamesAllThatIsInTheWay)
{
    given("V1: a.b.c.d");
    auto const thrown =
        thrownBy<CollisionException>([&] { track("V1")->addMedia(freshVideo('e', 3), 15); });
    // From 15 to 45: b at 20 and c at 40.
    EXPECT_EQ((ConstMediaList{media("V1.b"), media("V1.c")}), *thrown.medias());
    EXPECT_EQ(0u, std::string(thrown.what()).find("Collision exception."));
}

TEST_F(TrackEditingTest, AMediaMayBeAddedBelowZero)
{
    given("V1: a");
    boost::shared_ptr<Media> const added = freshVideo('b', 2);
    track("V1")->addMedia(added, -20);
    EXPECT_EQ(-20, track("V1")->startTime());
    EXPECT_EQ(added, track("V1")->medias().at(-20));
}

TEST_F(TrackEditingTest, AMediaWithAParentIsRefusedButItsEntryStays)
{
    given("V1: a / V2: bb");
    auto const thrown = thrownBy<WrongMedia>([&] { track("V1")->addMedia(media("V2.b"), 30); });
    EXPECT_STREQ("trying to edit parented media like a parentless media", thrown.what());
    EXPECT_EQ(media("V2.b"), thrown.value());
    EXPECT_EQ(media("V2.b"), track("V1")->medias().at(30));
    EXPECT_EQ(track("V2"), media("V2.b")->parentTrack().lock());
    EXPECT_EQ(0, range("V2.b").start);
}

TEST_F(TrackEditingTest, ATrackThatNothingOwnsCannotTakeAMedia)
{
    given("V1: a");
    VisualTrack unowned(lock());
    EXPECT_THROW(unowned.addMedia(freshVideo('b', 1), 0), boost::bad_weak_ptr);
}

TEST_F(TrackEditingTest, AMediaWithoutLengthTakesThePlaceOfOneThatStartsThere)
{
    given("V1: a");
    boost::shared_ptr<Media> const added = freshStill('s', 2);
    added->trimEnd(20);
    track("V1")->addMedia(added, 0);
    EXPECT_EQ(1u, track("V1")->numMedias());
    EXPECT_EQ(added, track("V1")->medias().at(0));
}

// ---- Removing ----

TEST_F(TrackEditingTest, ARemovedMediaHasNoParentButItsStart)
{
    given("V1: .aab");
    watch(track("V1"));
    track("V1")->removeMedia(media("V1.a"), false);
    EXPECT_EQ("V1: ...b", strip());
    EXPECT_FALSE(media("V1.a")->parentTrack().lock());
    EXPECT_EQ(10, range("V1.a").start);
    EXPECT_EQ(1, m_observer.calls());
}

TEST_F(TrackEditingTest, RemovalGoesByTheStartAlone)
{
    given("V1: .aa / V2: .bb");
    track("V1")->removeMedia(media("V2.b"), false);
    EXPECT_EQ("V2: .bb", strip());
    EXPECT_FALSE(media("V1.a")->parentTrack().lock());
    EXPECT_EQ(track("V2"), media("V2.b")->parentTrack().lock());
}

TEST_F(TrackEditingTest, NothingCanBeRemovedWhereNothingStarts)
{
    given("V1: .aa / V2: ..bb");
    watch(track("V1"));
    auto const thrown =
        thrownBy<WrongMedia>([&] { track("V1")->removeMedia(media("V2.b"), false); });
    EXPECT_STREQ("can't find media to remove", thrown.what());
    EXPECT_EQ(media("V2.b"), thrown.value());
    EXPECT_EQ("V1: .aa / V2: ..bb", strip());
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(TrackEditingTest, RemovalWithoutLinksLeavesThePartner)
{
    given("A1: aa / V1: aa");
    track("V1")->removeMedia(media("V1.a"), false);
    EXPECT_EQ("A1: aa", strip());
    EXPECT_TRUE(media("V1.a")->isLinkedWith(media("A1.a")));
}

TEST_F(TrackEditingTest, RemovalWithLinksOfAMediaWithoutAnyIsPlain)
{
    given("V1: aab");
    track("V1")->removeMedia(media("V1.a"), true);
    EXPECT_EQ("V1: ..b", strip());
}

TEST_F(TrackEditingTest, RemovalWithLinksLooksForThePartnerOnTheSameTrack)
{
    given("A1: .aa / V1: .aa");
    auto const thrown =
        thrownBy<WrongMedia>([&] { track("V1")->removeMedia(media("V1.a"), true); });
    EXPECT_STREQ("can't find media to remove", thrown.what());
    EXPECT_EQ(media("A1.a"), thrown.value());
    // The entry was gone by then, the parent not yet.
    EXPECT_EQ("A1: .aa", strip());
    EXPECT_EQ(track("V1"), media("V1.a")->parentTrack().lock());
}

TEST_F(TrackEditingTest, RemovalWithLinksTakesPartnersOnTheSameTrackAlong)
{
    given("V1: a.b");
    media("V1.a")->link(media("V1.b"));
    track("V1")->removeMedia(media("V1.a"), true);
    EXPECT_EQ("", strip());
    EXPECT_FALSE(media("V1.b")->parentTrack().lock());
}

TEST_F(TrackEditingTest, ADeadLinkBehindLivingOnesIsFoundToo)
{
    given("A1: aa / V1: aa / V2: aa");
    media("V1.a")->link(freshVideo('b', 2));
    EXPECT_THROW(track("V1")->removeMedia(media("V1.a"), true), TarnMediaLibException);
    EXPECT_EQ("A1: aa / V1: aa / V2: aa", strip());
}

TEST_F(TrackEditingTest, ADeadLinkIsFoundBeforeAnythingIsRemoved)
{
    given("V1: aa");
    media("V1.a")->link(freshVideo('b', 2));
    watch(track("V1"));
    EXPECT_STREQ("dead link when removing a media from a track",
                 thrownBy<TarnMediaLibException>([&] {
                     track("V1")->removeMedia(media("V1.a"), true);
                 }).what());
    EXPECT_EQ("V1: aa", strip());
    EXPECT_EQ(track("V1"), media("V1.a")->parentTrack().lock());
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(TrackEditingTest, ADeadLinkDoesNotMatterWithoutLinks)
{
    given("V1: aa");
    media("V1.a")->link(freshVideo('b', 2));
    track("V1")->removeMedia(media("V1.a"), false);
    EXPECT_EQ("", strip());
}

// ---- Moving ----

TEST_F(TrackEditingTest, AMoveIsRelative)
{
    given("V1: .aa");
    track("V1")->move(media("V1.a"), 20, false);
    EXPECT_EQ("V1: ...aa", strip());
    EXPECT_EQ(Range<double>(500, 20), media("V1.a")->mediaRange());
}

TEST_F(TrackEditingTest, AMoveMayLandOnTheMediasOwnOldPlace)
{
    given("V1: .aaa..b");
    track("V1")->move(media("V1.a"), 10, false);
    EXPECT_EQ("V1: ..aaa.b", strip());
    EXPECT_EQ(1u, track("V1")->medias().count(20));
    EXPECT_EQ(0u, track("V1")->medias().count(10));
}

TEST_F(TrackEditingTest, AMoveMayEndWhereTheNextMediaStarts)
{
    given("V1: aaa...bb");
    track("V1")->move(media("V1.a"), 30, false);
    EXPECT_EQ("V1: ...aaabb", strip());
}

TEST_F(TrackEditingTest, AMoveOntoAnotherMediaIsRefusedAndMovesNothing)
{
    given("V1: aaa...bb");
    EXPECT_EQ(ConstMediaList{media("V1.b")},
              hitBy([&] { track("V1")->move(media("V1.a"), 31, false); }));
    EXPECT_EQ("V1: aaa...bb", strip());
}

TEST_F(TrackEditingTest, AMoveOfNothingIsFine)
{
    given("V1: aab");
    track("V1")->move(media("V1.a"), 0, true);
    EXPECT_EQ("V1: aab", strip());
}

TEST_F(TrackEditingTest, AMoveMayGoBelowZero)
{
    given("V1: aab");
    track("V1")->move(media("V1.a"), -30, false);
    EXPECT_EQ(Range<long long>(-30, 20), range("V1.a"));
    EXPECT_EQ(media("V1.a"), track("V1")->medias().at(-30));
}

TEST_F(TrackEditingTest, LinkedMediasMoveTogether)
{
    given("A1: aa / V1: aa / V2: aa");
    track("V1")->move(media("V1.a"), 30, true);
    EXPECT_EQ("A1: ...aa / V1: ...aa / V2: ...aa", strip());
    EXPECT_EQ(media("A1.a"), track("A1")->medias().at(30));
}

TEST_F(TrackEditingTest, WithoutLinksTheMediaMovesAlone)
{
    given("A1: aa / V1: aa");
    track("V1")->move(media("V1.a"), 30, false);
    EXPECT_EQ("A1: aa / V1: ...aa", strip());
}

TEST_F(TrackEditingTest, WhenOnlyThePartnerWouldCollideNeitherMoves)
{
    given("A1: aa..b / V1: aa");
    EXPECT_EQ(ConstMediaList{media("A1.b")},
              hitBy([&] { track("V1")->move(media("V1.a"), 30, true); }));
    EXPECT_EQ("A1: aa..b / V1: aa", strip());
}

class TrackEditingGroupTest : public TrackEditingTest
{
protected:
    /// With one media in the way of a group of three, no member may move or grow by two cells.
    void expectACollisionFromEveryMember(std::string const& strip)
    {
        given(strip);
        for (char const* const name : {"A1", "A2", "V1"}) {
            boost::shared_ptr<Media> const member = media(std::string(name) + ".a");
            EXPECT_THROW(track(name)->move(member, 20, true), CollisionException) << name;
            EXPECT_THROW(track(name)->trimEnd(member, -20, true), CollisionException) << name;
            EXPECT_THROW(track(name)->stretch(member, 2.0, true), CollisionException) << name;
        }
        EXPECT_EQ(strip, this->strip());
    }

    /// With a media without length at 30 on one of its tracks, no member may start there.
    void expectTheStartTaken(std::string const& name)
    {
        given("A1: ..aa / A2: ..aa / V1: ..aa");
        boost::shared_ptr<Media> const dot = freshSound('b', 0);
        track(name)->addMedia(dot, 30);
        EXPECT_EQ(ConstMediaList{dot}, hitBy([&] { track("V1")->move(media("V1.a"), 10, true); }));
        EXPECT_EQ(ConstMediaList{dot},
                  hitBy([&] { track("V1")->trimStart(media("V1.a"), 10, true); }));
        EXPECT_EQ(dot, track(name)->medias().at(30));
        EXPECT_EQ(Range<long long>(20, 20), range("V1.a"));
    }
};

TEST_F(TrackEditingGroupTest, CollidesOnItsFirstTrack)
{
    expectACollisionFromEveryMember("A1: aa.b / A2: aa / V1: aa");
}

TEST_F(TrackEditingGroupTest, CollidesOnItsSecondTrack)
{
    expectACollisionFromEveryMember("A1: aa / A2: aa.b / V1: aa");
}

TEST_F(TrackEditingGroupTest, CollidesOnItsThirdTrack)
{
    expectACollisionFromEveryMember("A1: aa / A2: aa / V1: aa.b");
}

TEST_F(TrackEditingGroupTest, FindsAStartTakenOnItsFirstTrack)
{
    expectTheStartTaken("A1");
}

TEST_F(TrackEditingGroupTest, FindsAStartTakenOnItsSecondTrack)
{
    expectTheStartTaken("A2");
}

// A media without length lies in nobody's way, but its entry would be lost.
TEST_F(TrackEditingTest, TheStartOfAMediaWithoutLengthIsTaken)
{
    given("V1: ..aa");
    boost::shared_ptr<Media> const dot = freshVideo('b', 0);
    track("V1")->addMedia(dot, 30);
    EXPECT_EQ(ConstMediaList{dot}, hitBy([&] { track("V1")->move(media("V1.a"), 10, false); }));
    EXPECT_EQ(ConstMediaList{dot},
              hitBy([&] { track("V1")->trimStart(media("V1.a"), 10, false); }));
    EXPECT_EQ(dot, track("V1")->medias().at(30));
    EXPECT_EQ(Range<long long>(20, 20), range("V1.a"));
}

TEST_F(TrackEditingTest, ACollisionNamesTheMediasOfBothTracks)
{
    given("A1: aa..b / V1: aa.cc");
    EXPECT_EQ((ConstMediaList{media("V1.c"), media("A1.b")}),
              hitBy([&] { track("V1")->move(media("V1.a"), 30, true); }));
}

TEST_F(TrackEditingTest, APartnerOfAnotherTrackRangeStopsAMoveWithLinks)
{
    given("A1: aa / V1: aa");
    track("A1")->trimEnd(media("A1.a"), 5, false);
    auto const thrown =
        thrownBy<LinkException>([&] { track("V1")->move(media("V1.a"), 30, true); });
    EXPECT_STREQ("Linked medias have different track ranges", thrown.what());
    EXPECT_EQ(Range<long long>(0, 20), thrown.first());
    EXPECT_EQ(Range<long long>(0, 15), thrown.second());
    EXPECT_EQ(Range<long long>(0, 20), range("V1.a"));
}

TEST_F(TrackEditingTest, APartnerOfAnotherStartStopsAMoveWithLinksToo)
{
    given("A1: aa / V1: aa");
    track("A1")->move(media("A1.a"), 50, false);
    EXPECT_THROW(track("V1")->move(media("V1.a"), 30, true), LinkException);
    EXPECT_EQ("A1: .....aa / V1: aa", strip());
}

TEST_F(TrackEditingTest, ADeadLinkStopsAMoveWithLinks)
{
    given("V1: aa");
    media("V1.a")->link(freshVideo('b', 2));
    auto const thrown = thrownBy<DanglingWeakPtrException<Media const>>(
        [&] { track("V1")->move(media("V1.a"), 30, true); });
    EXPECT_STREQ("", thrown.what());
    EXPECT_EQ("V1: aa", strip());
    track("V1")->move(media("V1.a"), 30, false);
    EXPECT_EQ("V1: ...aa", strip());
}

TEST_F(TrackEditingTest, APartnerOnNoTrackStopsAMoveWithLinks)
{
    given("A1: aa / V1: aa");
    track("A1")->removeMedia(media("A1.a"), false);
    auto const thrown = thrownBy<DanglingWeakPtrException<Track const>>(
        [&] { track("V1")->move(media("V1.a"), 30, true); });
    EXPECT_STREQ("", thrown.what());
    EXPECT_EQ("V1: aa", strip());
}

TEST_F(TrackEditingTest, AStrangerCannotBeEdited)
{
    given("V1: .aa / V2: .bb");
    auto const thrown =
        thrownBy<UnknownMedia>([&] { track("V1")->move(media("V2.b"), 30, false); });
    EXPECT_STREQ("media not found in track", thrown.what());
    EXPECT_EQ(media("V2.b"), thrown.value());
    EXPECT_THROW(track("V1")->trimStart(media("V2.b"), 1, false), UnknownMedia);
    EXPECT_THROW(track("V1")->trimEnd(media("V2.b"), 1, false), UnknownMedia);
    EXPECT_THROW(track("V1")->stretch(media("V2.b"), 2, false), UnknownMedia);
    EXPECT_EQ("V1: .aa / V2: .bb", strip());
}

TEST_F(TrackEditingTest, OwnershipIsCheckedBeforeCollisions)
{
    given("V1: aab / V2: cc");
    EXPECT_THROW(track("V1")->move(media("V2.c"), 10, false), UnknownMedia);
}

TEST_F(TrackEditingTest, AMediaWithoutLengthMayNotMoveOntoAnothersStart)
{
    given("V1: ssuu");
    track("V1")->trimEnd(media("V1.s"), 20, false);
    EXPECT_EQ(ConstMediaList{media("V1.u")},
              hitBy([&] { track("V1")->move(media("V1.s"), 20, false); }));
    EXPECT_EQ(media("V1.s"), track("V1")->medias().at(0));
    EXPECT_EQ(media("V1.u"), track("V1")->medias().at(20));
}

TEST_F(TrackEditingTest, NoMediaMayMoveOntoTheStartOfOneWithoutLength)
{
    given("V1: ss.aa");
    track("V1")->trimEnd(media("V1.s"), 20, false);
    EXPECT_EQ(ConstMediaList{media("V1.s")},
              hitBy([&] { track("V1")->move(media("V1.a"), -30, false); }));
    EXPECT_EQ(media("V1.s"), track("V1")->medias().at(0));
    EXPECT_EQ(media("V1.a"), track("V1")->medias().at(30));
}

// ---- Trimming ----

TEST_F(TrackEditingTest, AStartTrimShortensFromTheLeft)
{
    given("V1: .aaa");
    track("V1")->trimStart(media("V1.a"), 10, false);
    EXPECT_EQ("V1: ..aa", strip());
    EXPECT_EQ(media("V1.a"), track("V1")->medias().at(20));
    EXPECT_EQ(Range<double>(510, 20), media("V1.a")->mediaRange());
}

TEST_F(TrackEditingTest, ANegativeStartTrimLengthensToTheLeft)
{
    given("V1: ..aa");
    track("V1")->trimStart(media("V1.a"), -20, false);
    EXPECT_EQ("V1: aaaa", strip());
    EXPECT_EQ(Range<double>(480, 40), media("V1.a")->mediaRange());
}

TEST_F(TrackEditingTest, AStartTrimOfNothingKeepsTheEntry)
{
    given("V1: .aab");
    track("V1")->trimStart(media("V1.a"), 0, true);
    EXPECT_EQ("V1: .aab", strip());
    EXPECT_EQ(media("V1.a"), track("V1")->medias().at(10));
}

TEST_F(TrackEditingTest, AStartTrimIntoTheLeftNeighbourIsRefused)
{
    given("V1: bb.aa");
    EXPECT_EQ(ConstMediaList{media("V1.b")},
              hitBy([&] { track("V1")->trimStart(media("V1.a"), -11, false); }));
    EXPECT_EQ("V1: bb.aa", strip());
}

TEST_F(TrackEditingTest, AnEndTrimShortensFromTheRight)
{
    given("V1: .aaa");
    track("V1")->trimEnd(media("V1.a"), 10, false);
    EXPECT_EQ("V1: .aa", strip());
    EXPECT_EQ(Range<double>(500, 20), media("V1.a")->mediaRange());
}

TEST_F(TrackEditingTest, ANegativeEndTrimLengthensToTheRight)
{
    given("V1: .aa.b");
    track("V1")->trimEnd(media("V1.a"), -10, false);
    EXPECT_EQ("V1: .aaab", strip());
}

TEST_F(TrackEditingTest, AnEndTrimIntoTheRightNeighbourIsRefused)
{
    given("V1: .aa.b");
    EXPECT_EQ(ConstMediaList{media("V1.b")},
              hitBy([&] { track("V1")->trimEnd(media("V1.a"), -11, false); }));
    EXPECT_EQ("V1: .aa.b", strip());
}

TEST_F(TrackEditingTest, LinkedMediasAreTrimmedTogether)
{
    given("A1: .aaaa / V1: .aaaa");
    track("V1")->trimStart(media("V1.a"), 10, true);
    track("A1")->trimEnd(media("A1.a"), 10, true);
    EXPECT_EQ("A1: ..aa / V1: ..aa", strip());
    EXPECT_EQ(media("A1.a"), track("A1")->medias().at(20));
}

TEST_F(TrackEditingTest, WithoutLinksTheMediaIsTrimmedAlone)
{
    given("A1: .aaaa / V1: .aaaa");
    track("V1")->trimStart(media("V1.a"), 10, false);
    track("V1")->trimEnd(media("V1.a"), 10, false);
    EXPECT_EQ("A1: .aaaa / V1: ..aa", strip());
}

TEST_F(TrackEditingTest, WhenOnlyThePartnerWouldCollideNeitherIsTrimmed)
{
    given("A1: baab / V1: .aa");
    EXPECT_THROW(track("V1")->trimStart(media("V1.a"), -5, true), CollisionException);
    EXPECT_THROW(track("V1")->trimEnd(media("V1.a"), -5, true), CollisionException);
    EXPECT_EQ("A1: baab / V1: .aa", strip());
}

TEST_F(TrackEditingTest, WhatTheMediaItselfRefusesChangesNothing)
{
    given("V1: aa");
    // Nothing would be left of it.
    auto const start = thrownBy<ValueException<long long>>(
        [&] { track("V1")->trimStart(media("V1.a"), 20, false); });
    auto const end = thrownBy<ValueException<long long>>(
        [&] { track("V1")->trimEnd(media("V1.a"), 20, false); });
    EXPECT_STREQ("invalid media trim start offset", start.what());
    EXPECT_STREQ("invalid media trim end offset", end.what());
    EXPECT_EQ(20, end.value());
    EXPECT_EQ("V1: aa", strip());
}

TEST_F(TrackEditingTest, ATrimLongerThanTheMediaIsProbedWithoutHarmAndRefused)
{
    given("V1: aabb");
    EXPECT_THROW(track("V1")->trimStart(media("V1.a"), 500, false), ValueException<long long>);
    EXPECT_THROW(track("V1")->trimEnd(media("V1.b"), 500, false), ValueException<long long>);
    EXPECT_EQ("V1: aabb", strip());
}

TEST_F(TrackEditingTest, ATrimToNothingMayNotEndOnAnothersStart)
{
    given("V1: ssuu");
    EXPECT_EQ(ConstMediaList{media("V1.u")},
              hitBy([&] { track("V1")->trimStart(media("V1.s"), 20, false); }));
    EXPECT_EQ("V1: ssuu", strip());
}

TEST_F(TrackEditingTest, ATrimToNothingIsFineWhereNothingStarts)
{
    given("V1: ss.uu");
    track("V1")->trimStart(media("V1.s"), 20, false);
    EXPECT_EQ(Range<long long>(20, 0), range("V1.s"));
    EXPECT_EQ(media("V1.s"), track("V1")->medias().at(20));
    EXPECT_EQ(2u, track("V1")->numMedias());
}

TEST_F(TrackEditingTest, ATakenStartOnThePartnersTrackRefusesTheTrimOfBoth)
{
    given("V1: ss / V2: ssuu");
    EXPECT_EQ(ConstMediaList{media("V2.u")},
              hitBy([&] { track("V1")->trimStart(media("V1.s"), 20, true); }));
    EXPECT_EQ("V1: ss / V2: ssuu", strip());
}

TEST_F(TrackEditingTest, ATakenStartOnThePartnersTrackDoesNotMatterWithoutLinks)
{
    given("V1: ss / V2: ssuu");
    track("V1")->trimStart(media("V1.s"), 20, false);
    EXPECT_EQ(Range<long long>(20, 0), range("V1.s"));
    EXPECT_EQ(Range<long long>(0, 20), range("V2.s"));
}

// ---- Stretching ----

TEST_F(TrackEditingTest, AStretchChangesTheLengthAndGivesTheScalar)
{
    given("V1: .aa");
    EXPECT_EQ(1.5, track("V1")->stretch(media("V1.a"), 1.5, false));
    EXPECT_EQ("V1: .aaa", strip());
    EXPECT_EQ(Range<double>(500, 20), media("V1.a")->mediaRange());
}

TEST_F(TrackEditingTest, TheScalarIsTheOneThatGivesAWholeLength)
{
    given("V1: .aa");
    // round(20 * 1.33) = round(26.6) = 27, and 27 / 20 = 1.35.
    EXPECT_DOUBLE_EQ(1.35, track("V1")->stretch(media("V1.a"), 1.33, false));
    EXPECT_EQ(Range<long long>(10, 27), range("V1.a"));
}

TEST_F(TrackEditingTest, AStretchIntoTheNextMediaIsRefused)
{
    given("V1: aa.b");
    EXPECT_EQ(ConstMediaList{media("V1.b")},
              hitBy([&] { track("V1")->stretch(media("V1.a"), 2, false); }));
    EXPECT_EQ("V1: aa.b", strip());
    EXPECT_EQ(1.0, media("V1.a")->scalar());
}

TEST_F(TrackEditingTest, LinkedMediasAreStretchedTogether)
{
    given("A1: aa / V1: aa");
    EXPECT_EQ(2.0, track("V1")->stretch(media("V1.a"), 2, true));
    EXPECT_EQ("A1: aaaa / V1: aaaa", strip());
}

TEST_F(TrackEditingTest, WhenOnlyThePartnerWouldCollideNeitherIsStretched)
{
    given("A1: aa.b / V1: aa");
    EXPECT_THROW(track("V1")->stretch(media("V1.a"), 2, true), CollisionException);
    EXPECT_EQ("A1: aa.b / V1: aa", strip());
}

TEST_F(TrackEditingTest, AStretchToNothingIsRefused)
{
    given("V1: aa");
    // round(20 * 0.001) = 0
    auto const thrown = thrownBy<ValueException<double>>(
        [&] { track("V1")->stretch(media("V1.a"), 0.001, false); });
    EXPECT_STREQ("invalid duration after media stretch (<=0)", thrown.what());
    EXPECT_EQ(0.001, thrown.value());
    EXPECT_EQ("V1: aa", strip());
}

// ---- Edits whose caller has ruled out collisions ----

TEST_F(TrackEditingTest, UncheckedEditsDoNotAskWhatIsInTheWay)
{
    given("V1: aa.bb");
    track("V1")->moveSansCollision(media("V1.a"), 20, false);
    EXPECT_EQ(Range<long long>(20, 20), range("V1.a"));
    track("V1")->trimEndSansCollision(media("V1.a"), -30, false);
    EXPECT_EQ(Range<long long>(20, 50), range("V1.a"));
    track("V1")->trimStartSansCollision(media("V1.a"), -5, false);
    EXPECT_EQ(Range<long long>(15, 55), range("V1.a"));
    EXPECT_EQ(media("V1.a"), track("V1")->medias().at(15));
    EXPECT_EQ(2.0, track("V1")->stretchSansCollision(media("V1.b"), 2.0, false));
    EXPECT_EQ(Range<long long>(30, 40), range("V1.b"));
}

TEST_F(TrackEditingTest, UncheckedEditsSpreadToLinkedMedias)
{
    given("A1: aaa / V1: aaa");
    track("V1")->moveSansCollision(media("V1.a"), 30, true);
    track("V1")->trimStartSansCollision(media("V1.a"), 10, true);
    track("V1")->trimEndSansCollision(media("V1.a"), 10, true);
    EXPECT_EQ("A1: ....a / V1: ....a", strip());
    track("V1")->stretchSansCollision(media("V1.a"), 2.0, true);
    EXPECT_EQ("A1: ....aa / V1: ....aa", strip());
    EXPECT_EQ(media("A1.a"), track("A1")->medias().at(40));
}

TEST_F(TrackEditingTest, AParentlessMediaIsRefusedByEveryUncheckedEdit)
{
    given("V1: a");
    boost::shared_ptr<Media> const loose = freshVideo('b', 2);
    auto const thrown =
        thrownBy<WrongMedia>([&] { track("V1")->moveSansCollision(loose, 10, false); });
    EXPECT_STREQ("trying to edit a parentless media like a parented media", thrown.what());
    EXPECT_EQ(loose, thrown.value());
    EXPECT_THROW(track("V1")->trimStartSansCollision(loose, 1, false), WrongMedia);
    EXPECT_THROW(track("V1")->trimEndSansCollision(loose, 1, false), WrongMedia);
    EXPECT_THROW(track("V1")->stretchSansCollision(loose, 2, false), WrongMedia);
    EXPECT_EQ(Range<long long>(0, 20), loose->trackRange());
}

TEST_F(TrackEditingTest, WhatAPartnerRefusesIsDroppedAndEndsTheWalk)
{
    given("A1: aa / V1: aa / V2: aa");
    // The first link of the picture on V1 is the sound, which can lose no more than 9 of its 10
    // units; the media on V2 comes after it and is not reached.
    track("A1")->trimEndSansCollision(media("A1.a"), 10, false);
    track("V1")->trimEndSansCollision(media("V1.a"), 10, true);
    EXPECT_EQ(Range<long long>(0, 10), range("V1.a"));
    EXPECT_EQ(Range<long long>(0, 10), range("A1.a"));
    EXPECT_EQ(Range<long long>(0, 20), range("V2.a"));
}

TEST_F(TrackEditingTest, ADeadLinkEndsTheWalkOfAnUncheckedEditInSilence)
{
    given("V1: aa");
    media("V1.a")->link(freshVideo('b', 2));
    track("V1")->moveSansCollision(media("V1.a"), 30, true);
    EXPECT_EQ("V1: ...aa", strip());
}

TEST_F(TrackEditingTest, AFailureThatIsNotTheLibrarysGoesOnToTheCaller)
{
    given("A1: aa / V1: aa");
    CountingObserver broken([] { throw std::runtime_error("a host's"); });
    media("A1.a")->attach(&broken);
    EXPECT_THROW(track("V1")->moveSansCollision(media("V1.a"), 30, true), std::runtime_error);
    media("A1.a")->detach(&broken);
    EXPECT_EQ(30, range("V1.a").start);
}

TEST_F(TrackEditingTest, TheScalarOfAnUncheckedStretchIsThatOfTheMediaItself)
{
    given("A1: aa / V1: aa");
    track("A1")->trimEnd(media("A1.a"), 10, false);
    // 20 * 1.33 gives 27, so 1.35; the partner's 10 * 1.33 gives 13, so 1.3.
    EXPECT_DOUBLE_EQ(1.35, track("V1")->stretchSansCollision(media("V1.a"), 1.33, true));
    EXPECT_DOUBLE_EQ(1.3, media("A1.a")->scalar());
}

// ---- The parts of which edits consist ----

TEST_F(TrackEditingTest, RelocatingChangesTheKeyOnlyAndTellsNobody)
{
    given("V1: aa");
    watch(track("V1"));
    track("V1")->relocateMedia(media("V1.a"), 0, 70);
    EXPECT_EQ(0u, track("V1")->medias().count(0));
    EXPECT_EQ(media("V1.a"), track("V1")->medias().at(70));
    EXPECT_EQ(0, range("V1.a").start);
    EXPECT_EQ(0, m_observer.calls());
}

TEST_F(TrackEditingTest, RelocatingToTheSameKeyKeepsTheEntry)
{
    given("V1: .aa");
    track("V1")->relocateMedia(media("V1.a"), 10, 10);
    EXPECT_EQ(media("V1.a"), track("V1")->medias().at(10));
}

TEST_F(TrackEditingTest, RelocatingOverwritesWhatIsThere)
{
    given("V1: aabb");
    track("V1")->relocateMedia(media("V1.a"), 0, 20);
    EXPECT_EQ(1u, track("V1")->numMedias());
    EXPECT_EQ(media("V1.a"), track("V1")->medias().at(20));
}

TEST_F(TrackEditingTest, RelocatingFromAKeyThatIsNotThereMakesTheEntry)
{
    given("V1: a.b");
    // Nothing starts at 5: all others stay, and the media has its entry at 70.
    track("V1")->relocateMedia(media("V1.a"), 5, 70);
    EXPECT_EQ(3u, track("V1")->numMedias());
    EXPECT_EQ(media("V1.a"), track("V1")->medias().at(0));
    EXPECT_EQ(media("V1.b"), track("V1")->medias().at(20));
    EXPECT_EQ(media("V1.a"), track("V1")->medias().at(70));
}

TEST_F(TrackEditingTest, RelocatingTakesTheEntryOfAnotherMediaToo)
{
    given("V1: a.b");
    track("V1")->relocateMedia(media("V1.b"), 0, 70);
    EXPECT_EQ(0u, track("V1")->medias().count(0));
    EXPECT_EQ(media("V1.b"), track("V1")->medias().at(70));
}

TEST_F(TrackEditingTest, CollisionsAreTestedOnTheTracksOfLinkedMediasToo)
{
    given("A1: aa..b / V1: aa.cc");
    boost::shared_ptr<Track const> const shown = track("V1");
    Range<long long> const probed(30, 20);
    EXPECT_EQ(ConstMediaList{media("V1.c")}, *shown->collidingMedia(media("V1.a"), probed, false));
    EXPECT_EQ((ConstMediaList{media("V1.c"), media("A1.b")}),
              *shown->collidingMedia(media("V1.a"), probed, true));
}

TEST_F(TrackEditingTest, AMediaAndItsPartnersAreNeverInTheirOwnWay)
{
    given("A1: aa / V1: aa");
    boost::shared_ptr<Track const> const shown = track("V1");
    EXPECT_TRUE(shown->collidingMedia(media("V1.a"), Range<long long>(0, 50), true)->empty());
}

TEST_F(TrackEditingTest, AProbeWithoutLengthCollidesWithNothing)
{
    given("V1: aa.ccc");
    boost::shared_ptr<Track const> const shown = track("V1");
    EXPECT_TRUE(shown->collidingMedia(media("V1.a"), Range<long long>(40, 0), false)->empty());
}

TEST_F(TrackEditingTest, ThePassedCheckGivesTheMediaToChange)
{
    given("V1: aa.c");
    Range<long long> const free(40, 20);
    EXPECT_EQ(media("V1.a"), track("V1")->checkOwnershipAndCollisions(media("V1.a"), free, false));
    EXPECT_THROW(
        track("V1")->checkOwnershipAndCollisions(media("V1.a"), Range<long long>(39, 20), false),
        CollisionException);
}

TEST_F(TrackEditingTest, ALinkLeadsToItsMediaAndTrack)
{
    given("A1: aa / V1: aa");
    auto const found =
        track("V1")->lockMediaAndTrack<Media, Track>(boost::weak_ptr<Media>(media("A1.a")));
    EXPECT_EQ(media("A1.a"), found.first);
    EXPECT_EQ(track("A1"), found.second);
}

TEST_F(TrackEditingTest, ADeadLinkLeadsNowhere)
{
    given("V1: aa");
    boost::shared_ptr<Track const> const shown = track("V1");
    boost::weak_ptr<Media const> const dead;
    using Found = std::pair<boost::shared_ptr<Media const>, boost::shared_ptr<Track const>>;
    EXPECT_STREQ("", thrownBy<DanglingWeakPtrException<Media const>>([&] {
                         Found const found =
                             shown->lockMediaAndTrack<Media const, Track const>(dead);
                     }).what());
}

TEST_F(TrackEditingTest, ALinkToAParentlessMediaLeadsToNoTrack)
{
    given("V1: aa");
    boost::shared_ptr<Media> const loose = freshVideo('b', 2);
    auto const lookUp = [&] {
        track("V1")->lockMediaAndTrack<Media, Track>(boost::weak_ptr<Media>(loose));
    };
    EXPECT_STREQ("", thrownBy<DanglingWeakPtrException<Track const>>(lookUp).what());
}

TEST_F(TrackEditingTest, AParentedMediaHasALiveTrack)
{
    given("V1: aa");
    EXPECT_NO_THROW(ParentedMedia(media("V1.a")).assertParented());
    boost::shared_ptr<Media> const loose = freshVideo('b', 2);
    auto const thrown = thrownBy<WrongMedia>([&] { ParentedMedia(loose).assertParented(); });
    EXPECT_STREQ("trying to edit a parentless media like a parented media", thrown.what());
    EXPECT_EQ(loose, thrown.value());
}

TEST_F(TrackEditingTest, AMediaWhoseTrackHasDiedIsParentless)
{
    given("V1: a");
    boost::shared_ptr<Track> shortLived(new VisualTrack(lock()));
    boost::shared_ptr<Media> const left = freshVideo('b', 2);
    shortLived->addMedia(left, 0);
    shortLived.reset();
    track("V1")->addMedia(left, 10);
    EXPECT_EQ("V1: abb", strip());
}

}  // namespace
}  // namespace test
}  // namespace tarn
