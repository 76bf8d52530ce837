#include "commands/TrimEndCmd.h"

#include "support/CommandXml.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"

#include "commands/CommandHistory.h"
#include "commands/CommandPair.h"
#include "commands/UnlinkCmd.h"
#include "exceptions/CollisionException.h"
#include "exceptions/LinkException.h"
#include "exceptions/ValueException.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

namespace tarn {
namespace test {

namespace {

class TrimEndCmdTest : public ModelTest
{
protected:
    /// A still linked with a video, then lengthened past what the video takes: 30 + 9990 edit units
    /// are more than the 10000 of its source. The video stays as it was.
    void comeApart()
    {
        given("V1: aaa / V2: sss");
        media("V1.a")->link(media("V2.s"));
        project->execute(trimEnd("V2.s", -999));
    }
};

}  // namespace

TEST_F(TrimEndCmdTest, APositiveOffsetShortensFromTheRight)
{
    given("V1: .aaabb");
    EXPECT_TRUE(edits(trimEnd("V1.a", +1), "V1: .aa.bb"));
    EXPECT_EQ(Range<double>(500, 20), media("V1.a")->mediaRange());
}

TEST_F(TrimEndCmdTest, ANegativeOffsetLengthensToTheRight)
{
    given("V1: .aaa..bb");
    EXPECT_TRUE(edits(trimEnd("V1.a", -2), "V1: .aaaaabb"));
    EXPECT_EQ(Range<double>(500, 50), media("V1.a")->mediaRange());
}

TEST_F(TrimEndCmdTest, AGroupIsTrimmedTogether)
{
    given("A1: aaab / A2: aaa / V1: aaa");
    EXPECT_TRUE(edits(trimEnd("A2.a", +2), "A1: a..b / A2: a / V1: a"));
}

TEST_F(TrimEndCmdTest, ByNothingIsAnEditAllTheSame)
{
    given("V1: aaa");
    EXPECT_TRUE(edits(trimEnd("V1.a", 0), "V1: aaa"));
}

TEST_F(TrimEndCmdTest, MayReachTheRightNeighbourAndNoFurther)
{
    given("V1: aaa.bb");
    EXPECT_TRUE(edits(trimEnd("V1.a", -1), "V1: aaaabb"));
    EXPECT_TRUE(refuses<CollisionException>(TrimEndCmd::create(track("V1"), media("V1.a"), -1)));
}

TEST_F(TrimEndCmdTest, ACollisionOfALinkedMediaAloneStopsTheWholeGroup)
{
    given("A1: aaa.b / V1: aaa");
    EXPECT_TRUE(refuses<CollisionException>(trimEnd("V1.a", -2)));
}

TEST_F(TrimEndCmdTest, ByTheWholeDurationIsRefused)
{
    given("V1: aaa");
    boost::shared_ptr<Command> const command = trimEnd("V1.a", +3);
    EXPECT_TRUE(refuses<ValueException<long long>>(command, "invalid media trim end offset"));
    auto const thrown = thrownBy<ValueException<long long>>([&] { project->execute(command); });
    EXPECT_EQ(30, thrown.value());
}

TEST_F(TrimEndCmdTest, ToOneEditUnitIsAllowed)
{
    given("V1: aaa");
    EXPECT_TRUE(edits(TrimEndCmd::create(track("V1"), media("V1.a"), 29), "V1: a[0,1)"));
}

TEST_F(TrimEndCmdTest, ToLessThanOneUnitOfTheSourceIsRefused)
{
    given("V1: aaa");
    project->execute(stretch("V1.a", 2.0));
    // One of 60 edit units would show half a unit of the source.
    EXPECT_TRUE(refuses<ValueException<long long>>(
        TrimEndCmd::create(track("V1"), media("V1.a"), 59), "invalid media trim end offset"));
    EXPECT_TRUE(edits(TrimEndCmd::create(track("V1"), media("V1.a"), 58)));
}

// Kept so: the new duration is held against the source's end, not the new end.
TEST_F(TrimEndCmdTest, MayBeLengthenedToTheLengthOfTheSourceThoughItStartsLater)
{
    given("V1: aaa");
    EXPECT_TRUE(edits(trimEnd("V1.a", -997)));
    EXPECT_EQ(Range<double>(500, 10000), media("V1.a")->mediaRange());
    EXPECT_TRUE(refuses<ValueException<long long>>(
        TrimEndCmd::create(track("V1"), media("V1.a"), -1), "invalid media trim end offset"));
}

TEST_F(TrimEndCmdTest, AMediaOfAnotherTrackIsRefused)
{
    given("V1: aaa / V2: bbb");
    boost::shared_ptr<Command> const command = TrimEndCmd::create(track("V2"), media("V1.a"), 10);
    EXPECT_TRUE(refuses<ValueException<boost::shared_ptr<Media const>>>(
        command, "media not found in track"));
}

TEST_F(TrimEndCmdTest, AStillMayBeTrimmedToNoAndToNegativeLength)
{
    given("V1: ..sss");
    EXPECT_TRUE(edits(trimEnd("V1.s", +3)));
    EXPECT_EQ(Range<long long>(20, 0), media("V1.s")->trackRange());
    EXPECT_TRUE(edits(trimEnd("V1.s", +1)));
    EXPECT_EQ(Range<long long>(20, -10), media("V1.s")->trackRange());
}

TEST_F(TrimEndCmdTest, TwoOnOneMediaCombineIntoTheirSum)
{
    given("V1: aaaa");
    project->execute(trimEnd("V1.a", +2));
    project->execute(trimEnd("V1.a", -1));
    project->combineLastCommands();
    EXPECT_EQ("V1: aaa", strip());
    project->undo();
    EXPECT_EQ("V1: aaaa", strip());
    EXPECT_FALSE(project->commandState().undoTop());
}

TEST_F(TrimEndCmdTest, OnTwoMediasTheyCombineIntoAPair)
{
    given("V1: aaabbb");
    boost::shared_ptr<Command> const both = trimEnd("V1.a", 1)->combine(trimEnd("V1.b", 1));
    EXPECT_TRUE(boost::dynamic_pointer_cast<CommandPair>(both));
}

TEST_F(TrimEndCmdTest, APartnersRefusalIsSwallowedAndUndoIsRefused)
{
    comeApart();
    EXPECT_EQ(Range<long long>(0, 10020), media("V2.s")->trackRange());
    EXPECT_EQ(Range<long long>(0, 30), media("V1.a")->trackRange());
    EXPECT_THROW(project->undo(), LinkException);
    EXPECT_EQ(Range<long long>(0, 10020), media("V2.s")->trackRange());
    EXPECT_FALSE(project->commandState().undoTop());
}

TEST_F(TrimEndCmdTest, MediasThatCameApartRefuseEveryEditOfEither)
{
    comeApart();
    EXPECT_TRUE(refuses<LinkException>(move("V1.a", 1)));
    EXPECT_TRUE(refuses<LinkException>(move("V2.s", 1)));
    EXPECT_TRUE(refuses<LinkException>(trimStart("V1.a", 1)));
    EXPECT_TRUE(refuses<LinkException>(trimEnd("V2.s", 1)));
    EXPECT_TRUE(refuses<LinkException>(stretch("V1.a", 2.0)));
    EXPECT_TRUE(refuses<LinkException>(split("V1", 1)));
    EXPECT_TRUE(refuses<LinkException>(split("V2", 1)));
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        UnlinkCmd::create(media("V1.a")),
        "unable to remove media link, somehow the track ranges aren't equal"));
}

