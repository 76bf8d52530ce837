#include "commands/LinkCmd.h"

#include "commands/CommandHistory.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/TarnMediaLibException.h"
#include "support/Links.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "support/Xml.h"

#include <vector>

namespace tarn {
namespace test {
namespace {

using DeadLink = DanglingWeakPtrException<Media const>;

class LinkCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<Command> link(std::string const& name1, std::string const& name2) const
    {
        return LinkCmd::create(media(name1), media(name2));
    }
    std::size_t numLinks(std::string const& name) const { return linksOf(media(name)).size(); }
};

TEST_F(LinkCmdTest, LinksTwoMediasBothWays)
{
    given("A1: aaa / V1: bbb");
    EXPECT_TRUE(edits(link("A1.a", "V1.b"), "A1: aaa / V1: bbb"));
    EXPECT_TRUE(areLinked(media("A1.a"), media("V1.b")));
    EXPECT_EQ(1u, numLinks("A1.a"));
    EXPECT_EQ(1u, numLinks("V1.b"));
}

TEST_F(LinkCmdTest, UndoLeavesBothListsEmpty)
{
    given("A1: aaa / V1: bbb");
    project->execute(link("A1.a", "V1.b"));
    project->undo();
    EXPECT_EQ(0u, numLinks("A1.a"));
    EXPECT_EQ(0u, numLinks("V1.b"));
}

TEST_F(LinkCmdTest, TwoSingleMediasTakeTwoCommands)
{
    given("A1: aaa / V1: bbb");
    boost::shared_ptr<LinkCmd> const command = LinkCmd::create(media("A1.a"), media("V1.b"));
    project->execute(command);
    EXPECT_EQ(2u, command->numUndoCommands());
}

TEST_F(LinkCmdTest, GroupsOfTwoAndThreeBecomeAMeshOfFive)
{
    // Before, 2 * 1 + 3 * 2 = 8 entries; after, 5 * 4 = 20.
    given("A1: aaa / A2: aaa / A3: bbb / V1: bbb / V2: bbb");
    boost::shared_ptr<LinkCmd> const command = LinkCmd::create(media("A2.a"), media("V2.b"));
    EXPECT_TRUE(edits(command));
    EXPECT_EQ(12u, command->numUndoCommands());
    EXPECT_EQ(4u, numLinks("A1.a"));
    EXPECT_EQ(4u, numLinks("A2.a"));
    EXPECT_EQ(4u, numLinks("A3.b"));
    EXPECT_EQ(4u, numLinks("V1.b"));
    EXPECT_EQ(4u, numLinks("V2.b"));
    EXPECT_TRUE(areLinked(media("A1.a"), media("V1.b")));
    EXPECT_TRUE(areLinked(media("A1.a"), media("A3.b")));
}

TEST_F(LinkCmdTest, TheMediaNamedIsLinkedBeforeTheRestOfItsGroup)
{
    using Links = std::vector<boost::shared_ptr<Media const>>;
    given("A1: aaa / A2: aaa / V1: bbb / V2: bbb");
    project->execute(link("A2.a", "V2.b"));
    EXPECT_EQ((Links{media("A1.a"), media("V2.b"), media("V1.b")}), linksOf(media("A2.a")));
    EXPECT_EQ((Links{media("A2.a"), media("V2.b"), media("V1.b")}), linksOf(media("A1.a")));
    EXPECT_EQ((Links{media("V1.b"), media("A2.a"), media("A1.a")}), linksOf(media("V2.b")));
    EXPECT_EQ((Links{media("V2.b"), media("A2.a"), media("A1.a")}), linksOf(media("V1.b")));
}

TEST_F(LinkCmdTest, UndoGivesBothGroupsBack)
{
    given("A1: aaa / A2: aaa / V1: bbb / V2: bbb");
    project->execute(link("A1.a", "V1.b"));
    project->undo();
    EXPECT_TRUE(areLinked(media("A1.a"), media("A2.a")));
    EXPECT_TRUE(areLinked(media("V1.b"), media("V2.b")));
    EXPECT_EQ(1u, numLinks("A1.a"));
    EXPECT_EQ(1u, numLinks("V2.b"));
}

TEST_F(LinkCmdTest, UnequalLengthsAreRefused)
{
    given("A1: aaa / V1: bbbb");
    EXPECT_TRUE(refuses<TarnMediaLibException>(link("A1.a", "V1.b"), "unable to link media"));
}

TEST_F(LinkCmdTest, AMemberThatDoesNotFitTakesEverythingBack)
{
    // The given pair fits, but the sound on A2 is longer than the picture.
    given("A1: aaa / A2: aaaa / V1: bbb");
    EXPECT_TRUE(refuses<TarnMediaLibException>(link("A1.a", "V1.b"), "unable to link media"));
    EXPECT_EQ(0u, numLinks("V1.b"));
    EXPECT_EQ(1u, numLinks("A1.a"));
}

TEST_F(LinkCmdTest, MediasOfOneGroupAreRefused)
{
    given("A1: aaa / V1: aaa");
    EXPECT_TRUE(refuses<TarnMediaLibException>(link("A1.a", "V1.a"), "unable to link media"));
}

TEST_F(LinkCmdTest, AMediaIsNotLinkedWithItself)
{
    given("V1: aaa");
    EXPECT_TRUE(refuses<TarnMediaLibException>(link("V1.a", "V1.a"), "unable to link media"));
}

TEST_F(LinkCmdTest, ADeadLinkIsAnError)
{
    given("A1: aaa / V1: bbb");
    media("V1.b")->link(freshVideo('b', 3));
    EXPECT_STREQ("", thrownBy<DeadLink>([&] { project->execute(link("A1.a", "V1.b")); }).what());
    EXPECT_EQ(0u, numLinks("A1.a"));
    EXPECT_EQ(0u, project->commandHistory()->numUndoCommands());
}

TEST_F(LinkCmdTest, LinkedMediasMoveTogether)
{
    given("A1: aaa / V1: bbb");
    project->execute(link("A1.a", "V1.b"));
    EXPECT_TRUE(edits(move("A1.a", 2), "A1: ..aaa / V1: ..bbb"));
}

TEST_F(LinkCmdTest, NamesBothMediasInXml)
{
    given("A1: aaa / V1: bbb");
    std::string const xml = xmlOf(*link("A1.a", "V1.b"));
    EXPECT_EQ("<LinkCmd id=\"#\" media1=\"" + std::to_string(media("A1.a")->xmlIdent()) +
                  "\" media2=\"" + std::to_string(media("V1.b")->xmlIdent()) + "\" >",
              xml.substr(0, xml.find('\n')));
}

TEST_F(LinkCmdTest, ACloneLinksOnItsOwn)
{
    given("A1: aaa / V1: bbb");
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(link("A1.a", "V1.b")->clone())));
    EXPECT_TRUE(areLinked(media("A1.a"), media("V1.b")));
}

}  // namespace
}  // namespace test
}  // namespace tarn
