#include "commands/RemoveSelectMediaCmd.h"

#include "support/CommandXml.h"
#include "support/ModelTest.h"

#include "exceptions/DanglingWeakPtrException.h"
#include "timeline/Media.h"
#include "timeline/Timeline.h"

#include <vector>

namespace tarn {
namespace test {

namespace {

class RemoveSelectMediaCmdTest : public ModelTest
{
protected:
    boost::shared_ptr<RemoveSelectMediaCmd> removeAll(std::vector<std::string> const& names) const
    {
        std::vector<boost::shared_ptr<Media const>> medias;
        for (std::string const& name : names) {
            medias.push_back(media(name));
        }
        return RemoveSelectMediaCmd::create(timeline(), medias);
    }
};

}  // namespace

TEST_F(RemoveSelectMediaCmdTest, TakesTheSelectedAndNothingElse)
{
    given("A1: bbb / V1: aaa.cc / V2: dd");
    EXPECT_TRUE(edits(removeAll({"V1.a", "A1.b"}), "V1: ....cc / V2: dd"));
}

TEST_F(RemoveSelectMediaCmdTest, TakesWhatIsLinkedAlong)
{
    given("A1: aaa..bb / V1: aaa.cc");
    EXPECT_TRUE(edits(removeAll({"V1.a"}), "A1: .....bb / V1: ....cc"));
}

TEST_F(RemoveSelectMediaCmdTest, AGroupSelectedWholeIsRemovedOnce)
{
    given("A1: aaa..bb / A2: aaa / V1: aaa.cc");
    boost::shared_ptr<RemoveSelectMediaCmd> const command =
        removeAll({"V1.a", "A2.a", "A1.a", "A1.b"});
    EXPECT_TRUE(edits(command, "V1: ....cc"));
    EXPECT_EQ(2u, command->numUndoCommands());
}

TEST_F(RemoveSelectMediaCmdTest, AMediaSelectedTwiceIsRemovedOnce)
{
    given("V1: aaabb");
    EXPECT_TRUE(edits(removeAll({"V1.a", "V1.a"}), "V1: ...bb"));
}

TEST_F(RemoveSelectMediaCmdTest, AnEmptySelectionTakesNothingSuccessfully)
{
    given("V1: aaabb");
    EXPECT_TRUE(edits(removeAll({}), "V1: aaabb"));
}

TEST_F(RemoveSelectMediaCmdTest, AMediaOffItsTrackIsRefusedAndTheOthersComeBack)
{
    given("V1: aaabbcc");
    project->execute(remove("V1.b"));
    EXPECT_TRUE(refuses<TarnMediaLibException>(removeAll({"V1.a", "V1.b", "V1.c"}),
                                               "attempting to remove with null parent"));
}

TEST_F(RemoveSelectMediaCmdTest, ADeadLinkIsRefused)
{
    given("V1: aaabb");
    media("V1.a")->link(freshSound('a', 3));
    EXPECT_THROW(project->execute(removeAll({"V1.b", "V1.a"})),
                 DanglingWeakPtrException<Media const>);
    EXPECT_EQ("V1: aaabb", strip());
}

TEST_F(RemoveSelectMediaCmdTest, ACloneRemovesTheSameAndRanNothing)
{
    given("V1: aaabb");
    boost::shared_ptr<RemoveSelectMediaCmd> const original = removeAll({"V1.a"});
    project->execute(original);
    project->undo();
    boost::shared_ptr<RemoveSelectMediaCmd> const clone(original->clone());
    EXPECT_EQ(0u, clone->numUndoCommands());
    EXPECT_TRUE(edits(clone, "V1: ...bb"));
}

TEST_F(RemoveSelectMediaCmdTest, PrintsTheTimeline)
{
    given("V1: aaabb");
    EXPECT_EQ(emptyElement("RemoveSelectMediaCmd", identAttribute("target", timeline())),
              xmlOf(*removeAll({"V1.a"})));
}

}  // namespace test
}  // namespace tarn