TEST_F(TrimEndCmdTest, MediasThatCameApartCanBeRemoved)
{
    comeApart();
    EXPECT_TRUE(edits(remove("V1.a"), "V1: ..."));
}

TEST_F(TrimEndCmdTest, ATrimOfOneMediaAloneBringsThemTogetherAgain)
{
    comeApart();
    track("V2")->trimEnd(media("V2.s"), 9990, false);
    EXPECT_TRUE(edits(move("V1.a", 1), "V1: .aaa / V2: .sss"));
}

TEST_F(TrimEndCmdTest, ValidTrimEndTellsBeforehandWhichMediaWillNotFollow)
{
    given("V1: aaa / V2: sss");
    EXPECT_FALSE(media("V1.a")->validTrimEnd(-9990));
    EXPECT_TRUE(media("V2.s")->validTrimEnd(-9990));
}

TEST_F(TrimEndCmdTest, ACloneTrimsTheSame)
{
    given("V1: aaa");
    boost::shared_ptr<TrimEndCmd> const command =
        TrimEndCmd::create(track("V1"), media("V1.a"), 10);
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(command->clone()), "V1: aa"));
}

TEST_F(TrimEndCmdTest, PrintsWhereTrackAndMediaLieAndTheOffset)
{
    given("V1: aaa");
    EXPECT_EQ(emptyElement("TrimEndCmd", addressAttribute("track", track("V1")) + " " +
                                             addressAttribute("media", media("V1.a")) +
                                             " offset=\"10\""),
              xmlOf(*trimEnd("V1.a", 1)));
}

}  // namespace test
}  // namespace tarn
