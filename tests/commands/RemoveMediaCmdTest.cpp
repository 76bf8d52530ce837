#include "commands/RemoveMediaCmd.h"

#include "support/Clip.h"
#include "support/CommandXml.h"
#include "support/FaultyHandler.h"
#include "support/ModelTest.h"

#include "exceptions/DanglingWeakPtrException.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <string>

namespace tarn {
namespace test {

using RemoveMediaCmdTest = ModelTest;

TEST_F(RemoveMediaCmdTest, LeavesAGap)
{
    given("V1: aaabbbcc");
    EXPECT_TRUE(edits(remove("V1.b"), "V1: aaa...cc"));
}

TEST_F(RemoveMediaCmdTest, TakesTheLinkedMediaAlongAndBringsBothBack)
{
    given("A1: aaabb / V1: aaacc");
    EXPECT_TRUE(edits(remove("V1.a"), "A1: ...bb / V1: ...cc"));
}

TEST_F(RemoveMediaCmdTest, TakesAWholeGroupFromAnyOfItsTracks)
{
    given("A1: ..aa / A2: ..aa / V1: b.aa");
    EXPECT_TRUE(edits(remove("A2.a"), "V1: b"));
}

TEST_F(RemoveMediaCmdTest, WhatIsRemovedKeepsItsStartAndItsLinksAndLosesItsParent)
{
    given("A1: ..aa / V1: ..aa");
    project->execute(remove("V1.a"));
    EXPECT_EQ(Range<long long>(20, 20), media("A1.a")->trackRange());
    EXPECT_TRUE(media("A1.a")->isLinkedWith(media("V1.a")));
    EXPECT_TRUE(media("A1.a")->parentTrack().expired());
    EXPECT_TRUE(media("V1.a")->parentTrack().expired());
}

TEST_F(RemoveMediaCmdTest, UndoPutsTheVeryMediasBackOnTheirTracks)
{
    given("A1: ..aa / V1: ..aa");
    project->execute(remove("A1.a"));
    project->undo();
    EXPECT_TRUE(track("A1")->hasMedia(media("A1.a")));
    EXPECT_TRUE(track("V1")->hasMedia(media("V1.a")));
    EXPECT_EQ(track("V1"), media("V1.a")->parentTrack().lock());
}

TEST_F(RemoveMediaCmdTest, AGroupThatCannotComeBackWholeStaysAway)
{
    given("A1: ..aa / A2: ..aa / V1: ..aa");
    for (int k = 1; k <= 3; ++k) {
        project->execute(remove("V1.a"));
        {
            FaultyHandler<ForeignFault> const faulty(*project, k, ForeignFault());
            EXPECT_THROW(project->undo(), ForeignFault);
        }
        EXPECT_EQ("", strip());
        for (char const* name : {"A1.a", "A2.a", "V1.a"}) {
            EXPECT_TRUE(media(name)->parentTrack().expired()) << name << " for call " << k;
            project->execute(add(std::string(name, 2), media(name), 2));
        }
    }
}

TEST_F(RemoveMediaCmdTest, AMediaRemovedBeforeIsRefused)
{
    given("V1: aaabb");
    project->execute(remove("V1.a"));
    EXPECT_TRUE(
        refuses<TarnMediaLibException>(remove("V1.a"), "attempting to remove with null parent"));
}

TEST_F(RemoveMediaCmdTest, AMediaThatNeverLayOnATrackIsRefused)
{
    given("V1: aaabb");
    boost::shared_ptr<Command> const command =
        RemoveMediaCmd<Media>::create(track("V1"), freshVideo('c', 3));
    EXPECT_TRUE(refuses<TarnMediaLibException>(command, "attempting to remove with null parent"));
}

TEST_F(RemoveMediaCmdTest, ALinkedMediaOffItsTrackIsRefusedBeforeAnythingChanges)
{
    given("V1: aaabb");
    boost::shared_ptr<Media> const loose = freshSound('a', 3);
    media("V1.a")->link(loose);
    EXPECT_TRUE(
        refuses<TarnMediaLibException>(remove("V1.a"), "attempting to remove with null parent"));
}

// The stranger that starts at the same time on the track named must not be taken for it.
TEST_F(RemoveMediaCmdTest, AMediaOfAnotherTrackIsRefusedAndTheStrangerStays)
{
    given("V1: aaa / V2: bbb");
    boost::shared_ptr<Command> const command =
        RemoveMediaCmd<Media>::create(track("V2"), media("V1.a"));
    EXPECT_TRUE(
        refuses<TarnMediaLibException>(command, "trying to remove a media thats already removed"));
}

/// A kind of a host's own, which lies on a track when it is looked at and on none when it is
/// edited.
class Fleeting : public Clip
{
public:
    using Clip::Clip;

    boost::weak_ptr<Track> parentTrack() override { return boost::weak_ptr<Track>(); }
    boost::weak_ptr<Track const> parentTrack() const override { return claimed; }

    boost::weak_ptr<Track const> claimed;
};

TEST_F(RemoveMediaCmdTest, ALinkedMediaThatLosesItsTrackIsRefusedBeforeAnythingChanges)
{
    given("V1: aaabb");
    boost::shared_ptr<Fleeting> const fleeting(
        new Fleeting(Range<long long>(0, 30), 0, 1000, lock()));
    fleeting->claimed = track("V1");
    media("V1.a")->link(fleeting);
    EXPECT_TRUE(refuses<TarnMediaLibException>(remove("V1.a"),
                                               "attempting to remove a media with a null track"));
}

TEST_F(RemoveMediaCmdTest, ADeadLinkIsRefusedBeforeAnythingChanges)
{
    given("V1: aaabb");
    media("V1.a")->link(freshSound('a', 3));
    EXPECT_THROW(project->execute(remove("V1.a")), DanglingWeakPtrException<Media const>);
    EXPECT_EQ("V1: aaabb", strip());
    EXPECT_FALSE(project->commandState().undoTop());
}

TEST_F(RemoveMediaCmdTest, ACloneRemovesTheSame)
{
    given("A1: aaa / V1: aaabb");
    RemoveMediaCmd<Media> const command(track("V1"), media("V1.a"));
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(command.clone()), "V1: ...bb"));
}

TEST_F(RemoveMediaCmdTest, PrintsItsBareNameTrackAndMedia)
{
    given("V1: aaa");
    EXPECT_EQ(emptyElement("RemoveMediaCmd", identAttribute("track", track("V1")) + " " +
                                                 identAttribute("mediaToRemove", media("V1.a"))),
              xmlOf(*remove("V1.a")));
}

TEST_F(RemoveMediaCmdTest, PrintsZeroForWhatIsEmpty)
{
    EXPECT_EQ(emptyElement("RemoveMediaCmd", "track=\"0\" mediaToRemove=\"0\""),
              xmlOf(*RemoveMediaCmd<Media>::create(nullptr, nullptr)));
}

}  // namespace test
}  // namespace tarn
