#include "commands/AddSourceCmd.h"

#include "support/CommandXml.h"
#include "support/LoadingTest.h"

#include "exceptions/CollisionException.h"
#include "timeline/Media.h"

namespace tarn {
namespace test {

namespace {

class AddSourceCmdTest : public LoadingTest
{
protected:
    AddSourceCmdTest()
    {
        Files::instance().set("fake:take", {Files::picture(30), Files::sound(30)});
        Files::instance().set("fake:wide",
                              {Files::picture(20), Files::picture(20), Files::sound(20)});
    }

    boost::shared_ptr<AddSourceCmd> addSource(boost::shared_ptr<Source const> const& source,
                                              long long cells) const
    {
        return AddSourceCmd::create(source, cells * 10, source->timeRange());
    }
    /// The whole of a source with one picture and one sound on V1 and A1.
    boost::shared_ptr<AddSourceCmd> addTake(boost::shared_ptr<Source const> const& take,
                                            long long cells) const
    {
        boost::shared_ptr<AddSourceCmd> const command = addSource(take, cells);
        command->addTrackMap<AbstractVisualTrack>(visualTrack(take), visualTrack("V1"));
        command->addTrackMap<AudioTrack>(audioTrack(take), audioTrack("A1"));
        return command;
    }
};

}  // namespace

TEST_F(AddSourceCmdTest, PutsPictureAndSoundLinkedOnTheMappedTracks)
{
    given("A1: ......c / V1: aa");
    EXPECT_TRUE(edits(addTake(load("fake:take"), 2), "A1: ..bbb.c / V1: aabbb"));
}

TEST_F(AddSourceCmdTest, WhatItPutsThereIsTheWholeSourceFromItsStart)
{
    given("V1: aa");
    boost::shared_ptr<Source const> const take = load("fake:take");
    project->execute(addTake(take, 5));
    boost::shared_ptr<Media> const picture = track("V1")->mediaAtTime(50).second;
    ASSERT_TRUE(picture);
    EXPECT_EQ(Range<double>(0, 30), picture->mediaRange());
    EXPECT_TRUE(picture->isInstanceOf(take));
    EXPECT_NE(picture, prototype(take));
}

TEST_F(AddSourceCmdTest, TheRangeGivenHasNoEffect)
{
    given("V1: aa");
    boost::shared_ptr<Source const> const take = load("fake:take");
    boost::shared_ptr<AddSourceCmd> const command =
        AddSourceCmd::create(take, 20, Range<long long>(10, 5));
    command->addTrackMap<AbstractVisualTrack>(visualTrack(take), visualTrack("V1"));
    EXPECT_TRUE(edits(command, "V1: aabbb"));
}

TEST_F(AddSourceCmdTest, WithoutMapsItAddsNothingSuccessfully)
{
    given("V1: aa");
    boost::shared_ptr<AddSourceCmd> const command = addSource(load("fake:take"), 2);
    EXPECT_TRUE(edits(command, "V1: aa"));
    EXPECT_EQ(command, project->commandState().undoTop());
}

TEST_F(AddSourceCmdTest, OneMappedTrackAloneIsLinkedToNothing)
{
    given("A1: a / V1: a");
    boost::shared_ptr<Source const> const take = load("fake:take");
    boost::shared_ptr<AddSourceCmd> const command = addSource(take, 2);
    command->addTrackMap<AudioTrack>(audioTrack(take), audioTrack("A1"));
    EXPECT_TRUE(edits(command, "A1: a.bbb / V1: a"));
    boost::shared_ptr<Media> const sound = track("A1")->mediaAtTime(20).second;
    EXPECT_TRUE(sound->linkBegin() == sound->linkEnd());
}

TEST_F(AddSourceCmdTest, AllClonesFormOneGroup)
{
    given("A1: a / V1: a / V2: c");
    boost::shared_ptr<Source const> const wide = load("fake:wide");
    boost::shared_ptr<AddSourceCmd> const command = addSource(wide, 1);
    command->addTrackMap<AbstractVisualTrack>(visualTrack(wide, 0), visualTrack("V1"));
    command->addTrackMap<AbstractVisualTrack>(visualTrack(wide, 1), visualTrack("V2"));
    command->addTrackMap<AudioTrack>(audioTrack(wide), audioTrack("A1"));
    EXPECT_TRUE(edits(command, "A1: abb / V1: abb / V2: cbb"));
    boost::shared_ptr<Media> const second = track("V2")->mediaAtTime(10).second;
    EXPECT_TRUE(second->isLinkedWith(track("A1")->mediaAtTime(10).second));
    EXPECT_TRUE(second->isLinkedWith(track("V1")->mediaAtTime(10).second));
}

TEST_F(AddSourceCmdTest, ATrackMappedTwiceGivesLinkedClonesOnBoth)
{
    given("V1: a / V2: c");
    boost::shared_ptr<Source const> const take = load("fake:take");
    boost::shared_ptr<AddSourceCmd> const command = addSource(take, 1);
    command->addTrackMap<AbstractVisualTrack>(visualTrack(take), visualTrack("V1"));
    command->addTrackMap<AbstractVisualTrack>(visualTrack(take), visualTrack("V2"));
    EXPECT_TRUE(edits(command, "V1: abbb / V2: cbbb"));
    EXPECT_TRUE(
        track("V1")->mediaAtTime(10).second->isLinkedWith(track("V2")->mediaAtTime(10).second));
}

TEST_F(AddSourceCmdTest, ACollisionOfTheSoundTakesThePictureBack)
{
    given("A1: ...c / V1: a");
    EXPECT_TRUE(refuses<CollisionException>(addTake(load("fake:take"), 1)));
}

TEST_F(AddSourceCmdTest, ASourceThatIsNotInTheBinIsRefused)
{
    given("V1: a");
    boost::shared_ptr<Source const> const stranger = Source::create(project, lock(), "fake:take");
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        addTake(stranger, 1),
        "attempting to add a media whose source doesn't belong to the project"));
}

