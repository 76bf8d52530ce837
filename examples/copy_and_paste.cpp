// Copy and paste between track layouts: what was copied from V1 and V3 goes, the same way apart,
// wherever the user points, and tracks that are missing there are made.

#include <TarnMediaLib/TarnMediaLib.h>

#include <iostream>

namespace {

using boost::shared_ptr;

/// Tracks from the front of the picture to its back, ten edit units a letter.
void print(std::string const& what, tarn::Project& project)
{
    shared_ptr<tarn::VisualMixer const> const mixer = project.timeline()->visualMixer();
    std::cout << what << "\n";
    for (unsigned index = mixer->numTracks(); index-- > 0;) {
        std::string row(8, '.');
        shared_ptr<tarn::Track const> const track = mixer->trackAtIndex(index);
        for (auto entry = track->mediaBegin(); entry != track->mediaEnd(); ++entry) {
            auto const box = boost::dynamic_pointer_cast<tarn::TextBox const>(entry->second);
            row.replace(std::size_t(box->startTime() / 10), std::size_t(box->duration() / 10),
                        std::size_t(box->duration() / 10), box->text()->valueAtTime(0)[0]);
        }
        std::cout << "  V" << index + 1 << " " << row << "\n";
    }
}

shared_ptr<tarn::TextBox> title(shared_ptr<tarn::Project> const& project, std::string const& text,
                                long long length)
{
    return shared_ptr<tarn::TextBox>(
        new tarn::TextBox(text, 0, length, 0, double(length), project, 320, 60));
}

//! [paste]
/// One step to undo: as many new tracks as are missing, then the paste. `lowest` is where the
/// lowest track of the clipping goes.
void paste(tarn::Project& project, shared_ptr<tarn::Clipping> const& clipping, unsigned lowest,
           long long time)
{
    shared_ptr<tarn::VisualMixer const> const mixer = project.timeline()->visualMixer();
    shared_ptr<tarn::VisualMixer const> const copied = clipping->timeline()->visualMixer();
    auto const put = tarn::PutClippingCmd::create(clipping, time);
    bool isFirst = true;
    for (unsigned index = 0; index < copied->numTracks(); ++index) {
        shared_ptr<tarn::AbstractVisualTrack const> const from = copied->trackAtIndex(index);
        // How far it stood above the lowest one where it was copied.
        unsigned const target = lowest + unsigned(clipping->trackPosition(from));
        for (; mixer->numTracks() <= target; isFirst = false) {
            if (!isFirst)
                project.combineNextCommand();
            project.execute(tarn::NewVisualTrackCmd::create(-1));
        }
        put->addTrackMap<tarn::AbstractVisualTrack>(from, mixer->trackAtIndex(target));
    }
    project.execute(put);  // refused with a CollisionException where something lies already
    if (!isFirst)
        project.combineLastCommands();
}
//! [paste]

}  // namespace

int main()
{
    shared_ptr<tarn::Project> const project = tarn::Project::create(30, 1);
    project->execute(tarn::NewVisualMixerCmd::create(1280, 720));
    for (int count = 0; count < 4; ++count)
        project->execute(tarn::NewVisualTrackCmd::create(-1));
    shared_ptr<tarn::VisualMixer> const mixer = project->timeline()->visualMixer();
    shared_ptr<tarn::TextBox> const a = title(project, "a", 30);
    shared_ptr<tarn::TextBox> const b = title(project, "b", 20);
    project->execute(tarn::AddMediaCmd::create(mixer->trackAtIndex(0), a, 0));
    project->execute(tarn::AddMediaCmd::create(mixer->trackAtIndex(2), b, 20));
    print("before", *project);

    auto const copy = tarn::CopySelectClippingCmd::create(project->timeline(), {a, b}, "both");
    project->execute(copy);
    paste(*project, copy->clipping(), 1, 30);
    print("pasted from V2 up, at 30", *project);
    paste(*project, copy->clipping(), 3, 0);
    print("pasted from V4 up, at 0", *project);
    project->undo();
    print("one step back", *project);
}
