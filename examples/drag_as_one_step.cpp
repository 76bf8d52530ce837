// A drag as one step to undo: every movement of the mouse is an edit, and all of them are one.

#include <TarnMediaLib/TarnMediaLib.h>

#include <iostream>

namespace {

using boost::shared_ptr;

shared_ptr<tarn::Media const> place(tarn::Project& project,
                                    boost::weak_ptr<tarn::ThreadSafe const> const& lock,
                                    long long start, long long length)
{
    shared_ptr<tarn::Track const> const track = project.timeline()->visualMixer()->trackAtIndex(0);
    shared_ptr<tarn::TextBox> const box(
        new tarn::TextBox("title", 0, length, 0, double(length), lock, 320, 60));
    project.execute(tarn::AddMediaCmd::create(track, box, start));
    return box;
}

void print(std::string const& what, tarn::Project& project, tarn::Media const& media)
{
    std::cout << what << ": at " << media.startTime() << ", "
              << project.commandHistory()->numUndoCommands() << " steps to undo\n";
}

//! [drag]
/// From the press of the mouse to its release.
class Drag
{
public:
    Drag(tarn::Project& project, shared_ptr<tarn::Track const> const& track,
         shared_ptr<tarn::Media const> const& media)
        : m_project(project), m_track(track), m_media(media), m_moved(false)
    {}

    /// Where there is no room the media stays behind the mouse.
    void moveTo(long long time)
    {
        long long const offset = time - m_media->startTime();
        // Asked before, since a request to combine that an edit refused would wait for the next
        // edit, whatever that is.
        bool const isFree =
            m_track->collidingMedia(m_media, m_media->trackRangeWithMove(offset), true)->empty();
        if (!isFree || offset == 0)
            return;
        if (m_moved)
            m_project.combineNextCommand();
        m_moved = m_project.execute(tarn::MoveCmd::create(m_track, m_media, offset));
    }

private:
    tarn::Project& m_project;
    shared_ptr<tarn::Track const> m_track;
    shared_ptr<tarn::Media const> m_media;
    bool m_moved;
};
//! [drag]

}  // namespace

int main()
{
    shared_ptr<tarn::Project> const project = tarn::Project::create(30, 1);
    project->execute(tarn::NewVisualMixerCmd::create(1280, 720));
    project->execute(tarn::NewVisualTrackCmd::create(-1));
    shared_ptr<tarn::Media const> const dragged = place(*project, project, 0, 30);
    place(*project, project, 100, 20);
    print("before", *project, *dragged);

    Drag drag(*project, project->timeline()->visualMixer()->trackAtIndex(0), dragged);
    for (long long time : {10, 25, 60, 85, 70}) {
        drag.moveTo(time);
        print("mouse at " + std::to_string(time), *project, *dragged);
    }

    project->undo();
    print("one undo", *project, *dragged);
    project->redo();
    print("one redo", *project, *dragged);
}
