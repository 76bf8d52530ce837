#include "commands/CloneCmd.h"

#include "support/CommandXml.h"
#include "support/ModelTest.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

namespace tarn {
namespace test {
namespace {

class CloneCmdTest : public ModelTest
{
protected:
    CloneCmdTest() { given("A1: aaaa / V1: aaaa"); }

    boost::shared_ptr<CloneCmd<Media>> cloning() const
    {
        return CloneCmd<Media>::create(media("V1.a"));
    }
};

TEST_F(CloneCmdTest, HasNoResultBeforeItRuns)
{
    EXPECT_FALSE(cloning()->result());
}

TEST_F(CloneCmdTest, MakesACloneThatLiesNowhere)
{
    boost::shared_ptr<CloneCmd<Media>> const command = cloning();
    EXPECT_TRUE(edits(command, "A1: aaaa / V1: aaaa"));
    ASSERT_TRUE(command->result());
    EXPECT_NE(media("V1.a"), command->result());
    EXPECT_FALSE(command->result()->parentTrack().lock());
    EXPECT_FALSE(command->result()->isLinkedWith(media("A1.a")));
    EXPECT_EQ(media("V1.a")->mediaRange(), command->result()->mediaRange());
}

TEST_F(CloneCmdTest, RedoKeepsTheClone)
{
    boost::shared_ptr<CloneCmd<Media>> const command = cloning();
    project->execute(command);
    boost::shared_ptr<Media> const clone = command->result();
    project->undo();
    EXPECT_EQ(clone, command->result());
    project->redo();
    EXPECT_EQ(clone, command->result());
}

TEST_F(CloneCmdTest, CanBeMadeByItsConstructor)
{
    boost::shared_ptr<CloneCmd<Media>> const command(new CloneCmd<Media>(media("V1.a")));
    EXPECT_TRUE(project->execute(command));
    EXPECT_TRUE(command->result());
}

TEST_F(CloneCmdTest, NamesNoCloneBeforeItHasRun)
{
    EXPECT_EQ(emptyElement("CloneCmd", identAttribute("cloneable", media("V1.a")) + " clone=\"0\""),
              xmlOf(*cloning()));
}

TEST_F(CloneCmdTest, NamesOriginalAndClone)
{
    boost::shared_ptr<CloneCmd<Media>> const command = cloning();
    project->execute(command);
    EXPECT_EQ(emptyElement("CloneCmd", identAttribute("cloneable", media("V1.a")) + " " +
                                           identAttribute("clone", command->result())),
              xmlOf(*command));
}

TEST_F(CloneCmdTest, ACloneOfTheCommandMakesAResultOfItsOwn)
{
    boost::shared_ptr<CloneCmd<Media>> const command = cloning();
    boost::shared_ptr<CloneCmd<Media>> const copy(command->clone());
    project->execute(copy);
    EXPECT_TRUE(copy->result());
    EXPECT_FALSE(command->result());
}

TEST_F(CloneCmdTest, ExecutedAgainItKeepsItsResult)
{
    boost::shared_ptr<CloneCmd<Media>> const command = cloning();
    project->execute(command);
    boost::shared_ptr<Media> const made = command->result();
    project->execute(command);
    EXPECT_EQ(made, command->result());
}

}  // namespace
}  // namespace test
}  // namespace tarn
