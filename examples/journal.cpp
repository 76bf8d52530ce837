// A journal of every primitive: what commands really do to the project, those that undo and redo
// included. A host keeps such a journal for a crash report, or to send edits to another process.

#include <TarnMediaLib/TarnMediaLib.h>

#include <iostream>

namespace {

using boost::shared_ptr;

//! [journal]
/// Stands between the commands and a project for as long as it lives.
class Journal : public tarn::ForwardingHandler
{
public:
    // The project is both: the host's door, and the primitives that commands call.
    explicit Journal(tarn::InternalProject& project)
        : tarn::ForwardingHandler(project), m_project(project)
    {
        m_project.setCommandHandler(this);
    }
    ~Journal() override { m_project.setCommandHandler(&m_project); }

    /// Where the name of the primitive is not enough, the operation itself is overridden.
    void move(shared_ptr<tarn::Track const> const& track,
              shared_ptr<tarn::Media const> const& media, long long offset) override
    {
        m_detail = " by " + std::to_string(offset);
        tarn::ForwardingHandler::move(track, media, offset);
    }

private:
    // Called before the primitive is: nothing has changed yet.
    void before(char const* primitive, shared_ptr<tarn::Media const> const& media) override
    {
        std::cout << "  " << primitive << m_detail;
        m_detail.clear();
        if (media)
            std::cout << " [" << media->startTime() << ", " << media->endTime() << ")";
        std::cout << "\n";
    }

    tarn::InternalProject& m_project;
    std::string m_detail;
};
//! [journal]

}  // namespace

int main()
{
    shared_ptr<tarn::Project> const project = tarn::Project::create(30, 1);
    project->execute(tarn::NewVisualMixerCmd::create(1280, 720));
    project->execute(tarn::NewVisualTrackCmd::create(-1));
    shared_ptr<tarn::Track const> const track = project->timeline()->visualMixer()->trackAtIndex(0);
    shared_ptr<tarn::TextBox> const box(new tarn::TextBox("a", 0, 30, 0, 30, project, 320, 60));

    shared_ptr<tarn::TextBox> const next(new tarn::TextBox("b", 0, 20, 0, 20, project, 320, 60));
    project->execute(tarn::AddMediaCmd::create(track, next, 100));

    Journal const journal(*boost::dynamic_pointer_cast<tarn::InternalProject>(project));
    std::cout << "place\n";
    project->execute(tarn::AddMediaCmd::create(track, box, 0));
    std::cout << "move it and what follows\n";
    project->execute(tarn::RippleMoveCmd::create(track, box, 60));
    std::cout << "fade\n";
    project->execute(tarn::AddLeftEdgeModCmd::create(
        box, tarn::EdgeModification(box->opacity(), tarn::FadeInFunc())));
    std::cout << "undo\n";
    project->undo();
    std::cout << "undo\n";
    project->undo();
    std::cout << "redo\n";
    project->redo();
}
