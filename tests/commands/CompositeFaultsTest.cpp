#include "support/FaultyHandler.h"

#include "clipbin/Clipping.h"
#include "clipbin/Source.h"
#include "commands/AddSourceCmd.h"
#include "commands/CloneAddLinkMediasCmd.h"
#include "commands/CloneAddMediasCmd.h"
#include "commands/CloneInsertMediasCmd.h"
#include "commands/CutRangeClippingCmd.h"
#include "commands/CutSelectClippingCmd.h"
#include "commands/InsertClippingCmd.h"
#include "commands/InsertSpaceCmd.h"
#include "commands/IntraMediaCutCmd.h"
#include "commands/LinkCmd.h"
#include "commands/LoadScreenSourceCmd.h"
#include "commands/PutClippingCmd.h"
#include "commands/RemoveRangeMediaCmd.h"
#include "commands/RemoveSelectMediaCmd.h"
#include "commands/RippleMoveCmd.h"
#include "commands/SplitCmd.h"
#include "commands/SplittingRippleMoveCmd.h"
#include "commands/UnlinkCmd.h"
#include "datatypes/ScreenMetaData.h"
#include "support/Fades.h"
#include "support/FakeStatsLoader.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Track.h"
#include "timeline/VisualMixer.h"

namespace tarn {
namespace test {
namespace {

/// Every composite, broken down at every primitive it calls.
///
/// A split of a linked pair calls seven: it takes the right edge length off both (2), trims both
/// as one (1), adds two pieces (2) and links them both ways (2). Each fade-out is one more.
class CompositeFaultsTest : public FaultTest
{
protected:
    boost::shared_ptr<AbstractVisualTrack const> visual(
        boost::shared_ptr<Track const> const& track) const
    {
        return boost::dynamic_pointer_cast<AbstractVisualTrack const>(track);
    }
    boost::shared_ptr<AudioTrack const> audio(boost::shared_ptr<Track const> const& track) const
    {
        return boost::dynamic_pointer_cast<AudioTrack const>(track);
    }

    /// Maps the first visual and the first audio track of a private timeline to V1 and A1.
    template <class C>
    boost::shared_ptr<Command> mapped(boost::shared_ptr<C> const& command,
                                      Timeline const& timeline) const
    {
        command->template addTrackMap<AbstractVisualTrack>(
            visual(timeline.visualMixer()->trackAtIndex(0)), visual(track("V1")));
        command->template addTrackMap<AudioTrack>(audio(timeline.audioMixer()->trackAtIndex(0)),
                                                  audio(track("A1")));
        return command;
    }

