#include <TarnMediaLib/TarnMediaLib.h>

#include <iostream>

int main()
{
    // Headers and library of one version, told apart at compile time and at run time.
    static_assert(TARN_VERSION_MAJOR == 1, "written for version 1");
    if (tarn::libraryVersion() != TARN_VERSION)
        return 1;
    boost::shared_ptr<tarn::Project> const project = tarn::Project::create(30, 1);
    project->execute(tarn::NewVisualMixerCmd::create(640, 480));
    project->execute(tarn::NewVisualTrackCmd::create(-1));
    try {
        project->execute(tarn::NewVisualMixerCmd::create(640, 480));
        return 1;
    } catch (tarn::AddRemoveException const& refusal) {
        std::cout << refusal.what() << '\n';
    }
    project->undo();
    return project->timeline()->numTracks() == 0 ? 0 : 1;
}