TEST_F(AddSourceCmdTest, ThePrivateMediasOfTheSourceStayWhereTheyAre)
{
    given("V1: a");
    boost::shared_ptr<Source const> const take = load("fake:take");
    project->execute(addTake(take, 4));
    EXPECT_EQ(Range<long long>(0, 30), prototype(take)->trackRange());
    EXPECT_TRUE(prototype(take)->parentTrack().lock() != track("V1"));
}

TEST_F(AddSourceCmdTest, ACloneHasTheSameMapsAndRanNothing)
{
    given("V1: a");
    boost::shared_ptr<AddSourceCmd> const original = addTake(load("fake:take"), 2);
    project->execute(original);
    project->undo();
    boost::shared_ptr<AddSourceCmd> const clone(original->clone());
    EXPECT_EQ(0u, clone->numUndoCommands());
    EXPECT_TRUE(edits(clone, "A1: ..bbb / V1: a.bbb"));
}

TEST_F(AddSourceCmdTest, PrintsTimeAndTimelineAndItsTwoTrackCommands)
{
    given("V1: a");
    boost::shared_ptr<Source const> const take = load("fake:take");
    std::string const timelineIdent = std::to_string(take->timeline()->xmlIdent());
    std::string const tracks = " <AddTimelinesTracksCmd id=\"#\" time=\"20\" clip=\"" +
                               timelineIdent +
                               "\" >\n"
                               "  <TrackMaps>\n"
                               "  </TrackMaps>\n"
                               " </AddTimelinesTracksCmd>\n";
    EXPECT_EQ("<AddSourceCmd id=\"#\" time=\"20\" timeline=\"" + timelineIdent + "\" >\n" + tracks +
                  tracks + "</AddSourceCmd>\n",
              xmlOf(*addSource(take, 2)));
}

TEST_F(AddSourceCmdTest, PrintsEachMappedPairOfTracks)
{
    given("V1: a");
    boost::shared_ptr<Source const> const take = load("fake:take");
    std::string const xml = xmlOf(*addTake(take, 2));
    EXPECT_NE(std::string::npos, xml.find("<Map " + identAttribute("clipTrack", visualTrack(take)) +
                                          " " + identAttribute("destTrack", track("V1"))));
    EXPECT_NE(std::string::npos, xml.find("<Map " + identAttribute("clipTrack", audioTrack(take)) +
                                          " " + identAttribute("destTrack", track("A1"))));
}

}  // namespace test
}  // namespace tarn
