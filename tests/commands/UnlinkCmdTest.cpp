#include "commands/UnlinkCmd.h"

#include "commands/CommandHistory.h"
#include "exceptions/DanglingWeakPtrException.h"
#include "exceptions/TarnMediaLibException.h"
#include "support/Links.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "support/Xml.h"

namespace tarn {
namespace test {
namespace {

using DeadLink = DanglingWeakPtrException<Media const>;

class UnlinkCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<Command> unlink(std::string const& name) const
    {
        return UnlinkCmd::create(media(name));
    }
    std::size_t numLinks(std::string const& name) const { return linksOf(media(name)).size(); }
};

TEST_F(UnlinkCmdTest, PartsALinkedPair)
{
    given("A1: aaa / V1: aaa");
    EXPECT_TRUE(edits(unlink("V1.a")));
    EXPECT_EQ(0u, numLinks("A1.a"));
    EXPECT_EQ(0u, numLinks("V1.a"));
}

TEST_F(UnlinkCmdTest, LeavesTheOthersLinkedAmongThemselves)
{
    given("A1: aaa / A2: aaa / V1: aaa");
    boost::shared_ptr<UnlinkCmd> const command = UnlinkCmd::create(media("A2.a"));
    EXPECT_TRUE(edits(command));
    EXPECT_EQ(4u, command->numUndoCommands());
    EXPECT_EQ(0u, numLinks("A2.a"));
    EXPECT_EQ(1u, numLinks("A1.a"));
    EXPECT_EQ(1u, numLinks("V1.a"));
    EXPECT_TRUE(areLinked(media("A1.a"), media("V1.a")));
}

TEST_F(UnlinkCmdTest, UndoGivesTheGroupBack)
{
    given("A1: aaa / A2: aaa / V1: aaa");
    project->execute(unlink("A2.a"));
    project->undo();
    EXPECT_TRUE(areLinked(media("A2.a"), media("A1.a")));
    EXPECT_TRUE(areLinked(media("A2.a"), media("V1.a")));
    EXPECT_EQ(2u, numLinks("A2.a"));
}

TEST_F(UnlinkCmdTest, OfAMediaWithoutLinksIsAnEditThatChangesNothing)
{
    given("V1: aaa");
    EXPECT_TRUE(edits(unlink("V1.a"), "V1: aaa"));
    EXPECT_EQ(1u, project->commandHistory()->numUndoCommands());
}

TEST_F(UnlinkCmdTest, UnlinkedMediasMoveAlone)
{
    given("A1: aaa / V1: aaa");
    project->execute(unlink("A1.a"));
    EXPECT_TRUE(edits(move("A1.a", 2), "A1: ..aaa / V1: aaa"));
}

TEST_F(UnlinkCmdTest, UnequalTrackRangesAreRefused)
{
    given("A1: aaa / V1: aaaa");
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        unlink("A1.a"), "unable to remove media link, somehow the track ranges aren't equal"));
}

TEST_F(UnlinkCmdTest, OneMemberThatCameApartTakesEverythingBack)
{
    // A1 and A2 could be parted, V1 cannot.
    given("A1: aaa / A2: aaa / V1: aaaa");
    EXPECT_TRUE(refuses<TarnMediaLibException>(unlink("A1.a")));
    EXPECT_TRUE(areLinked(media("A1.a"), media("A2.a")));
    EXPECT_TRUE(areLinked(media("A1.a"), media("V1.a")));
}

TEST_F(UnlinkCmdTest, TheUndoIsRefusedWhenMediaRangesDiffer)
{
    // A still starts at 0 on its source's clock, the sound at 500.
    given("A1: aaa / V1: sss");
    media("A1.a")->link(media("V1.s"));
    project->execute(unlink("A1.a"));
    EXPECT_STREQ("unable to link media",
                 thrownBy<TarnMediaLibException>([&] { project->undo(); }).what());
}

TEST_F(UnlinkCmdTest, ADeadLinkIsAnError)
{
    given("A1: aaa / V1: aaa");
    media("V1.a")->link(freshVideo('a', 3));
    EXPECT_STREQ("", thrownBy<DeadLink>([&] { project->execute(unlink("V1.a")); }).what());
    EXPECT_TRUE(areLinked(media("A1.a"), media("V1.a")));
    EXPECT_EQ(0u, project->commandHistory()->numUndoCommands());
}

TEST_F(UnlinkCmdTest, NamesTheMediaInXml)
{
    given("V1: aaa");
    std::string const xml = xmlOf(*unlink("V1.a"));
    EXPECT_EQ("<UnlinkCmd id=\"#\" media=\"" + std::to_string(media("V1.a")->xmlIdent()) + "\" >",
              xml.substr(0, xml.find('\n')));
}

TEST_F(UnlinkCmdTest, ACloneUnlinksTheSameMedia)
{
    given("A1: aaa / V1: aaa");
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(unlink("V1.a")->clone())));
    EXPECT_EQ(0u, numLinks("A1.a"));
}

}  // namespace
}  // namespace test
}  // namespace tarn
