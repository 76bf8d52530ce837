#include "commands/IntraMediaCutCmd.h"

#include "effects/Blur.h"
#include "effects/Effect.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/LinkException.h"
#include "exceptions/ValueException.h"
#include "support/CommandXml.h"
#include "support/Fades.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "timeline/ImageMedia.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <iterator>
#include <memory>

namespace tarn {
namespace test {
namespace {

using BadRange = ValueException<Range<long long>>;

char const* const k_spans = "range for intramedia cut spans multiple medias";
char const* const k_startsOutside = "intramedia cut range doesn't start in a media";
char const* const k_onBoundary = "trying to do an intramedia cut on clip boundries";

class IntraMediaCutCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<IntraMediaCutCmd> cut(std::string const& name, long long start,
                                            long long duration) const
    {
        return IntraMediaCutCmd::create(track(name), Range<long long>(start, duration));
    }
    boost::shared_ptr<Media> mediaAt(std::string const& name, long long time) const
    {
        return track(name)->mediaAtTime(time).second;
    }
};

TEST_F(IntraMediaCutCmdTest, CutsTheMiddleOutOfALinkedPair)
{
    given("A1: aaaaaa / V1: aaaaaa");
    EXPECT_TRUE(edits(cut("V1", 20, 20), "A1: aa..bb / V1: aa..bb"));
}

TEST_F(IntraMediaCutCmdTest, ThePiecesShowWhatTheyShowedBefore)
{
    given("V1: aaaaaaaaaa");
    EXPECT_TRUE(edits(cut("V1", 40, 20), "V1: aaaa..bbbb"));
    boost::shared_ptr<Media> const right = mediaAt("V1", 70);
    EXPECT_EQ(Range<long long>(0, 40), media("V1.a")->trackRange());
    EXPECT_EQ(Range<double>(500, 40), media("V1.a")->mediaRange());
    EXPECT_EQ(Range<long long>(60, 40), right->trackRange());
    EXPECT_EQ(Range<double>(560, 40), right->mediaRange());  // 500 and the 60 before it
}

TEST_F(IntraMediaCutCmdTest, AMediaInTheMiddleOfATrackIsCutWhereItLies)
{
    given("V1: c.aaaaaab");
    EXPECT_TRUE(edits(cut("V1", 30, 40), "V1: c.a....db"));
    EXPECT_EQ(Range<double>(550, 10), mediaAt("V1", 75)->mediaRange());  // 70 - 20 into a
}

TEST_F(IntraMediaCutCmdTest, ARangeOfNoLengthSplits)
{
    given("V1: aaaa");
    EXPECT_TRUE(edits(cut("V1", 20, 0), "V1: aabb"));
}

TEST_F(IntraMediaCutCmdTest, CutsAStretchedMedia)
{
    // 60 units of source over 120: 30 from 500 stay, and 40 / 2 = 20 from 540.
    given("V1: aaaaaa");
    project->execute(stretch("V1.a", 2.0));
    EXPECT_TRUE(edits(cut("V1", 60, 20), "V1: aaaaaa..bbbb"));
    EXPECT_EQ(Range<double>(500, 30), media("V1.a")->mediaRange());
    EXPECT_EQ(Range<double>(540, 20), mediaAt("V1", 90)->mediaRange());
    EXPECT_EQ(2.0, mediaAt("V1", 90)->scalar());
}

TEST_F(IntraMediaCutCmdTest, CutsAStillWhoseKeyFramesStayInPlace)
{
    given("V1: ssssss");
    EXPECT_TRUE(edits(cut("V1", 20, 20), "V1: ss..aa"));
    boost::shared_ptr<ImageMedia> const right =
        boost::dynamic_pointer_cast<ImageMedia>(mediaAt("V1", 50));
    EXPECT_EQ(40, right->trimStartSum());
}

// ---- Links ----

TEST_F(IntraMediaCutCmdTest, LeavesTwoLinkedPairs)
{
    given("A1: aaaaaa / V1: aaaaaa");
    project->execute(cut("A1", 20, 20));
    EXPECT_TRUE(mediaAt("V1", 50)->isLinkedWith(mediaAt("A1", 50)));
    EXPECT_TRUE(mediaAt("A1", 50)->isLinkedWith(mediaAt("V1", 50)));
    EXPECT_TRUE(media("V1.a")->isLinkedWith(media("A1.a")));
    EXPECT_FALSE(media("V1.a")->isLinkedWith(mediaAt("A1", 50)));
    EXPECT_FALSE(mediaAt("V1", 50)->isLinkedWith(media("V1.a")));
}

TEST_F(IntraMediaCutCmdTest, LeavesTwoGroupsOfThree)
{
    given("A1: aaaaaa / V1: aaaaaa / V2: aaaaaa");
    EXPECT_TRUE(edits(cut("V2", 20, 20), "A1: aa..bb / V1: aa..bb / V2: aa..bb"));
    boost::shared_ptr<Media> const right = mediaAt("V1", 50);
    EXPECT_EQ(2, std::distance(right->linkBegin(), right->linkEnd()));
    EXPECT_TRUE(right->isLinkedWith(mediaAt("A1", 50)));
    EXPECT_TRUE(right->isLinkedWith(mediaAt("V2", 50)));
}

TEST_F(IntraMediaCutCmdTest, LeavesUnlinkedMediasAlone)
{
    given("A1: bbbbbb / V1: aaaaaa / V2: cccccc");
    EXPECT_TRUE(edits(cut("V1", 20, 20), "A1: bbbbbb / V1: aa..dd / V2: cccccc"));
}

TEST_F(IntraMediaCutCmdTest, ALinkedMediaOfAnotherTrackRangeIsRefused)
{
    given("A1: bbbbb / V1: aaaaaa");
    media("A1.b")->link(media("V1.a"));
    LinkException const thrown =
        thrownBy<LinkException>([&] { project->execute(cut("V1", 20, 20)); });
    EXPECT_EQ(Range<long long>(0, 60), thrown.first());
    EXPECT_EQ(Range<long long>(0, 50), thrown.second());
    EXPECT_TRUE(refuses<LinkException>(cut("V1", 20, 20)));
}

TEST_F(IntraMediaCutCmdTest, ALinkedMediaOnNoTrackIsRefused)
{
    given("V1: aaaaaa");
    boost::shared_ptr<Media> const loose = freshVideo('a', 6);
    media("V1.a")->link(loose);
    EXPECT_TRUE(refuses<DanglingWeakPtrException<Track const>>(cut("V1", 20, 20), ""));
}

TEST_F(IntraMediaCutCmdTest, ADeadLinkIsRefused)
{
    given("V1: aaaaaa");
    media("V1.a")->link(freshVideo('a', 6));
    EXPECT_THROW(project->execute(cut("V1", 20, 20)), DanglingWeakPtrException<Media const>);
    EXPECT_EQ("V1: aaaaaa", strip());
}

// ---- What goes with which piece ----

TEST_F(IntraMediaCutCmdTest, TheFadeInStaysAndTheFadeOutGoesRight)
{
    given("V1: aaaaaaaaaa");
    giveFades(media("V1.a"), 10, 20);
    EXPECT_TRUE(edits(cut("V1", 40, 20), "V1: aaaa..bbbb"));
    boost::shared_ptr<Media> const right = mediaAt("V1", 70);
    EXPECT_EQ(1u, media("V1.a")->leftEdgeModifications().size());
    EXPECT_EQ(0u, media("V1.a")->rightEdgeModifications().size());
    EXPECT_EQ(10, media("V1.a")->leftEdgeModificationLength());
    EXPECT_EQ(0, media("V1.a")->rightEdgeModificationLength());
    EXPECT_EQ(0u, right->leftEdgeModifications().size());
    EXPECT_EQ(1u, right->rightEdgeModifications().size());
    EXPECT_EQ(0, right->leftEdgeModificationLength());
    EXPECT_EQ(20, right->rightEdgeModificationLength());
}

TEST_F(IntraMediaCutCmdTest, TheRightPieceHasEffectsOfItsOwn)
{
    given("V1: aaaaaa");
    media("V1.a")->addEffect(boost::shared_ptr<Effect>(new Blur(lock())));
    EXPECT_TRUE(edits(cut("V1", 20, 20), "V1: aa..bb"));
    boost::shared_ptr<Media> const right = mediaAt("V1", 50);
    EXPECT_EQ(1, media("V1.a")->numEffects());
    EXPECT_EQ(1, right->numEffects());
    EXPECT_NE(media("V1.a")->effectAtIndex(0), right->effectAtIndex(0));
}

TEST_F(IntraMediaCutCmdTest, RedoBringsBackTheVeryPieces)
{
    given("A1: aaaaaa / V1: aaaaaa");
    project->execute(cut("V1", 20, 20));
    boost::shared_ptr<Media> const picture = mediaAt("V1", 50);
    boost::shared_ptr<Media> const sound = mediaAt("A1", 50);
    project->undo();
    project->redo();
    EXPECT_EQ(picture, mediaAt("V1", 50));
    EXPECT_EQ(sound, mediaAt("A1", 50));
    EXPECT_TRUE(picture->isLinkedWith(sound));
}

TEST_F(IntraMediaCutCmdTest, UndoGivesBackTheOneMedia)
{
    given("A1: aaaaaa / V1: aaaaaa");
    project->execute(cut("V1", 20, 20));
    project->undo();
    EXPECT_EQ("A1: aaaaaa / V1: aaaaaa", strip());
    EXPECT_EQ(Range<double>(500, 60), media("V1.a")->mediaRange());
    EXPECT_TRUE(media("V1.a")->isLinkedWith(media("A1.a")));
}

// ---- Ranges that are refused ----

TEST_F(IntraMediaCutCmdTest, ARangeThatReachesTheMediasEndIsRefused)
{
    given("V1: aaaaaaaaaa");
    EXPECT_TRUE(refuses<BadRange>(cut("V1", 40, 60), k_spans));
}

TEST_F(IntraMediaCutCmdTest, ARangeThatReachesTheNextMediaIsRefused)
{
    given("V1: aaaabbbb");
    EXPECT_TRUE(refuses<BadRange>(cut("V1", 20, 20), k_spans));
}

TEST_F(IntraMediaCutCmdTest, ARangeIntoTheNextMediaIsRefused)
{
    given("V1: aaaabbbb");
    EXPECT_TRUE(refuses<BadRange>(cut("V1", 20, 40), k_spans));
}

TEST_F(IntraMediaCutCmdTest, ARangeIntoAGapIsRefused)
{
    given("V1: aaaa..bb");
    EXPECT_TRUE(refuses<BadRange>(cut("V1", 20, 30), k_spans));
}

TEST_F(IntraMediaCutCmdTest, ARangeFromAGapIsRefused)
{
    given("V1: aa..bbbb");
    EXPECT_TRUE(refuses<BadRange>(cut("V1", 30, 20), k_startsOutside));
}

TEST_F(IntraMediaCutCmdTest, ARangeFromAMediasEndIntoAGapIsRefused)
{
    given("V1: aa..bbbb");
    EXPECT_TRUE(refuses<BadRange>(cut("V1", 20, 10), k_startsOutside));
}

TEST_F(IntraMediaCutCmdTest, ARangeInsideAGapIsRefused)
{
    given("V1: aa....bb");
    EXPECT_TRUE(refuses<BadRange>(cut("V1", 30, 10), k_startsOutside));
}

TEST_F(IntraMediaCutCmdTest, ARangeOnAnEmptyTrackIsRefused)
{
    given("V2: aa");
    EXPECT_TRUE(refuses<BadRange>(cut("V1", 0, 10), k_startsOutside));
}

TEST_F(IntraMediaCutCmdTest, ARangeFromTheMediasStartIsRefused)
{
    given("V1: .aaaa");
    EXPECT_TRUE(refuses<BadRange>(cut("V1", 10, 20), k_onBoundary));
}

TEST_F(IntraMediaCutCmdTest, ARefusalCarriesTheRange)
{
    given("V1: .aaaa");
    BadRange const thrown = thrownBy<BadRange>([&] { project->execute(cut("V1", 10, 20)); });
    EXPECT_EQ(Range<long long>(10, 20), thrown.value());
}

TEST_F(IntraMediaCutCmdTest, ALeftPieceWithLessThanAUnitOfItsSourceIsRefused)
{
    given("V1: aaaaaa");
    project->execute(stretch("V1.a", 2.0));
    EXPECT_TRUE(
        refuses<ValueException<long long>>(cut("V1", 1, 50), "invalid media trim end offset"));
}

TEST_F(IntraMediaCutCmdTest, ARightPieceWithLessThanAUnitOfItsSourceIsRefused)
{
    given("V1: aaaaaa");
    project->execute(stretch("V1.a", 2.0));
    EXPECT_TRUE(
        refuses<ValueException<long long>>(cut("V1", 60, 59), "invalid media trim start offset"));
}

// ---- XML and copies ----

TEST_F(IntraMediaCutCmdTest, NamesNoMediaBeforeItHasRun)
{
    given("V1: aaaaaa");
    EXPECT_EQ(emptyElement("IntraMediaCutCmd", identAttribute("track", track("V1")) +
                                                   " media=\"0\" start=\"20\" duration=\"10\""),
              xmlOf(*cut("V1", 20, 10)));
}

TEST_F(IntraMediaCutCmdTest, NamesTheMediaItHasCut)
{
    given("V1: aaaaaa");
    boost::shared_ptr<IntraMediaCutCmd> const command = cut("V1", 20, 10);
    project->execute(command);
    EXPECT_EQ(emptyElement("IntraMediaCutCmd", identAttribute("track", track("V1")) + " " +
                                                   identAttribute("media", media("V1.a")) +
                                                   " start=\"20\" duration=\"10\""),
              xmlOf(*command));
}

TEST_F(IntraMediaCutCmdTest, ACloneHasRunNothing)
{
    given("V1: aaaaaa");
    boost::shared_ptr<IntraMediaCutCmd> const command = cut("V1", 20, 10);
    project->execute(command);
    project->undo();
    boost::shared_ptr<IntraMediaCutCmd> const copy(command->clone());
    EXPECT_EQ(0u, copy->numUndoCommands());
    EXPECT_TRUE(edits(copy, "V1: aa.bbb"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
