#include "commands/TrimStartCmd.h"

#include "support/CommandXml.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"

#include "commands/CommandHistory.h"
#include "commands/CommandPair.h"
#include "exceptions/CollisionException.h"
#include "exceptions/LinkException.h"
#include "exceptions/ValueException.h"
#include "timeline/IMFile.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

namespace tarn {
namespace test {

using TrimStartCmdTest = ModelTest;

TEST_F(TrimStartCmdTest, APositiveOffsetShortensFromTheLeft)
{
    given("V1: .aaabb");
    EXPECT_TRUE(edits(trimStart("V1.a", +1), "V1: ..aabb"));
    EXPECT_EQ(Range<double>(510, 20), media("V1.a")->mediaRange());
}

TEST_F(TrimStartCmdTest, ANegativeOffsetLengthensToTheLeft)
{
    given("V1: ..aaabb");
    EXPECT_TRUE(edits(trimStart("V1.a", -2), "V1: aaaaabb"));
    EXPECT_EQ(Range<double>(480, 50), media("V1.a")->mediaRange());
}

TEST_F(TrimStartCmdTest, AGroupIsTrimmedTogether)
{
    given("A1: .aaab / A2: .aaa / V1: .aaa");
    EXPECT_TRUE(edits(trimStart("V1.a", +2), "A1: ...ab / A2: ...a / V1: ...a"));
}

TEST_F(TrimStartCmdTest, ByNothingIsAnEditAllTheSame)
{
    given("V1: .aaa");
    EXPECT_TRUE(edits(trimStart("V1.a", 0), "V1: .aaa"));
}

TEST_F(TrimStartCmdTest, MayReachTheLeftNeighbourAndNoFurther)
{
    given("V1: bb.aaa");
    EXPECT_TRUE(edits(trimStart("V1.a", -1), "V1: bbaaaa"));
    EXPECT_TRUE(refuses<CollisionException>(TrimStartCmd::create(track("V1"), media("V1.a"), -1)));
}

TEST_F(TrimStartCmdTest, ACollisionOfALinkedMediaAloneStopsTheWholeGroup)
{
    given("A1: b.aaa / V1: ..aaa");
    EXPECT_TRUE(refuses<CollisionException>(trimStart("V1.a", -2)));
}

TEST_F(TrimStartCmdTest, BeforeTheSourcesStartIsRefused)
{
    given(std::string("V1: ") + std::string(60, '.') + "aaa");
    // From 500 on the source's clock, 510 is ten too many; 500 is just right.
    boost::shared_ptr<Command> const command = trimStart("V1.a", -51);
    EXPECT_TRUE(refuses<ValueException<long long>>(command, "invalid media trim start offset"));
    auto const thrown = thrownBy<ValueException<long long>>([&] { project->execute(command); });
    EXPECT_EQ(-510, thrown.value());
    EXPECT_TRUE(edits(trimStart("V1.a", -50)));
    EXPECT_EQ(Range<double>(0, 530), media("V1.a")->mediaRange());
}

TEST_F(TrimStartCmdTest, BelowZeroIsRefusedThoughTheSourceReachesFurther)
{
    given("V1: .aaa");
    EXPECT_TRUE(refuses<ValueException<long long>>(trimStart("V1.a", -2),
                                                   "invalid media trim start offset"));
}

TEST_F(TrimStartCmdTest, ByTheWholeDurationIsRefused)
{
    given("V1: aaa");
    EXPECT_TRUE(refuses<ValueException<long long>>(trimStart("V1.a", +3),
                                                   "invalid media trim start offset"));
}

TEST_F(TrimStartCmdTest, AMediaOfAnotherTrackIsRefused)
{
    given("V1: aaa / V2: bbb");
    boost::shared_ptr<Command> const command = TrimStartCmd::create(track("V2"), media("V1.a"), 10);
    EXPECT_TRUE(refuses<ValueException<boost::shared_ptr<Media const>>>(
        command, "media not found in track"));
}

TEST_F(TrimStartCmdTest, AStillKeepsItsMediaRange)
{
    given("V1: ..sss");
    Range<double> const before = media("V1.s")->mediaRange();
    EXPECT_TRUE(edits(trimStart("V1.s", +1), "V1: ...ss"));
    EXPECT_EQ(before, media("V1.s")->mediaRange());
}

TEST_F(TrimStartCmdTest, AStillMayBeTrimmedToNothingAndBelowZero)
{
    given("V1: ..sss");
    EXPECT_TRUE(edits(trimStart("V1.s", +3)));
    EXPECT_EQ(Range<long long>(50, 0), media("V1.s")->trackRange());
    project->undo();
    EXPECT_TRUE(project->execute(trimStart("V1.s", -4)));
    EXPECT_EQ(Range<long long>(-20, 70), media("V1.s")->trackRange());
}

// Without length it collides with nothing, yet it would take the neighbour's place in the track.
TEST_F(TrimStartCmdTest, AStillTrimmedToNothingMayNotTakeAnOccupiedStart)
{
    given("V1: sssaa");
    boost::shared_ptr<Command> const command = trimStart("V1.s", +3);
    EXPECT_TRUE(refuses<CollisionException>(command));
    auto const thrown = thrownBy<CollisionException>([&] { project->execute(command); });
    EXPECT_EQ(CollisionException::MediaList{media("V1.a")}, *thrown.medias());
}

TEST_F(TrimStartCmdTest, ALinkedStillTrimmedToNothingMayNotTakeAnOccupiedStartEither)
{
    given("V1: sss / V2: sssaa");
    EXPECT_TRUE(refuses<CollisionException>(trimStart("V1.s", +3)));
}

TEST_F(TrimStartCmdTest, TwoOnOneMediaCombineIntoTheirSum)
{
    given("V1: .aaaa");
    project->execute(trimStart("V1.a", +2));
    project->execute(trimStart("V1.a", -3));
    project->combineLastCommands();
    EXPECT_EQ("V1: aaaaa", strip());
    project->undo();
    EXPECT_EQ("V1: .aaaa", strip());
    EXPECT_FALSE(project->commandState().undoTop());
}

TEST_F(TrimStartCmdTest, WithATrimOfTheEndItCombinesIntoAPair)
{
    given("V1: aaa");
    boost::shared_ptr<Command> const both = trimStart("V1.a", 1)->combine(trimEnd("V1.a", 1));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

// A media start under one snaps to 0 and forgets the fraction: 500 - 999 / 2 is 0.5.
TEST_F(TrimStartCmdTest, UndoOnAStretchedMediaKeepsAMediaStartThatSnapped)
{
    given(std::string("V1: ") + std::string(100, '.') + "aaa");
    project->execute(stretch("V1.a", 2.0));
    project->execute(TrimStartCmd::create(track("V1"), media("V1.a"), -999));
    EXPECT_EQ(Range<double>(0, 529.5), media("V1.a")->mediaRange());
    project->undo();
    EXPECT_EQ(Range<long long>(1000, 60), media("V1.a")->trackRange());
    EXPECT_EQ(Range<double>(499.5, 30), media("V1.a")->mediaRange());
}

TEST_F(TrimStartCmdTest, UndoOfATrimFromBelowZeroIsRefusedAndTheStepIsLost)
{
    given("V1: aaa");
    project->execute(move("V1.a", -2));
    project->execute(TrimStartCmd::create(track("V1"), media("V1.a"), 25));
    auto const thrown = thrownBy<ValueException<long long>>([&] { project->undo(); });
    EXPECT_STREQ("invalid media trim start offset", thrown.what());
    EXPECT_EQ(Range<long long>(5, 5), media("V1.a")->trackRange());
    EXPECT_EQ(1u, project->commandHistory()->numUndoCommands());
    EXPECT_EQ(0u, project->commandHistory()->numRedoCommands());
}

TEST_F(TrimStartCmdTest, APartnersRefusalIsSwallowedAndUndoIsRefused)
{
    given(std::string("V1: ") + std::string(60, '.') + "aaa / V2: " + std::string(60, '.') + "sss");
    media("V1.a")->link(media("V2.s"));
    EXPECT_TRUE(project->execute(trimStart("V2.s", -51)));
    EXPECT_EQ(Range<long long>(90, 540), media("V2.s")->trackRange());
    EXPECT_EQ(Range<long long>(600, 30), media("V1.a")->trackRange());
    EXPECT_THROW(project->undo(), LinkException);
    EXPECT_EQ(Range<long long>(90, 540), media("V2.s")->trackRange());
    EXPECT_FALSE(project->commandState().undoTop());
}

TEST_F(TrimStartCmdTest, ACloneTrimsTheSame)
{
    given("V1: aaa");
    boost::shared_ptr<TrimStartCmd> const command =
        TrimStartCmd::create(track("V1"), media("V1.a"), 10);
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(command->clone()), "V1: .aa"));
}

TEST_F(TrimStartCmdTest, PrintsWhereTrackAndMediaLieAndTheOffset)
{
    given("V1: aaa");
    EXPECT_EQ(emptyElement("TrimStartCmd", addressAttribute("track", track("V1")) + " " +
                                               addressAttribute("media", media("V1.a")) +
                                               " offset=\"10\""),
              xmlOf(*trimStart("V1.a", 1)));
}

}  // namespace test
}  // namespace tarn
