#include "commands/StretchCmd.h"

#include "support/CommandXml.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"

#include "commands/CommandHistory.h"
#include "commands/CommandPair.h"
#include "commands/TrimEndCmd.h"
#include "exceptions/CollisionException.h"
#include "exceptions/LinkException.h"
#include "exceptions/ValueException.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <limits>

namespace tarn {
namespace test {

using StretchCmdTest = ModelTest;

TEST_F(StretchCmdTest, ToTwoDoublesTheDurationAndKeepsStartAndSource)
{
    given("V1: .aaa...bb");
    EXPECT_TRUE(edits(stretch("V1.a", 2.0), "V1: .aaaaaabb"));
    EXPECT_EQ(Range<double>(500, 30), media("V1.a")->mediaRange());
    EXPECT_EQ(2.0, media("V1.a")->scalar());
}

TEST_F(StretchCmdTest, AGroupIsStretchedTogether)
{
    given("A1: aa / A2: aa / V1: aa");
    EXPECT_TRUE(edits(stretch("A1.a", 0.5), "A1: a / A2: a / V1: a"));
    EXPECT_EQ(0.5, media("V1.a")->scalar());
}

TEST_F(StretchCmdTest, TheScalarAppliedIsTheOneThatGivesAWholeDuration)
{
    given("V1: aaa");
    // 30 * 1.51 = 45.3, rounded 45; 45 / 30 = 1.5.
    boost::shared_ptr<StretchCmd> const command =
        StretchCmd::create(track("V1"), media("V1.a"), 1.51);
    EXPECT_TRUE(edits(command, "V1: a[0,45)"));
    EXPECT_EQ(1.5, command->actualScalar());
    EXPECT_EQ(1.5, media("V1.a")->scalar());
}

TEST_F(StretchCmdTest, AScalarIsAbsolute)
{
    given("V1: aaa");
    project->execute(stretch("V1.a", 2.0));
    EXPECT_TRUE(edits(stretch("V1.a", 1.0), "V1: aaa"));
    EXPECT_EQ(1.0, media("V1.a")->scalar());
}

TEST_F(StretchCmdTest, IntoANeighbourIsRefused)
{
    given("V1: aaa..bb");
    boost::shared_ptr<Command> const command = stretch("V1.a", 2.0);
    EXPECT_TRUE(refuses<CollisionException>(command));
    auto const thrown = thrownBy<CollisionException>([&] { project->execute(command); });
    EXPECT_EQ(CollisionException::MediaList{media("V1.b")}, *thrown.medias());
}

TEST_F(StretchCmdTest, ACollisionOfALinkedMediaAloneStopsTheWholeGroup)
{
    given("A1: aaa..b / V1: aaa");
    EXPECT_TRUE(refuses<CollisionException>(stretch("V1.a", 2.0)));
}

TEST_F(StretchCmdTest, ToNoDurationIsRefused)
{
    given("V1: aaa");
    // 30 * 0.001 = 0.03, rounded 0.
    boost::shared_ptr<Command> const command = stretch("V1.a", 0.001);
    EXPECT_TRUE(
        refuses<ValueException<double>>(command, "invalid duration after media stretch (<=0)"));
    auto const thrown = thrownBy<ValueException<double>>([&] { project->execute(command); });
    EXPECT_EQ(0.001, thrown.value());
}

TEST_F(StretchCmdTest, ToANegativeOrNoNumberIsRefused)
{
    given("V1: aaa");
    std::string const message = "invalid duration after media stretch (<=0)";
    EXPECT_TRUE(refuses<ValueException<double>>(stretch("V1.a", -1.0), message));
    EXPECT_TRUE(refuses<ValueException<double>>(
        stretch("V1.a", std::numeric_limits<double>::quiet_NaN()), message));
    EXPECT_TRUE(refuses<ValueException<double>>(
        stretch("V1.a", std::numeric_limits<double>::infinity()), message));
}

TEST_F(StretchCmdTest, AMediaOfAnotherTrackIsRefused)
{
    given("V1: aaa / V2: bbb");
    boost::shared_ptr<Command> const command = StretchCmd::create(track("V2"), media("V1.a"), 2.0);
    EXPECT_TRUE(refuses<ValueException<boost::shared_ptr<Media const>>>(
        command, "media not found in track"));
}

TEST_F(StretchCmdTest, TwoOnOneMediaCombineToTheLaterWhoseUndoGivesTheFirstsOldScalar)
{
    given("V1: aaa");
    project->execute(stretch("V1.a", 2.0));
    project->execute(stretch("V1.a", 3.0));
    project->combineLastCommands();
    project->undo();
    EXPECT_EQ("V1: aaa", strip());
    EXPECT_EQ(1.0, media("V1.a")->scalar());
    EXPECT_FALSE(project->commandState().undoTop());
    project->redo();
    EXPECT_EQ("V1: aaaaaaaaa", strip());
}

TEST_F(StretchCmdTest, TheCombinedCommandHasTheLatersRequestAndResultAndTheFirstsOldScalar)
{
    given("V1: aaa");
    boost::shared_ptr<Command> const first = stretch("V1.a", 2.0);
    boost::shared_ptr<Command> const second = stretch("V1.a", 1.51);
    project->execute(first);
    project->execute(second);
    EXPECT_EQ(emptyElement("StretchCmd",
                           identAttribute("track", track("V1")) + " " +
                               identAttribute("media", media("V1.a")) +
                               " requestedScalar=\"1.51\" oldScalar=\"1\" actualScalar=\"1.5\""),
              xmlOf(*first->combine(second)));
}

TEST_F(StretchCmdTest, OnTwoMediasOrWithAnotherCommandItCombinesIntoAPair)
{
    given("V1: aaabbb / V2: c");
    boost::shared_ptr<Command> const command = stretch("V1.a", 0.5);
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(command->combine(stretch("V1.b", 0.5))));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(command->combine(move("V1.a", 5))));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(
        command->combine(StretchCmd::create(track("V2"), media("V1.a"), 0.5))));
}

