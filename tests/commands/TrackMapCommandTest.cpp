#include "commands/TrackMapCommand.h"

#include "support/CommandXml.h"
#include "support/LoadingTest.h"

#include "exceptions/CollisionException.h"

namespace tarn {
namespace test {

namespace {

/// The least a command of the family does.
class CopyTracksCmd : public TrackMapCommand
{
public:
    static boost::shared_ptr<CopyTracksCmd> create(boost::shared_ptr<Timeline const> const& from,
                                                   long long time)
    {
        return boost::shared_ptr<CopyTracksCmd>(new CopyTracksCmd(from, time));
    }

    CopyTracksCmd* clone() const override { return new CopyTracksCmd(*this); }
    void xmlName(XMLable::Options& options) const override { *options.stream << "CopyTracksCmd"; }
    void xmlAttributes(XMLable::Options&) const override {}

protected:
    void executeCommands(CommandHandler const*) override { addMappedTracks(); }

private:
    using TrackMapCommand::TrackMapCommand;
};

class TrackMapCommandTest : public LoadingTest
{
protected:
    boost::shared_ptr<CopyTracksCmd> copyFrom(boost::shared_ptr<Timeline const> const& from,
                                              long long cells) const
    {
        return CopyTracksCmd::create(from, cells * 10);
    }
};

}  // namespace

TEST_F(TrackMapCommandTest, ClonesAllMediasOfATrackShiftedByItsTime)
{
    given("V1: .aa.ss / V2: cc");
    boost::shared_ptr<CopyTracksCmd> const command = copyFrom(timeline(), 2);
    command->addTrackMap<AbstractVisualTrack>(visualTrack("V1"), visualTrack("V2"));
    EXPECT_TRUE(edits(command, "V1: .aa.ss / V2: cc.bb.dd"));
}

TEST_F(TrackMapCommandTest, ClonesAreNotLinkedByItself)
{
    given("A1: aa / V1: aa");
    boost::shared_ptr<CopyTracksCmd> const command = copyFrom(timeline(), 3);
    command->addTrackMap<AbstractVisualTrack>(visualTrack("V1"), visualTrack("V1"));
    command->addTrackMap<AudioTrack>(audioTrack("A1"), audioTrack("A1"));
    EXPECT_TRUE(edits(command, "A1: aa.bb / V1: aa.cc"));
}

TEST_F(TrackMapCommandTest, ACollisionTakesTheOtherTracksBack)
{
    given("V1: bb / V2: ... / V3: ..cc");
    boost::shared_ptr<CopyTracksCmd> const command = copyFrom(timeline(), 1);
    command->addTrackMap<AbstractVisualTrack>(visualTrack("V1"), visualTrack("V2"));
    command->addTrackMap<AbstractVisualTrack>(visualTrack("V1"), visualTrack("V3"));
    EXPECT_TRUE(refuses<CollisionException>(command));
}

TEST_F(TrackMapCommandTest, HasTheMappingsAddedToIt)
{
    given("A1: a / A2: b / V1: a / V2: c");
    boost::shared_ptr<CopyTracksCmd> const command = copyFrom(timeline(), 0);
    command->addTrackMap<AbstractVisualTrack>(visualTrack("V1"), visualTrack("V2"));
    command->addTrackMap<AudioTrack>(audioTrack("A1"), audioTrack("A2"));
    EXPECT_TRUE(command->hasMapping<AbstractVisualTrack>(visualTrack("V1")));
    EXPECT_TRUE(command->hasMapping<AudioTrack>(audioTrack("A1")));
    EXPECT_EQ(visualTrack("V2"), command->mappedTrack<AbstractVisualTrack>(visualTrack("V1")));
    EXPECT_EQ(audioTrack("A2"), command->mappedTrack<AudioTrack>(audioTrack("A1")));
}

TEST_F(TrackMapCommandTest, ATrackThatIsOnlyADestinationHasNoMapping)
{
    given("V1: a / V2: c");
    boost::shared_ptr<CopyTracksCmd> const command = copyFrom(timeline(), 0);
    command->addTrackMap<AbstractVisualTrack>(visualTrack("V1"), visualTrack("V2"));
    EXPECT_FALSE(command->hasMapping<AbstractVisualTrack>(visualTrack("V2")));
    EXPECT_FALSE(command->mappedTrack<AbstractVisualTrack>(visualTrack("V2")));
}

TEST_F(TrackMapCommandTest, TheFirstOfTwoDestinationsIsTheMappedTrack)
{
    given("V1: a / V2: c / V3: d");
    boost::shared_ptr<CopyTracksCmd> const command = copyFrom(timeline(), 0);
    command->addTrackMap<AbstractVisualTrack>(visualTrack("V1"), visualTrack("V3"));
    command->addTrackMap<AbstractVisualTrack>(visualTrack("V1"), visualTrack("V2"));
    EXPECT_EQ(visualTrack("V3"), command->mappedTrack<AbstractVisualTrack>(visualTrack("V1")));
}

TEST_F(TrackMapCommandTest, AMapAddedToACloneStaysThere)
{
    given("V1: a / V2: c");
    boost::shared_ptr<CopyTracksCmd> const command = copyFrom(timeline(), 3);
    boost::shared_ptr<CopyTracksCmd> const clone(command->clone());
    clone->addTrackMap<AbstractVisualTrack>(visualTrack("V1"), visualTrack("V2"));
    EXPECT_FALSE(command->hasMapping<AbstractVisualTrack>(visualTrack("V1")));
    EXPECT_TRUE(edits(clone, "V1: a / V2: c..b"));
}

}  // namespace test
}  // namespace tarn