    boost::shared_ptr<Clipping> clippingOf(Range<long long> const& range) const
    {
        return boost::shared_ptr<Clipping>(
            new Clipping(timeline(), range, ConstTrackSet{track("A1"), track("V1")}, "copied"));
    }
};

TEST_F(CompositeFaultsTest, LinkCmd)
{
    givenWithPast("A1: aaa / A2: aaa / V1: bbb");
    // One with each of two, both ways.
    EXPECT_TRUE(
        allFaultsRollBack([&] { return LinkCmd::create(media("V1.b"), media("A1.a")); }, 4));
}

TEST_F(CompositeFaultsTest, UnlinkCmd)
{
    givenWithPast("A1: aaa / V1: aaa / V2: aaa");
    EXPECT_TRUE(allFaultsRollBack([&] { return UnlinkCmd::create(media("V1.a")); }, 4));
}

TEST_F(CompositeFaultsTest, RemoveRangeMediaCmd)
{
    givenWithPast("A1: aaaaaa / V1: aaaaaa");
    giveFades(media("V1.a"), 10, 20);
    // The split at 40 takes the fade-out along: 8; the one at 20: 7; and one removal.
    EXPECT_TRUE(allFaultsRollBack(
        [&] {
            auto const command = RemoveRangeMediaCmd::create(timeline(), Range<long long>(20, 20));
            command->addTrack(track("V1"));
            return command;
        },
        16));
}

TEST_F(CompositeFaultsTest, RemoveSelectMediaCmd)
{
    givenWithPast("A1: aaa..bb / V1: aaa.cc.");
    ConstMediaVector const selected{media("V1.a"), media("A1.a"), media("V1.c")};
    // One removal a group.
    EXPECT_TRUE(
        allFaultsRollBack([&] { return RemoveSelectMediaCmd::create(timeline(), selected); }, 2));
}

TEST_F(CompositeFaultsTest, RippleMoveCmd)
{
    givenWithPast("A1: ...bb / V1: aaabb.cc.d");
    EXPECT_TRUE(allFaultsRollBack(
        [&] { return RippleMoveCmd::create(track("V1"), media("V1.b"), 20); }, 3));
}

TEST_F(CompositeFaultsTest, RippleMoveCmdToTheLeft)
{
    givenWithPast("A1: .....bb / V1: aaa..bb.cc.d");
    EXPECT_TRUE(allFaultsRollBack(
        [&] { return RippleMoveCmd::create(track("V1"), media("V1.b"), -20); }, 3));
}

TEST_F(CompositeFaultsTest, SplittingRippleMoveCmd)
{
    givenWithPast("A1: aaaaaa / V1: aaaaaa.b");
    giveFades(media("V1.a"), 10, 20);
    // A split, 8, and two moves.
    EXPECT_TRUE(allFaultsRollBack(
        [&] {
            auto const command = SplittingRippleMoveCmd::create(40, 20);
            command->addTrack(track("A1"));
            command->addTrack(track("V1"));
            return command;
        },
        10));
}

TEST_F(CompositeFaultsTest, SplittingRippleMoveCmdWithoutLinks)
{
    givenWithPast("A1: bbbb / V1: aaaa.c");
    // A split without links calls three; then one move on A1 and two on V1.
    EXPECT_TRUE(allFaultsRollBack(
        [&] {
            auto const command = SplittingRippleMoveCmd::create(20, 20);
            command->addTrack(track("A1"));
            command->addTrack(track("V1"));
            return command;
        },
        9));
}

TEST_F(CompositeFaultsTest, InsertSpaceCmd)
{
    givenWithPast("A1: aaaa / V1: aaaa.b");
    EXPECT_TRUE(allFaultsRollBack(
        [&] {
            auto const command = InsertSpaceCmd::create(20, 10);
            command->addTrack(track("A1"));
            command->addTrack(track("V1"));
            return command;
        },
        2));
}

TEST_F(CompositeFaultsTest, IntraMediaCutCmd)
{
    givenWithPast("A1: aaaaaa / V1: aaaaaa");
    giveFades(media("V1.a"), 10, 20);
    EXPECT_TRUE(allFaultsRollBack(
        [&] { return IntraMediaCutCmd::create(track("V1"), Range<long long>(20, 20)); }, 8));
}

TEST_F(CompositeFaultsTest, SplitCmd)
{
    givenWithPast("A1: aaaaaa / V1: aaaaaa / V2: aaaaaa");
    giveFades(media("V1.a"), 10, 20);
    giveFades(media("V2.a"), 10, 20);
    // Three lengths, two fade-outs, a trim, three pieces, and links: the first two both ways, then
    // each of them with the third.
    EXPECT_TRUE(
        allFaultsRollBack([&] { return SplitCmd::create(track("A1"), 40); }, 3 + 2 + 1 + 3 + 6));
}

TEST_F(CompositeFaultsTest, CloneAddMediasCmd)
{
    givenWithPast("A1: .bb / V1: aa");
    EXPECT_TRUE(allFaultsRollBack(
        [&] {
            auto const command = CloneAddMediasCmd::create(60);
            command->addMapping(track("V1"), media("V1.a"));
            command->addMapping(track("A1"), media("A1.b"));
            return command;
        },
        2));
}

TEST_F(CompositeFaultsTest, CloneAddLinkMediasCmd)
{
    givenWithPast("A1: aa / V1: aa / V2: aa");
    // Three clones; two linked both ways, then each of them with the third.
    EXPECT_TRUE(allFaultsRollBack(
        [&] {
            auto const command = CloneAddLinkMediasCmd::create(60);
            command->addMapping(track("A1"), media("A1.a"));
            command->addMapping(track("V1"), media("V1.a"));
            command->addMapping(track("V2"), media("V2.a"));
            return command;
        },
        9));
}

TEST_F(CompositeFaultsTest, CloneInsertMediasCmd)
{
    givenWithPast("A1: aabb / V1: aabb");
    // A split of a pair, the moves of its right pieces and of b, and two clones.
    EXPECT_TRUE(allFaultsRollBack(
        [&] {
            auto const command = CloneInsertMediasCmd::create(10);
            command->addMapping(track("A1"), media("A1.a"));
            command->addMapping(track("V1"), media("V1.a"));
            return command;
        },
        7 + 2 + 2));
}

TEST_F(CompositeFaultsTest, CutRangeClippingCmd)
{
    givenWithPast("A1: aaaaaa / V1: aaaaaa");
    // The clipping, two splits of a pair and its removal, after which the other track has nothing.
    EXPECT_TRUE(allFaultsRollBack(
        [&] {
            auto const command =
                CutRangeClippingCmd::create(timeline(), Range<long long>(20, 20), "cut");
            command->addTrack(track("A1"));
            command->addTrack(track("V1"));
            return command;
        },
        1 + 7 + 7 + 1));
}

TEST_F(CompositeFaultsTest, CutSelectClippingCmd)
{
    givenWithPast("A1: aaa / V1: aaa.bb");
    letTheBoardGrow();
    ConstMediaVector const selected{media("V1.a"), media("A1.a"), media("V1.b")};
    // The clipping, and one removal a group.
    EXPECT_TRUE(allFaultsRollBack(
        [&] { return CutSelectClippingCmd::create(timeline(), selected, "cut"); }, 3));
}

TEST_F(CompositeFaultsTest, PutClippingCmd)
{
    givenWithPast("A1: bb / V1: aacc");
    boost::shared_ptr<Clipping> const clipping = clippingOf(Range<long long>(0, 40));
    EXPECT_TRUE(allFaultsRollBack(
        [&] { return mapped(PutClippingCmd::create(clipping, 50), *clipping->timeline()); }, 3));
}

TEST_F(CompositeFaultsTest, InsertClippingCmd)
{
    givenWithPast("A1: aaaa / V1: aaaa");
    boost::shared_ptr<Clipping> const clipping = clippingOf(Range<long long>(0, 20));
    // A split of a pair, one move of its right pieces, and two clones.
    EXPECT_TRUE(allFaultsRollBack(
        [&] { return mapped(InsertClippingCmd::create(clipping, 20), *clipping->timeline()); },
        7 + 1 + 2));
}

TEST_F(CompositeFaultsTest, AddSourceCmd)
{
    givenWithPast("A1: bb / V1: bb");
    // Picture and sound, linked both ways.
    EXPECT_TRUE(allFaultsRollBack(
        [&] {
            return mapped(AddSourceCmd::create(source('b'), 20, Range<long long>(0, 1)),
                          *source('b')->timeline());
        },
        4));
}

TEST_F(CompositeFaultsTest, LoadScreenSourceCmd)
{
    FakeStatsLoader::instance().set("fake:screen",
                                    {FakeStatsLoader::picture(100), FakeStatsLoader::sound(100)});
    givenWithPast("V1: aa");
    boost::shared_ptr<ScreenMetaData> const metaData(
        ScreenMetaData::create(lock(), boost::weak_ptr<ProjectEditRate const>(project)));
    EXPECT_TRUE(
        allFaultsRollBack([&] { return LoadScreenSourceCmd::create("fake:screen", metaData); }, 1));
}

// ---- Failures that are no fault of a primitive ----

TEST_F(CompositeFaultsTest, AScreenSourceWithAStillIsTakenOutOfTheBinAgain)
{
    FakeStatsLoader::instance().set("fake:slide", {FakeStatsLoader::still()});
    givenWithPast("V1: aa");
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        LoadScreenSourceCmd::create("fake:slide", boost::shared_ptr<ScreenMetaData>(
                                                      ScreenMetaData::create(lock(), project))),
        "trying to LoadScreenSource with an invalid file"));
}

TEST_F(CompositeFaultsTest, AFaultWhileTakingBackReplacesTheFirst)
{
    givenWithPast("V1: aabbcc");
    boost::shared_ptr<Command> const command =
        RippleMoveCmd::create(track("V1"), media("V1.a"), 10);
    int calls = 0;
    WatchingHandler const watch(*project, [&calls](auto const&, auto const&) {
        ++calls;
        if (calls == 3)
            throw TarnMediaLibException("first");
        if (calls == 4)
            throw std::bad_alloc();
    });
    EXPECT_THROW(project->execute(command), std::bad_alloc);
    EXPECT_EQ(4, calls);
}

}  // namespace
}  // namespace test
}  // namespace tarn