// 9990 from 500 reaches past the source's end at 10000, where natural speed is cut.
TEST_F(StretchCmdTest, UndoToNaturalSpeedIsCutAtTheSourcesEndAndATrimBelowItIsThenRefused)
{
    given("V1: aaa");
    project->execute(trimEnd("V1.a", -996));
    project->execute(stretch("V1.a", 2.0));
    EXPECT_EQ(Range<long long>(0, 19980), media("V1.a")->trackRange());
    project->undo();
    EXPECT_EQ(Range<long long>(0, 9500), media("V1.a")->trackRange());
    EXPECT_EQ(1.0, media("V1.a")->scalar());
    EXPECT_THROW(project->undo(), ValueException<long long>);
}

TEST_F(StretchCmdTest, AStillHasNoEndToBeCutAt)
{
    given("V1: sss");
    project->execute(trimEnd("V1.s", -996));
    EXPECT_TRUE(edits(stretch("V1.s", 2.0)));
    project->undo();
    EXPECT_EQ(Range<long long>(0, 9990), media("V1.s")->trackRange());
}

TEST_F(StretchCmdTest, LinkedMediasWithDifferentEndsComeApartAtNaturalSpeed)
{
    given("V1: aaa / V2: sss");
    media("V1.a")->link(media("V2.s"));
    project->execute(trimEnd("V1.a", -996));
    project->execute(stretch("V1.a", 2.0));
    project->undo();
    EXPECT_EQ(9500, media("V1.a")->trackRange().duration);
    EXPECT_EQ(9990, media("V2.s")->trackRange().duration);
    EXPECT_THROW(project->undo(), LinkException);
}

// 30 to 45; less 11 is 34 at 1.5, which is 22.67 or 23 at 1; 23 * 1.5 = 34.5, rounded 35.
TEST_F(StretchCmdTest, ATrimBetweenTwoStretchesCanShiftTheLengthByAUnit)
{
    given("V1: aaa");
    project->execute(stretch("V1.a", 1.5));
    project->execute(TrimEndCmd::create(track("V1"), media("V1.a"), 11));
    project->execute(stretch("V1.a", 1.0));
    EXPECT_EQ(23, media("V1.a")->trackRange().duration);
    project->undo();
    EXPECT_EQ(35, media("V1.a")->trackRange().duration);
}

// The prediction is 15 * 2 = 30, the outcome 30 * 2 = 60.
TEST_F(StretchCmdTest, ASecondStretchCanCreateAnOverlapUnnoticedAndUndoIsExact)
{
    given("V1: aaa.bb");
    project->execute(stretch("V1.a", 0.5));
    EXPECT_TRUE(project->execute(stretch("V1.a", 2.0)));
    EXPECT_EQ(Range<long long>(0, 60), media("V1.a")->trackRange());
    EXPECT_EQ(Range<long long>(40, 20), media("V1.b")->trackRange());
    project->undo();
    EXPECT_EQ("V1: a[0,15) b[40,60)", strip());
    project->undo();
    EXPECT_EQ("V1: aaa.bb", strip());
}

TEST_F(StretchCmdTest, UndoOfWhatRanAfterAnUnnoticedOverlapMayCollide)
{
    given("V1: aaa.bb");
    project->execute(stretch("V1.a", 0.5));
    project->execute(stretch("V1.a", 2.0));
    project->execute(move("V1.b", 3));
    EXPECT_THROW(project->undo(), CollisionException);
    EXPECT_EQ(Range<long long>(70, 20), media("V1.b")->trackRange());
    EXPECT_EQ(2u, project->commandHistory()->numUndoCommands());
    EXPECT_EQ(0u, project->commandHistory()->numRedoCommands());
}

TEST_F(StretchCmdTest, ACloneStretchesTheSame)
{
    given("V1: aaa");
    boost::shared_ptr<StretchCmd> const command =
        StretchCmd::create(track("V1"), media("V1.a"), 2.0);
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(command->clone()), "V1: aaaaaa"));
}

TEST_F(StretchCmdTest, PrintsTrackMediaAndItsThreeScalars)
{
    given("V1: aaa");
    boost::shared_ptr<Command> const command = stretch("V1.a", 2.5);
    project->execute(command);
    EXPECT_EQ(emptyElement("StretchCmd",
                           identAttribute("track", track("V1")) + " " +
                               identAttribute("media", media("V1.a")) +
                               " requestedScalar=\"2.5\" oldScalar=\"1\" actualScalar=\"2.5\""),
              xmlOf(*command));
}

}  // namespace test
}  // namespace tarn
