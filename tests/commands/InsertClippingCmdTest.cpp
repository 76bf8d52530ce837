#include "commands/InsertClippingCmd.h"

#include "commands/LayClippingTest.h"
#include "exceptions/CollisionException.h"
#include "support/Xml.h"

#include <gmock/gmock.h>

#include <sstream>

namespace tarn {
namespace test {
namespace {

class InsertClippingCmdTest : public LayClippingTest
{
protected:
    /// A command that lays the first picture track of the clipping on V1.
    boost::shared_ptr<InsertClippingCmd> insertOnV1(boost::shared_ptr<Clipping> const& clipping,
                                                    long long time) const
    {
        auto const command = InsertClippingCmd::create(clipping, time);
        mapPicture(*command, *clipping, 0, 0);
        return command;
    }
};

TEST_F(InsertClippingCmdTest, LinkedMediasAreCutOnceAndTheClippingGoesBetween)
{
    given("A1: aaaa / V1: aaaa / V2: cc");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V2.c")});
    EXPECT_TRUE(edits(insertOnV1(clipping, 20), "A1: aa..bb / V1: aaddbb / V2: cc"));
}

TEST_F(InsertClippingCmdTest, UnlinkedMediasAreCutOnEachTrack)
{
    given("A1: bbbb / V1: aaaa / V2: cc");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V2.c")});
    EXPECT_TRUE(edits(insertOnV1(clipping, 20), "A1: bb..dd / V1: aaeeff / V2: cc"));
}

TEST_F(InsertClippingCmdTest, TracksWithoutAMappingMoveAsideToo)
{
    given("A1: ..bb / V1: aa / V2: ..cc");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    EXPECT_TRUE(edits(insertOnV1(clipping, 20), "A1: ....bb / V1: aadd / V2: ....cc"));
}

TEST_F(InsertClippingCmdTest, ATrackOfTheClippingWithoutAMappingIsNotPasted)
{
    given("A1: aa / V1: aa.e");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a"), media("A1.a")});
    EXPECT_TRUE(edits(insertOnV1(clipping, 20), "A1: aa / V1: aabb.e"));
}

TEST_F(InsertClippingCmdTest, WithoutMappingsOnlyTheGapOpens)
{
    given("A1: bbbb / V1: aa");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    EXPECT_TRUE(edits(InsertClippingCmd::create(clipping, 20), "A1: bb..cc / V1: aa"));
}

TEST_F(InsertClippingCmdTest, TheGapIsAsLongAsTheWholeClipping)
{
    given("A1: ....b / V1: aa...e");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a"), media("A1.b")});
    auto const command = insertOnV1(clipping, 20);
    mapSound(*command, *clipping, 0, 0);
    // From a's start to b's end it is 50: e goes from 50 to 100, b from 40 to 90, b's copy to 60.
    EXPECT_TRUE(edits(command, "A1: ......c..b / V1: aadd......e"));
}

TEST_F(InsertClippingCmdTest, GapsBehindTheTimeTravelAlong)
{
    given("V1: a..b.c");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    EXPECT_TRUE(edits(insertOnV1(clipping, 20), "V1: a.d.b.c"));
}

TEST_F(InsertClippingCmdTest, AtTheStartEverythingMoves)
{
    given("A1: aabb / V1: aabb");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    EXPECT_TRUE(edits(insertOnV1(clipping, 0), "A1: ..aabb / V1: ccaabb"));
}

TEST_F(InsertClippingCmdTest, BehindTheEndNothingMoves)
{
    given("A1: aa / V1: aa");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    EXPECT_TRUE(edits(insertOnV1(clipping, 50), "A1: aa / V1: aa...bb"));
}

TEST_F(InsertClippingCmdTest, PastedPictureAndSoundAreNotLinked)
{
    given("A1: aa / V1: aa");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a"), media("A1.a")});
    auto const command = insertOnV1(clipping, 20);
    mapSound(*command, *clipping, 0, 0);
    EXPECT_TRUE(edits(command, "A1: aabb / V1: aacc"));
}

TEST_F(InsertClippingCmdTest, WhenTheClippingsOwnTracksCollideTheGapIsClosedAgain)
{
    given("A1: aaaa / V1: aaaa / V2: cc");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a"), media("V2.c")});
    auto const command = insertOnV1(clipping, 20);
    mapPicture(*command, *clipping, 1, 0);
    EXPECT_TRUE(refuses<CollisionException>(command));
}

TEST_F(InsertClippingCmdTest, WithoutAnAudioMixerThePicturesAreServed)
{
    given("V1: aaaa / V2: cc");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V2.c")});
    timeline()->removeAudioMixer();
    EXPECT_TRUE(edits(insertOnV1(clipping, 20), "V1: aabbdd / V2: cc"));
}

TEST_F(InsertClippingCmdTest, WithoutAVisualMixerTheSoundsAreServed)
{
    given("A1: aaaa / A2: cc");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("A2.c")});
    timeline()->removeVisualMixer();
    auto const command = InsertClippingCmd::create(clipping, 20);
    mapSound(*command, *clipping, 0, 0);
    EXPECT_TRUE(edits(command, "A1: aabbdd / A2: cc"));
}

TEST_F(InsertClippingCmdTest, WithoutMixersThereIsNothingToOpen)
{
    given("V1: aaaa");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    timeline()->removeAudioMixer();
    timeline()->removeVisualMixer();
    EXPECT_TRUE(edits(InsertClippingCmd::create(clipping, 20), ""));
}

TEST_F(InsertClippingCmdTest, ACloneOfTheCommandHasTheMappings)
{
    given("V1: aaaa");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    boost::shared_ptr<Command> const clone(insertOnV1(clipping, 20)->clone());
    EXPECT_TRUE(edits(clone, "V1: aabbbbcc"));
}

TEST_F(InsertClippingCmdTest, XmlTellsClippingAndTimeAndThenTheMappings)
{
    given("V1: aaa");
    boost::shared_ptr<Clipping> const clipping = clippingOf({media("V1.a")});
    std::ostringstream start;
    start << "<InsertClippingCmd id=\"#\" clipping=\"" << clipping->xmlIdent()
          << "\" time=\"20\" >\n <AddTimelinesTracksCmd id=\"#\" time=\"20\" clip=\"";
    std::string const xml = xmlOf(*InsertClippingCmd::create(clipping, 20));
    EXPECT_THAT(xml, ::testing::StartsWith(start.str()));
    EXPECT_THAT(xml, ::testing::EndsWith(" </AddTimelinesTracksCmd>\n</InsertClippingCmd>\n"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
