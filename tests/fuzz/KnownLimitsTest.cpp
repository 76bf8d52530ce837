#include "fuzz/KnownLimits.h"

#include "fuzz/Stage.h"

#include "clipbin/ClipBoard.h"
#include "clipbin/Source.h"
#include "clipbin/SourceBin.h"
#include "commands/AddLeftEdgeModCmd.h"
#include "commands/AddMediaCmd.h"
#include "commands/CommandHistory.h"
#include "commands/CopySelectClippingCmd.h"
#include "commands/LinkCmd.h"
#include "commands/LoadSourceCmd.h"
#include "commands/MoveCmd.h"
#include "commands/MoveLeftEdgeModCmd.h"
#include "commands/RemoveLeftEdgeModCmd.h"
#include "commands/RemoveTrackCmd.h"
#include "commands/StretchCmd.h"
#include "commands/TrimEndCmd.h"
#include "commands/TrimStartCmd.h"
#include "commands/UnlinkCmd.h"
#include "commands/UnloadSourceCmd.h"
#include "edgemods/EdgeModification.h"
#include "edgemods/FadeInFunc.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/LinkException.h"
#include "exceptions/ValueException.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <limits>

namespace tarn {
namespace test {
namespace {

/// What the rules themselves make inexact: one test for each entry of the list.
class KnownLimitsTest : public Stage
{
protected:
    void trimStart(std::string const& row, long long start, long long by)
    {
        project->execute(TrimStartCmd::create(track(row), at(row, start), by));
    }
    void trimEnd(std::string const& row, long long start, long long by)
    {
        project->execute(TrimEndCmd::create(track(row), at(row, start), by));
    }
    void stretch(std::string const& row, long long start, double scalar)
    {
        project->execute(StretchCmd::create(track(row), at(row, start), scalar));
    }
    void add(std::string const& row, int pooled, long long time)
    {
        project->execute(AddMediaCmd::create(track(row), pool(pooled), time));
    }
};

TEST_F(KnownLimitsTest, ATrimOfAStretchedMediaSnapsItsStart)
{
    begin("V1: a");
    add("V1", 13, 100);  // of its source from 0 on, 20 long
    stretch("V1", 100, 3.0);
    trimStart("V1", 100, 4);
    EXPECT_DOUBLE_EQ(20 - 56 / 3.0, pool(13)->mediaRange().start);
    trimStart("V1", 104, -2);
    EXPECT_EQ(0.0, pool(13)->mediaRange().start);
    project->undo();
    EXPECT_EQ(0.0, pool(13)->mediaRange().start);
}

TEST_F(KnownLimitsTest, UndoOfAStretchIsCutAtTheFilesEnd)
{
    begin("V1: a");
    add("V1", 9, 100);  // of its source's 530 units from 500 on, 30 long
    trimEnd("V1", 100, -10);
    stretch("V1", 100, 2.0);
    project->undo();
    EXPECT_EQ(30, pool(9)->trackRange().duration);
}

TEST_F(KnownLimitsTest, ASecondStretchMayOverlapUnnoticed)
{
    begin("V1: aaa..bb");
    stretch("V1", 0, 0.5);
    stretch("V1", 0, 2.0);  // predicted is twice the present 15 units
    EXPECT_EQ(60, at("V1", 0)->trackRange().duration);
    EXPECT_EQ(50, at("V1", 50)->trackRange().start);
}

TEST_F(KnownLimitsTest, AGroupOfDifferentLimitsComesApart)
{
    begin("V1: a / A1: b");
    add("V1", 0, 100);
    add("A1", 10, 100);  // there are 530 units of its source
    project->execute(LinkCmd::create(pool(0), pool(10)));
    trimEnd("V1", 100, -510);
    EXPECT_EQ(540, pool(0)->trackRange().duration);
    EXPECT_EQ(30, pool(10)->trackRange().duration);
    EXPECT_THROW(project->undo(), LinkException);
}

TEST_F(KnownLimitsTest, UndoOfAStartTrimBelowZeroIsRefused)
{
    begin("V1: aaa");
    project->execute(MoveCmd::create(track("V1"), at("V1", 0), -10));
    trimStart("V1", -10, 20);
    EXPECT_THROW(project->undo(), ValueException<long long>);
}

TEST_F(KnownLimitsTest, UndoOfUnlinkingUnequalRangesIsRefused)
{
    begin("V1: aaa / V2: sss");  // the still begins at 0 of its source, the movie does not
    at("V1", 0)->link(at("V2", 0));
    project->execute(UnlinkCmd::create(at("V1", 0)));
    EXPECT_THROW(project->undo(), TarnMediaLibException);
}

TEST_F(KnownLimitsTest, AMediaWithoutLengthTakesTheEntry)
{
    begin("V1: aaa");
    add("V1", k_empty, 0);
    EXPECT_EQ(pool(k_empty), at("V1", 0));
    project->undo();
    EXPECT_EQ(boost::shared_ptr<Media>(), at("V1", 0));
}

TEST_F(KnownLimitsTest, WhatAMediaWithoutLengthHasReplacedCannotBeTakenOut)
{
    begin("V1: ");
    add("V1", 0, 0);
    add("V1", k_empty, 0);
    project->undo();
    try {
        project->undo();
        ADD_FAILURE() << "the media was found";
    } catch (TarnMediaLibException const& refusal) {
        EXPECT_STREQ("can't find media to remove", refusal.what());
    }
}

TEST_F(KnownLimitsTest, ALinkedMediaCanBeAddedApartFromItsGroup)
{
    begin("V1: aaa");
    boost::shared_ptr<Media> const placed = at("V1", 0);
    project->execute(LinkCmd::create(pool(0), placed));
    add("V1", 0, 120);
    EXPECT_TRUE(placed->isLinkedWith(pool(0)));
    EXPECT_NE(placed->trackRange(), pool(0)->trackRange());
}

TEST_F(KnownLimitsTest, UndoOfAnEdgeMoveForgetsWhatHadNoRoom)
{
    begin("V1: aaaaa");
    project->execute(MoveLeftEdgeModCmd::create(at("V1", 0), 80));
    project->execute(MoveLeftEdgeModCmd::create(at("V1", 0), -10));
    project->undo();
    trimEnd("V1", 0, -100);
    EXPECT_EQ(50, at("V1", 0)->leftEdgeModificationLength());
}

TEST_F(KnownLimitsTest, UndoOfAnEdgeRemovalAppends)
{
    begin("V1: aaa");
    boost::shared_ptr<Media> const media = at("V1", 0);
    auto const first = numberOf(media, 0);
    auto const second = numberOf(media, 1);
    project->execute(AddLeftEdgeModCmd::create(media, EdgeModification(first, FadeInFunc())));
    project->execute(AddLeftEdgeModCmd::create(media, EdgeModification(second, FadeInFunc())));
    project->execute(RemoveLeftEdgeModCmd::create(media, first));
    project->undo();
    EXPECT_EQ(second, media->leftEdgeModifications().front().parameter());
    EXPECT_EQ(first, media->leftEdgeModifications().back().parameter());
}

TEST_F(KnownLimitsTest, UndoOfUnloadingAppends)
{
    begin("V1: aaa");
    boost::shared_ptr<Source> const second = sourceAt(1);
    boost::shared_ptr<Source> const third = sourceAt(2);
    project->execute(UnloadSourceCmd::create(second));
    project->undo();
    EXPECT_EQ(third, sourceAt(1));
    EXPECT_TRUE(project->sourceBin()->containsSource(second));
}

TEST_F(KnownLimitsTest, ACopiedSelectionStaysOnTheBoard)
{
    begin("V1: aaa");
    project->execute(CopySelectClippingCmd::create(timeline(), {at("V1", 0)}, "copy"));
    project->undo();
    EXPECT_EQ(1u, project->clipBoard()->size());
    project->redo();
    EXPECT_EQ(2u, project->clipBoard()->size());
}

TEST_F(KnownLimitsTest, UndoOfASecondLoadTakesTheFirstOut)
{
    begin("V1: aaa");
    project->execute(LoadSourceCmd::create(std::string("fake:brief")));
    project->undo();
    EXPECT_FALSE(project->sourceBin()->isFileLoaded("fake:brief"));
}

TEST_F(KnownLimitsTest, ADroppedRemovalLeavesADeadLink)
{
    begin("V1: aaa / A1: aaa");
    project->commandHistory()->setUndoLimit(0);
    project->execute(RemoveTrackCmd<Track>::create(track("A1")));
    EXPECT_THROW(project->execute(MoveCmd::create(track("V1"), at("V1", 0), 10)),
                 DanglingWeakPtrException<Track const>);
}

TEST_F(KnownLimitsTest, AStillCanBeTrimmedBelowNothing)
{
    begin("V1: sss");
    EXPECT_TRUE(edits(TrimEndCmd::create(track("V1"), at("V1", 0), 40)));
    EXPECT_EQ(-10, at("V1", 0)->trackRange().duration);
}

TEST_F(KnownLimitsTest, AMoveToTheEndOfTimeDoesNotComeBack)
{
    begin("V1: ..aaa");
    boost::shared_ptr<Media> const media = at("V1", 20);
    long long const last = std::numeric_limits<long long>::max();
    project->execute(MoveCmd::create(track("V1"), media, last));
    EXPECT_EQ(last, media->trackRange().start);
    project->undo();
    EXPECT_EQ(0, media->trackRange().start);
}

TEST_F(KnownLimitsTest, WhatIsNotOnTheListIsAFault)
{
    begin("V1: aaa");
    Evidence evidence;
    evidence.op = Op::Move;
    evidence.phase = Phase::Undone;
    evidence.wanted = Fingerprint(*this);
    at("V1", 0)->move(10);
    evidence.found = Fingerprint(*this);
    evidence.differences = evidence.wanted.differences(evidence.found);
    EXPECT_EQ(1u, evidence.differences.size());
    EXPECT_TRUE(explanations(evidence).empty());
}

}  // namespace
}  // namespace test
}  // namespace tarn
