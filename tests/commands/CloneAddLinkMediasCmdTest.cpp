#include "commands/CloneAddLinkMediasCmd.h"

#include "exceptions/CollisionException.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/TarnMediaLibException.h"
#include "support/CommandXml.h"
#include "support/ModelTest.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <iterator>

namespace tarn {
namespace test {
namespace {

class CloneAddLinkMediasCmdTest : public ModelTest
{
protected:
    /// Medias by name, each to the track it is on.
    boost::shared_ptr<CloneAddLinkMediasCmd> cloningTo(long long time,
                                                       std::vector<std::string> const& names) const
    {
        boost::shared_ptr<CloneAddLinkMediasCmd> const command =
            CloneAddLinkMediasCmd::create(time);
        for (std::string const& name : names)
            command->addMapping(track(name.substr(0, 2)), media(name));
        return command;
    }
    boost::shared_ptr<Media> mediaAt(std::string const& name, long long time) const
    {
        return track(name)->mediaAtTime(time).second;
    }
};

TEST_F(CloneAddLinkMediasCmdTest, LinksTheClonesOfAPair)
{
    given("A1: aa / V1: aa");
    EXPECT_TRUE(edits(cloningTo(60, {"A1.a", "V1.a"}), "A1: aa....bb / V1: aa....bb"));
    EXPECT_TRUE(mediaAt("A1", 70)->isLinkedWith(mediaAt("V1", 70)));
    EXPECT_TRUE(mediaAt("V1", 70)->isLinkedWith(mediaAt("A1", 70)));
    EXPECT_FALSE(mediaAt("V1", 70)->isLinkedWith(media("A1.a")));
}

TEST_F(CloneAddLinkMediasCmdTest, AHalfOfAPairGivesACloneWithoutLinks)
{
    given("A1: aa / V1: aa");
    EXPECT_TRUE(edits(cloningTo(60, {"V1.a"}), "A1: aa / V1: aa....bb"));
    EXPECT_TRUE(mediaAt("V1", 70)->linkBegin() == mediaAt("V1", 70)->linkEnd());
    EXPECT_TRUE(media("V1.a")->isLinkedWith(media("A1.a")));
}

TEST_F(CloneAddLinkMediasCmdTest, LinksTheClonesOfAGroupOfThree)
{
    given("A1: aa / V1: aa / V2: aa");
    EXPECT_TRUE(
        edits(cloningTo(30, {"A1.a", "V1.a", "V2.a"}), "A1: aa.bb / V1: aa.bb / V2: aa.bb"));
    EXPECT_EQ(2, std::distance(mediaAt("A1", 40)->linkBegin(), mediaAt("A1", 40)->linkEnd()));
    EXPECT_TRUE(mediaAt("V1", 40)->isLinkedWith(mediaAt("V2", 40)));
}

TEST_F(CloneAddLinkMediasCmdTest, TwoOfThreeAreLinkedToEachOther)
{
    given("A1: aa / V1: aa / V2: aa");
    EXPECT_TRUE(edits(cloningTo(30, {"A1.a", "V2.a"}), "A1: aa.bb / V1: aa / V2: aa.bb"));
}

TEST_F(CloneAddLinkMediasCmdTest, LinksEachGroupForItself)
{
    given("A1: aabb / V1: aabb");
    EXPECT_TRUE(
        edits(cloningTo(50, {"A1.a", "A1.b", "V1.a", "V1.b"}), "A1: aabb.ccdd / V1: aabb.ccdd"));
}

TEST_F(CloneAddLinkMediasCmdTest, UnlinkedMediasGiveUnlinkedClones)
{
    given("A1: bb / V1: aa");
    EXPECT_TRUE(edits(cloningTo(30, {"A1.b", "V1.a"}), "A1: bb.cc / V1: aa.dd"));
}

TEST_F(CloneAddLinkMediasCmdTest, WithoutMappingsItSucceedsAtNothing)
{
    given("A1: aa / V1: aa");
    EXPECT_TRUE(edits(cloningTo(30, {}), "A1: aa / V1: aa"));
}

TEST_F(CloneAddLinkMediasCmdTest, UndoAndRedoGiveBackTheSameLinkedClones)
{
    given("A1: aa / V1: aa");
    project->execute(cloningTo(30, {"A1.a", "V1.a"}));
    boost::shared_ptr<Media> const picture = mediaAt("V1", 40);
    boost::shared_ptr<Media> const sound = mediaAt("A1", 40);
    project->undo();
    EXPECT_FALSE(picture->isLinkedWith(sound));
    project->redo();
    EXPECT_EQ(picture, mediaAt("V1", 40));
    EXPECT_TRUE(picture->isLinkedWith(sound));
}

TEST_F(CloneAddLinkMediasCmdTest, ATakenPlaceIsRefused)
{
    given("A1: aa..b / V1: aa");
    EXPECT_TRUE(refuses<CollisionException>(cloningTo(30, {"A1.a", "V1.a"})));
}

TEST_F(CloneAddLinkMediasCmdTest, ClonesThatCannotBeLinkedAreRefused)
{
    // Linked by hand although b is longer.
    given("A1: bbb / V1: aa");
    media("A1.b")->link(media("V1.a"));
    EXPECT_TRUE(
        refuses<TarnMediaLibException>(cloningTo(50, {"A1.b", "V1.a"}), "unable to link media"));
}

TEST_F(CloneAddLinkMediasCmdTest, ADeadLinkIsRefused)
{
    given("V1: aa");
    media("V1.a")->link(freshVideo('a', 2));
    EXPECT_THROW(project->execute(cloningTo(30, {"V1.a"})), DanglingWeakPtrException<Media const>);
    EXPECT_EQ("V1: aa", strip());
}

TEST_F(CloneAddLinkMediasCmdTest, IsWrittenByItsNameAlone)
{
    given("V1: aa");
    EXPECT_EQ(emptyElement("CloneAddLinkMediasCmd", ""), xmlOf(*cloningTo(10, {"V1.a"})));
}

TEST_F(CloneAddLinkMediasCmdTest, ACloneHasRunNothing)
{
    given("A1: aa / V1: aa");
    boost::shared_ptr<CloneAddLinkMediasCmd> const command = cloningTo(30, {"A1.a", "V1.a"});
    project->execute(command);
    project->undo();
    boost::shared_ptr<CloneAddLinkMediasCmd> const copy(command->clone());
    EXPECT_EQ(0u, copy->numUndoCommands());
    EXPECT_TRUE(edits(copy, "A1: aa.bb / V1: aa.bb"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
