#include "commands/PutClippingCmd.h"

#include "commands/LayClippingTest.h"
#include "exceptions/CollisionException.h"
#include "support/Thrown.h"
#include "support/Xml.h"

#include <gmock/gmock.h>

#include <sstream>

namespace tarn {
namespace test {
namespace {

using PutClippingCmdTest = LayClippingTest;

TEST_F(PutClippingCmdTest, AClippingIsLaidIntoAGap)
{
    given("V1: aaa..b / V2: cc");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V2.c")});
    auto const command = PutClippingCmd::create(clipping, 30);
    mapPicture(*command, *clipping, 0, 0);
    EXPECT_TRUE(edits(command, "V1: aaaddb / V2: cc"));
}

TEST_F(PutClippingCmdTest, MediasKeepTheirDistances)
{
    given("V1: .aa.b");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a"), media("V1.b")});
    boost::shared_ptr<PutClippingCmd> const command(new PutClippingCmd(clipping, 60));
    mapPicture(*command, *clipping, 0, 0);
    EXPECT_TRUE(edits(command, "V1: .aa.b.cc.d"));
}

TEST_F(PutClippingCmdTest, PictureAndSoundComeApart)
{
    given("A1: aaa / V1: aaa");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a"), media("A1.a")});
    auto const command = PutClippingCmd::create(clipping, 40);
    mapPicture(*command, *clipping, 0, 0);
    mapSound(*command, *clipping, 0, 0);
    // Two letters: the pasted ones are not linked.
    EXPECT_TRUE(edits(command, "A1: aaa.bbb / V1: aaa.ccc"));
}

TEST_F(PutClippingCmdTest, ATrackWithoutAMappingIsNotPasted)
{
    given("A1: aaa / V1: aaa");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a"), media("A1.a")});
    auto const command = PutClippingCmd::create(clipping, 40);
    mapSound(*command, *clipping, 0, 0);
    EXPECT_TRUE(edits(command, "A1: aaa.bbb / V1: aaa"));
}

TEST_F(PutClippingCmdTest, WithoutMappingsNothingIsPasted)
{
    given("V1: aaa");
    EXPECT_TRUE(edits(PutClippingCmd::create(clippingOf({media("V1.a")}), 40), "V1: aaa"));
}

TEST_F(PutClippingCmdTest, ATrackMappedTwiceIsPastedTwice)
{
    given("V1: aaa / V2: b");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    auto const command = PutClippingCmd::create(clipping, 40);
    mapPicture(*command, *clipping, 0, 0);
    mapPicture(*command, *clipping, 0, 1);
    EXPECT_TRUE(edits(command, "V1: aaa.ccc / V2: b...ddd"));
}

TEST_F(PutClippingCmdTest, AClippingCanBePastedAgainAndAgain)
{
    given("V1: aaa");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    auto const first = PutClippingCmd::create(clipping, 30);
    auto const second = PutClippingCmd::create(clipping, 60);
    mapPicture(*first, *clipping, 0, 0);
    mapPicture(*second, *clipping, 0, 0);
    EXPECT_TRUE(edits(first, "V1: aaabbb"));
    EXPECT_TRUE(edits(second, "V1: aaabbbccc"));
    EXPECT_EQ("V1: (0,30)\n", placesIn(*clipping));
}

TEST_F(PutClippingCmdTest, WhatIsPastedShowsTheSamePiece)
{
    given("V1: aaa");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    auto const command = PutClippingCmd::create(clipping, 30);
    mapPicture(*command, *clipping, 0, 0);
    project->execute(command);
    boost::shared_ptr<Media> const pasted = track("V1")->mediaAtTime(30).second;
    EXPECT_EQ(media("V1.a")->mediaRange(), pasted->mediaRange());
    EXPECT_TRUE(pasted->isInstanceOf(source('a')));
}

TEST_F(PutClippingCmdTest, ATakenPlaceIsRefused)
{
    given("V1: aaa..b");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    auto const command = PutClippingCmd::create(clipping, 30);
    mapPicture(*command, *clipping, 0, 0);
    EXPECT_TRUE(refuses<CollisionException>(command));
}

TEST_F(PutClippingCmdTest, ACollisionNamesWhatIsInTheWay)
{
    given("V1: aaa..b");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    auto const command = PutClippingCmd::create(clipping, 30);
    mapPicture(*command, *clipping, 0, 0);
    auto const thrown = thrownBy<CollisionException>([&] { project->execute(command); });
    ASSERT_EQ(1u, thrown.medias()->size());
    EXPECT_EQ(media("V1.b"), thrown.medias()->front());
}

TEST_F(PutClippingCmdTest, WhenTheSoundFindsNoRoomThePictureIsTakenBack)
{
    given("A1: aaa.bb / V1: aaa");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a"), media("A1.a")});
    auto const command = PutClippingCmd::create(clipping, 30);
    mapPicture(*command, *clipping, 0, 0);
    mapSound(*command, *clipping, 0, 0);
    EXPECT_TRUE(refuses<CollisionException>(command));
}

TEST_F(PutClippingCmdTest, MappingsCanBeAskedFor)
{
    given("V1: aaa / V2: b");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a"), media("V2.b")});
    auto const command = PutClippingCmd::create(clipping, 30);
    mapPicture(*command, *clipping, 0, 1);
    EXPECT_TRUE(command->hasMapping<AbstractVisualTrack>(visualTrackOf(*clipping, 0)));
    EXPECT_FALSE(command->hasMapping<AbstractVisualTrack>(visualTrackOf(*clipping, 1)));
    EXPECT_EQ(track("V2"), command->mappedTrack<AbstractVisualTrack>(visualTrackOf(*clipping, 0)));
    EXPECT_FALSE(command->mappedTrack<AbstractVisualTrack>(visualTrackOf(*clipping, 1)));
}

TEST_F(PutClippingCmdTest, ACloneOfTheCommandHasTheMappings)
{
    given("V1: aaa");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    auto const command = PutClippingCmd::create(clipping, 30);
    mapPicture(*command, *clipping, 0, 0);
    boost::shared_ptr<Command> const clone(command->clone());
    EXPECT_TRUE(edits(clone, "V1: aaabbb"));
}

TEST_F(PutClippingCmdTest, XmlTellsClippingAndTimeAndThenTheMappings)
{
    given("V1: aaa");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    std::ostringstream start;
    start << "<PutClippingCmd id=\"#\" clipping=\"" << clipping->xmlIdent() << "\" time=\"30\" >\n"
          << " <AddTimelinesTracksCmd id=\"#\" time=\"30\" clip=\"";
    std::string const xml = xmlOf(*PutClippingCmd::create(clipping, 30));
    EXPECT_THAT(xml, ::testing::StartsWith(start.str()));
    EXPECT_THAT(xml, ::testing::EndsWith(" </AddTimelinesTracksCmd>\n</PutClippingCmd>\n"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
