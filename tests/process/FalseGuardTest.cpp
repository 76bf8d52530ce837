// What is said before the guard's first use decides for the whole process: a process of its own.

#include "project/AddMediaGuard.h"

#include "support/OneOfEachKind.h"

#include "commands/AddMediaCmd.h"
#include "commands/NewVisualMixerCmd.h"
#include "commands/NewVisualTrackCmd.h"
#include "project/Project.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/Timeline.h"
#include "timeline/VisualMixer.h"

#include <gtest/gtest.h>

namespace tarn {
namespace test {

// One test: it depends on what came before in the process.
TEST(FalseGuardTest, ATestRunnersGuardLetsEveryMediaPassForTheRestOfTheProcess)
{
    AddMediaGuard::setIsTestRunner(false);
    AddMediaGuard::setIsTestRunner(true);  // the last one before the first use counts
    AddMediaGuard* const guard = AddMediaGuard::instance();
    AddMediaGuard::setIsTestRunner(false);
    EXPECT_EQ(guard, AddMediaGuard::instance());

    boost::shared_ptr<Project> const project = Project::create(30, 1);
    OneOfEachKind const kinds{boost::weak_ptr<ThreadSafe const>(project)};
    EXPECT_NO_THROW(guard->performGuard(project->sourceBin(), kinds.video));
    EXPECT_NO_THROW(guard->performGuard(project->sourceBin(), kinds.sound));
    EXPECT_NO_THROW(guard->performGuard(project->sourceBin(), kinds.still));

    project->execute(NewVisualMixerCmd::create(640, 480));
    project->execute(NewVisualTrackCmd::create(-1));
    boost::shared_ptr<Track> const track = project->timeline()->visualMixer()->trackAtIndex(0);
    EXPECT_TRUE(project->execute(AddMediaCmd::create(track, kinds.video, 0)));
    EXPECT_TRUE(track->hasMedia(kinds.video));
}

}  // namespace test
}  // namespace tarn
