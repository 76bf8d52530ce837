// All of 12,000 mixed commands taken back and done again, beside executing them.

#include "support/BenchProject.h"
#include "support/Workload.h"

#include "commands/CommandHistory.h"
#include "commands/MoveCmd.h"
#include "commands/TrimEndCmd.h"
#include "commands/TrimStartCmd.h"
#include "project/Project.h"
#include "timeline/Media.h"
#include "timeline/Track.h"

#include <vector>

namespace tarn {
namespace bench {
namespace {

std::int64_t const k_medias = 1000;
std::int64_t const k_commands = 12 * k_medias;
long long const k_step = 4 * BenchProject::k_length;

/// Twelve edits of one media, after which it lies as before.
void editMedia(BenchProject const& project, boost::shared_ptr<Media const> const& media)
{
    boost::shared_ptr<Track> const& track = project.sounds();
    for (long long const there : {1ll, 2ll}) {
        project.execute(MoveCmd::create(track, media, there));
        project.execute(TrimEndCmd::create(track, media, -there));
        project.execute(TrimStartCmd::create(track, media, there));
        project.execute(TrimStartCmd::create(track, media, -there));
        project.execute(TrimEndCmd::create(track, media, there));
        project.execute(MoveCmd::create(track, media, -there));
    }
}

/// A project whose medias are spread out for these edits.
struct EditedProject
{
    EditedProject()
    {
        project.placeSounds(k_medias, k_step);
        for (auto entry = project.sounds()->mediaBegin(); entry != project.sounds()->mediaEnd();
             ++entry)
            medias.push_back(entry->second);
    }

    void executeAll() const
    {
        for (boost::shared_ptr<Media const> const& media : medias)
            editMedia(project, media);
    }

    BenchProject project;
    std::vector<boost::shared_ptr<Media const>> medias;
};

void executeMixed(benchmark::State& state)
{
    EditedProject const edited;
    for (auto _ : state) {
        edited.executeAll();
        state.PauseTiming();
        edited.project.forgetHistory();
        state.ResumeTiming();
    }
    countOperations(state, k_commands);
}

void undoAndRedoMixed(benchmark::State& state)
{
    EditedProject const edited;
    edited.executeAll();
    boost::shared_ptr<Project> const project = edited.project.project();
    for (auto _ : state) {
        for (std::int64_t i = 0; i < k_commands; ++i)
            project->undo();
        for (std::int64_t i = 0; i < k_commands; ++i)
            project->redo();
    }
    countOperations(state, 2 * k_commands);
}

/// The limit is executing the same commands in the first place.
void undoAndRedoMixed_limit(benchmark::State& state)
{
    executeMixed(state);
}

BENCHMARK(undoAndRedoMixed)->Arg(k_commands);
BENCHMARK(undoAndRedoMixed_limit)->Arg(k_commands);

}  // namespace
}  // namespace bench
}  // namespace tarn
