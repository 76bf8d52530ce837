#include "commands/CutRangeClippingCmd.h"

#include "exceptions/TarnMediaLibException.h"
#include "support/ClippingText.h"
#include "support/ModelTest.h"
#include "support/Xml.h"

namespace tarn {
namespace test {
namespace {

class CutRangeClippingCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<CutRangeClippingCmd> cut(std::vector<std::string> const& trackNames,
                                               long long start, long long duration) const
    {
        auto const command =
            CutRangeClippingCmd::create(timeline(), Range<long long>(start, duration), "piece");
        for (std::string const& name : trackNames)
            command->addTrack(track(name));
        return command;
    }
};

TEST_F(CutRangeClippingCmdTest, AMiddlePieceGoesToTheBoard)
{
    given("V1: aaaaaa");
    auto const command = cut({"V1"}, 20, 20);
    EXPECT_TRUE(edits(command, "V1: aa..bb"));
    EXPECT_EQ("V1: (0,20)\n", placesIn(*command->clipping()));
    EXPECT_EQ("piece", command->clipping()->name());
}

TEST_F(CutRangeClippingCmdTest, MediasAreTakenOutAndTheBoardIsOneLonger)
{
    given("V1: aaabbb.cc");
    auto const command = cut({"V1"}, 10, 70);
    // What a cut leaves on its right is a new media.
    EXPECT_TRUE(edits(command, "V1: a.......d"));
    EXPECT_EQ("V1: (0,20) (20,30) (60,10)\n", placesIn(*command->clipping()));
    EXPECT_EQ(1u, numClippings(*project));
    project->undo();
    EXPECT_EQ("V1: aaabbb.cc", strip());
    EXPECT_EQ(0u, numClippings(*project));
}

TEST_F(CutRangeClippingCmdTest, RedoPutsANewClippingOnTheBoard)
{
    given("V1: aaa");
    auto const command = cut({"V1"}, 0, 30);
    project->execute(command);
    boost::shared_ptr<Clipping> const first = command->clipping();
    project->undo();
    project->redo();
    EXPECT_NE(first, command->clipping());
    ASSERT_EQ(1u, numClippings(*project));
    EXPECT_EQ(command->clipping(), project->clipBoard()->clippings().front());
    EXPECT_EQ("V1: (0,30)\n", placesIn(*command->clipping()));
}

TEST_F(CutRangeClippingCmdTest, BothHalvesOfALinkedPairAreCut)
{
    given("A1: aaaaaa / V1: aaaaaa");
    auto const command = cut({"V1", "A1"}, 20, 20);
    EXPECT_TRUE(edits(command, "A1: aa..bb / V1: aa..bb"));
    EXPECT_EQ("V1: (0,20)\nA1: (0,20)\n", placesIn(*command->clipping()));
}

TEST_F(CutRangeClippingCmdTest, TheCopyTakesWholeLinkedTracksAndTheRemovalOnlyLinks)
{
    given("A1: aaa.cc / V1: aaa");
    auto const command = cut({"V1"}, 0, 60);
    EXPECT_TRUE(edits(command, "A1: ....cc"));
    EXPECT_EQ("V1: (0,30)\nA1: (0,30) (40,20)\n", placesIn(*command->clipping()));
}

TEST_F(CutRangeClippingCmdTest, OtherTracksStay)
{
    given("V1: aaa / V2: bbb");
    auto const command = cut({"V2"}, 0, 30);
    EXPECT_TRUE(edits(command, "V1: aaa"));
}

TEST_F(CutRangeClippingCmdTest, WithoutTracksItIsRefused)
{
    given("V1: aaa");
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        cut({}, 0, 10), "can't perform a cut range clipping without tracks"));
    EXPECT_EQ(0u, numClippings(*project));
}

TEST_F(CutRangeClippingCmdTest, AnEmptyRangeIsRefused)
{
    given("V1: aaa");
    auto const command = cut({"V1"}, 30, 10);
    EXPECT_TRUE(
        refuses<TarnMediaLibException>(command, "trying to make a clipping with no medias"));
}

TEST_F(CutRangeClippingCmdTest, ACloneOfTheCommandHasACopyOfItsOwn)
{
    given("V1: aaa");
    auto const command = cut({"V1"}, 0, 30);
    boost::shared_ptr<CutRangeClippingCmd> const clone(command->clone());
    EXPECT_TRUE(edits(clone, ""));
    EXPECT_TRUE(clone->clipping());
    EXPECT_FALSE(command->clipping());
}

TEST_F(CutRangeClippingCmdTest, XmlIsTheNameAlone)
{
    given("V1: aaa");
    EXPECT_EQ("<CutRangeClippingCmd id=\"#\"  >\n</CutRangeClippingCmd>\n", xmlOf(*cut({}, 0, 9)));
}

}  // namespace
}  // namespace test
}  // namespace tarn
