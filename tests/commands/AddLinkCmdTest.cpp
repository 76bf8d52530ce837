#include "commands/AddLinkCmd.h"

#include "exceptions/TarnMediaLibException.h"
#include "support/Links.h"
#include "support/ModelTest.h"
#include "support/Xml.h"

namespace tarn {
namespace test {
namespace {

class AddLinkCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<Command> addLink(std::string const& name, std::string const& other) const
    {
        return AddLinkCmd::create(media(name), media(other));
    }
};

TEST_F(AddLinkCmdTest, LinksOneWay)
{
    given("A1: aaa / V1: bbb");
    EXPECT_TRUE(edits(addLink("A1.a", "V1.b"), "A1: aaa / V1: bbb"));
    EXPECT_TRUE(media("A1.a")->isLinkedWith(media("V1.b")));
    EXPECT_FALSE(media("V1.b")->isLinkedWith(media("A1.a")));
}

TEST_F(AddLinkCmdTest, UndoLeavesNoLink)
{
    given("A1: aaa / V1: bbb");
    project->execute(addLink("A1.a", "V1.b"));
    project->undo();
    EXPECT_TRUE(linksOf(media("A1.a")).empty());
    project->redo();
    EXPECT_TRUE(media("A1.a")->isLinkedWith(media("V1.b")));
}

TEST_F(AddLinkCmdTest, UnequalLengthsAreRefused)
{
    given("A1: aaa / V1: bbbb");
    EXPECT_TRUE(refuses<TarnMediaLibException>(addLink("A1.a", "V1.b"), "unable to link media"));
}

TEST_F(AddLinkCmdTest, UnequalStartsAreRefused)
{
    given("A1: aaa / V1: .bbb");
    EXPECT_TRUE(refuses<TarnMediaLibException>(addLink("A1.a", "V1.b"), "unable to link media"));
}

TEST_F(AddLinkCmdTest, UnequalMediaRangesAreRefused)
{
    // A still starts at 0 on its source's clock, the sound at 500.
    given("A1: aaa / V1: sss");
    EXPECT_TRUE(refuses<TarnMediaLibException>(addLink("A1.a", "V1.s"), "unable to link media"));
}

TEST_F(AddLinkCmdTest, AMediaIsNotLinkedWithItself)
{
    given("V1: aaa");
    EXPECT_TRUE(refuses<TarnMediaLibException>(addLink("V1.a", "V1.a"), "unable to link media"));
}

TEST_F(AddLinkCmdTest, WhatIsLinkedIsRefused)
{
    given("A1: aaa / V1: aaa");
    EXPECT_TRUE(refuses<TarnMediaLibException>(addLink("A1.a", "V1.a"), "unable to link media"));
}

TEST_F(AddLinkCmdTest, NamesBothMediasInXml)
{
    given("A1: aaa / V1: bbb");
    EXPECT_EQ("<AddLinkCmd id=\"#\" media=\"" + std::to_string(media("A1.a")->xmlIdent()) +
                  "\" mediaToAdd=\"" + std::to_string(media("V1.b")->xmlIdent()) +
                  "\" >\n</AddLinkCmd>\n",
              xmlOf(*addLink("A1.a", "V1.b")));
}

TEST_F(AddLinkCmdTest, ACloneLinksTheSameWay)
{
    given("A1: aaa / V1: bbb");
    EXPECT_TRUE(edits(boost::shared_ptr<Command>(addLink("A1.a", "V1.b")->clone())));
    EXPECT_TRUE(media("A1.a")->isLinkedWith(media("V1.b")));
    EXPECT_FALSE(media("V1.b")->isLinkedWith(media("A1.a")));
}

}  // namespace
}  // namespace test
}  // namespace tarn
