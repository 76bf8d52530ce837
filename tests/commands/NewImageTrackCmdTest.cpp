#include "commands/NewImageTrackCmd.h"

#include "exceptions/AddRemoveException.h"
#include "exceptions/TypeException.h"
#include "support/ModelTest.h"
#include "support/Xml.h"
#include "timeline/ImageTrack.h"

namespace tarn {
namespace test {
namespace {

using NewImageTrackCmdTest = ModelTest;

TEST_F(NewImageTrackCmdTest, IsRefusedByTheVisualMixer)
{
    given("V1: aa");
    EXPECT_TRUE(refuses<TypeException>(NewImageTrackCmd::create(-1), "VisualTrack"));
}

TEST_F(NewImageTrackCmdTest, TheKindIsRefusedBeforeTheIndex)
{
    given("V1: aa");
    EXPECT_TRUE(refuses<TypeException>(NewImageTrackCmd::create(7), "VisualTrack"));
}

TEST_F(NewImageTrackCmdTest, IsRefusedWithoutAMixer)
{
    EXPECT_TRUE(refuses<AddRemoveException>(
        NewImageTrackCmd::create(-1),
        "Can't create a new audio track if we don't have a audio mixer to put it on"));
}

TEST_F(NewImageTrackCmdTest, PrintsNoTracksAsItHasNone)
{
    given("V1: aa");
    boost::shared_ptr<NewImageTrackCmd> const command = NewImageTrackCmd::create(-1);
    EXPECT_THROW(project->execute(command), TypeException);
    EXPECT_FALSE(command->track());
    EXPECT_EQ(0u, xmlOf(*command).find("<NewImageTrackCmd id=\"#\" imageTrack=\"0\" "
                                       "removedITrack=\"0\" removedITrackIndex=\""));
}

TEST_F(NewImageTrackCmdTest, ACloneIsRefusedToo)
{
    given("V1: aa");
    boost::shared_ptr<Command> const original = NewImageTrackCmd::create(-1);
    EXPECT_TRUE(refuses<TypeException>(boost::shared_ptr<Command>(original->clone())));
}

}  // namespace
}  // namespace test
}  // namespace tarn
