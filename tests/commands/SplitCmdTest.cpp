#include "commands/SplitCmd.h"

#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/LinkException.h"
#include "exceptions/TarnMediaLibException.h"
#include "exceptions/ValueException.h"
#include "support/CommandXml.h"
#include "support/Fades.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <memory>

namespace tarn {
namespace test {
namespace {

using BadTime = ValueException<long long>;

/// split() takes cells; at() edit units.
class SplitCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<SplitCmd> at(long long time) const
    {
        return SplitCmd::create(track("V1"), time);
    }
    boost::shared_ptr<Media> mediaAt(std::string const& name, long long time) const
    {
        return track(name)->mediaAtTime(time).second;
    }
};

TEST_F(SplitCmdTest, CutsALinkedPairInTwo)
{
    given("A1: aaaaaa / V1: aaaaaa");
    EXPECT_TRUE(edits(split("V1", 4), "A1: aaaabb / V1: aaaabb"));
}

TEST_F(SplitCmdTest, ThePiecesTouchInBothClocks)
{
    given("V1: aaaaaaaaaa");
    EXPECT_TRUE(edits(at(40), "V1: aaaabbbbbb"));
    EXPECT_EQ(Range<long long>(0, 40), media("V1.a")->trackRange());
    EXPECT_EQ(Range<double>(500, 40), media("V1.a")->mediaRange());
    EXPECT_EQ(Range<long long>(40, 60), mediaAt("V1", 50)->trackRange());
    EXPECT_EQ(Range<double>(540, 60), mediaAt("V1", 50)->mediaRange());
}

TEST_F(SplitCmdTest, APieceMayBeAsShortAsOneUnit)
{
    given("V1: aaaa");
    EXPECT_TRUE(edits(at(1), "V1: a[0,1) b[1,40)"));
}

TEST_F(SplitCmdTest, TheLastPieceMayBeAsShortAsOneUnit)
{
    given("V1: aaaa");
    EXPECT_TRUE(edits(at(39), "V1: a[0,39) b[39,40)"));
}

TEST_F(SplitCmdTest, ThePiecesOfAPairAreLinkedPieceWithPiece)
{
    given("A1: aaaaaa / V1: aaaaaa");
    project->execute(split("A1", 4));
    EXPECT_TRUE(mediaAt("V1", 50)->isLinkedWith(mediaAt("A1", 50)));
    EXPECT_TRUE(media("V1.a")->isLinkedWith(media("A1.a")));
    EXPECT_FALSE(mediaAt("V1", 50)->isLinkedWith(media("A1.a")));
}

TEST_F(SplitCmdTest, CutsAGroupOfThree)
{
    given("A1: aaaa / V1: aaaa / V2: aaaa");
    EXPECT_TRUE(edits(split("V1", 1), "A1: abbb / V1: abbb / V2: abbb"));
}

TEST_F(SplitCmdTest, APieceCanBeSplitAgain)
{
    given("A1: aaaaaa / V1: aaaaaa");
    project->execute(split("V1", 4));
    EXPECT_TRUE(edits(split("A1", 5), "A1: aaaabc / V1: aaaabc"));
    project->undo();
    project->undo();
    EXPECT_EQ("A1: aaaaaa / V1: aaaaaa", strip());
}

TEST_F(SplitCmdTest, CutsAStretchedMedia)
{
    given("V1: aaaaaa");
    project->execute(stretch("V1.a", 2.0));
    EXPECT_TRUE(edits(at(60), "V1: aaaaaabbbbbb"));
    EXPECT_EQ(Range<double>(500, 30), media("V1.a")->mediaRange());
    EXPECT_EQ(Range<double>(530, 30), mediaAt("V1", 70)->mediaRange());
}

TEST_F(SplitCmdTest, ThePiecesShareOutTheFades)
{
    given("V1: aaaaaa");
    giveFades(media("V1.a"), 10, 20);
    EXPECT_TRUE(edits(at(30), "V1: aaabbb"));
    EXPECT_EQ(10, media("V1.a")->leftEdgeModificationLength());
    EXPECT_EQ(0, media("V1.a")->rightEdgeModificationLength());
    EXPECT_EQ(0, mediaAt("V1", 40)->leftEdgeModificationLength());
    EXPECT_EQ(20, mediaAt("V1", 40)->rightEdgeModificationLength());
}

TEST_F(SplitCmdTest, RedoBringsBackTheVeryPiece)
{
    given("V1: aaaa");
    project->execute(at(20));
    boost::shared_ptr<Media> const right = mediaAt("V1", 30);
    project->undo();
    project->redo();
    EXPECT_EQ(right, mediaAt("V1", 30));
}

// ---- What cannot be split ----

TEST_F(SplitCmdTest, AMediasStartIsRefused)
{
    given("V1: .aaaa");
    EXPECT_TRUE(refuses<BadTime>(at(10), "unable to split"));
}

TEST_F(SplitCmdTest, AMediasEndIsRefused)
{
    given("V1: .aaaa");
    EXPECT_TRUE(refuses<BadTime>(at(50), "unable to split"));
}

TEST_F(SplitCmdTest, WhereTwoMediasTouchIsRefused)
{
    given("V1: aabb");
    EXPECT_TRUE(refuses<BadTime>(at(20), "unable to split"));
}

TEST_F(SplitCmdTest, AGapIsRefused)
{
    given("V1: aa..bb");
    EXPECT_TRUE(refuses<BadTime>(at(30), "unable to split"));
}

TEST_F(SplitCmdTest, AnEmptyTrackIsRefused)
{
    given("V2: aa");
    EXPECT_TRUE(refuses<BadTime>(at(10), "unable to split"));
}

TEST_F(SplitCmdTest, ARefusalCarriesTheTime)
{
    given("V1: aa..bb");
    EXPECT_EQ(30, thrownBy<BadTime>([&] { project->execute(at(30)); }).value());
}

TEST_F(SplitCmdTest, ALeftPieceWithLessThanAUnitOfItsSourceIsRefused)
{
    given("V1: aaaaaa");
    project->execute(stretch("V1.a", 2.0));
    EXPECT_EQ(1, thrownBy<BadTime>([&] { project->execute(at(1)); }).value());
    EXPECT_TRUE(refuses<BadTime>(at(1), "unable to split"));
}

TEST_F(SplitCmdTest, ARightPieceWithLessThanAUnitOfItsSourceIsRefused)
{
    given("V1: aaaaaa");
    project->execute(stretch("V1.a", 2.0));
    EXPECT_EQ(119, thrownBy<BadTime>([&] { project->execute(at(119)); }).value());
    EXPECT_TRUE(refuses<BadTime>(at(119), "unable to split"));
}

// ---- Failures of links keep their own words ----

TEST_F(SplitCmdTest, ALinkedMediaOfAnotherTrackRangeIsRefusedAsSuch)
{
    given("A1: bbbbb / V1: aaaaaa");
    media("A1.b")->link(media("V1.a"));
    EXPECT_TRUE(refuses<LinkException>(at(20)));
}

TEST_F(SplitCmdTest, ALinkedMediaOnNoTrackIsRefusedAsSuch)
{
    given("V1: aaaa");
    boost::shared_ptr<Media> const loose = freshVideo('a', 4);
    media("V1.a")->link(loose);
    EXPECT_TRUE(refuses<DanglingWeakPtrException<Track const>>(at(20), ""));
}

TEST_F(SplitCmdTest, ADeadLinkIsRefusedAsSuch)
{
    given("V1: aaaa");
    media("V1.a")->link(freshVideo('a', 4));
    EXPECT_THROW(project->execute(at(20)), DanglingWeakPtrException<Media const>);
    EXPECT_EQ("V1: aaaa", strip());
}

TEST_F(SplitCmdTest, PiecesThatCannotBeLinkedAreRefusedAsSuch)
{
    // A still's media range stays, the sound's goes from 500 to 520.
    given("A1: aaaa / V1: ssss");
    media("V1.s")->link(media("A1.a"));
    EXPECT_TRUE(refuses<TarnMediaLibException>(at(20), "unable to link media"));
}

// ---- XML and copies ----

TEST_F(SplitCmdTest, IsWrittenAsACutOfNoLength)
{
    given("V1: aaaaaa");
    EXPECT_EQ(emptyElement("SplitCmd", identAttribute("track", track("V1")) +
                                           " media=\"0\" start=\"20\" duration=\"0\""),
              xmlOf(*at(20)));
}

TEST_F(SplitCmdTest, ACloneHasRunNothing)
{
    given("V1: aaaa");
    boost::shared_ptr<SplitCmd> const command = at(20);
    project->execute(command);
    project->undo();
    boost::shared_ptr<SplitCmd> const copy(command->clone());
    EXPECT_EQ(0u, copy->numUndoCommands());
    EXPECT_TRUE(edits(copy, "V1: aabb"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
