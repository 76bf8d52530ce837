#include "commands/RemoveLinkCmd.h"

#include "exceptions/TarnMediaLibException.h"
#include "support/Links.h"
#include "support/ModelTest.h"
#include "support/Thrown.h"
#include "support/Xml.h"

namespace tarn {
namespace test {
namespace {

class RemoveLinkCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<Command> removeLink(std::string const& name, std::string const& other) const
    {
        return RemoveLinkCmd::create(media(name), media(other));
    }
};

TEST_F(RemoveLinkCmdTest, UnlinksOneWay)
{
    given("A1: aaa / V1: aaa");
    EXPECT_TRUE(edits(removeLink("A1.a", "V1.a")));
    EXPECT_FALSE(media("A1.a")->isLinkedWith(media("V1.a")));
    EXPECT_TRUE(media("V1.a")->isLinkedWith(media("A1.a")));
}

TEST_F(RemoveLinkCmdTest, UndoPutsTheLinkLast)
{
    given("A1: aaa / V1: aaa / V2: aaa");
    boost::shared_ptr<Media const> const first = linksOf(media("A1.a")).front();
    project->execute(RemoveLinkCmd::create(media("A1.a"), first));
    project->undo();
    ASSERT_EQ(2u, linksOf(media("A1.a")).size());
    EXPECT_EQ(first, linksOf(media("A1.a")).back());
}

TEST_F(RemoveLinkCmdTest, ALinkWithItselfIsRefused)
{
    given("V1: aaa");
    EXPECT_TRUE(refuses<TarnMediaLibException>(removeLink("V1.a", "V1.a"),
                                               "unable to remove media link with itself"));
}

TEST_F(RemoveLinkCmdTest, ALinkThatIsNotThereIsRefused)
{
    given("A1: aaa / V1: bbb");
    EXPECT_TRUE(refuses<TarnMediaLibException>(removeLink("A1.a", "V1.b"),
                                               "unable to remove media link where none exists"));
}

TEST_F(RemoveLinkCmdTest, UnequalTrackRangesAreRefused)
{
    given("A1: aaa / V1: aaaa");
    EXPECT_TRUE(refuses<TarnMediaLibException>(
        removeLink("A1.a", "V1.a"),
        "unable to remove media link, somehow the track ranges aren't equal"));
}

TEST_F(RemoveLinkCmdTest, TheUndoIsRefusedWhenMediaRangesDiffer)
{
    // A still starts at 0 on its source's clock, the sound at 500.
    given("A1: aaa / V1: sss");
    media("A1.a")->link(media("V1.s"));
    project->execute(removeLink("A1.a", "V1.s"));
    EXPECT_STREQ("unable to link media",
                 thrownBy<TarnMediaLibException>([&] { project->undo(); }).what());
    EXPECT_FALSE(media("A1.a")->isLinkedWith(media("V1.s")));
}

TEST_F(RemoveLinkCmdTest, NamesBothMediasInXml)
{
    given("A1: aaa / V1: aaa");
    EXPECT_EQ("<RemoveLinkCmd id=\"#\" media=\"" + std::to_string(media("A1.a")->xmlIdent()) +
                  "\" mediaToRemove=\"" + std::to_string(media("V1.a")->xmlIdent()) +
                  "\" >\n</RemoveLinkCmd>\n",
              xmlOf(*removeLink("A1.a", "V1.a")));
}

TEST_F(RemoveLinkCmdTest, ACloneUnlinksTheSameWay)
{
    given("A1: aaa / V1: aaa");
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(removeLink("A1.a", "V1.a")->clone())));
    EXPECT_FALSE(media("A1.a")->isLinkedWith(media("V1.a")));
    EXPECT_TRUE(media("V1.a")->isLinkedWith(media("A1.a")));
}

}  // namespace
}  // namespace test
}  // namespace tarn
