// A first project: load a file, place it, split it, fade it in, take it all back.
//
//     first_project MOVIE          a movie of at least three seconds

#include <TarnMediaLib/TarnMediaLib.h>

#include <iostream>

namespace {

void print(std::string const& what, tarn::Track const& track)
{
    std::cout << what << ":";
    for (auto entry = track.mediaBegin(); entry != track.mediaEnd(); ++entry) {
        tarn::Media const& media = *entry->second;
        std::cout << " [" << media.startTime() << ", " << media.endTime() << ")";
        if (!media.leftEdgeModifications().empty())
            std::cout << " fades in over " << media.leftEdgeModificationLength();
    }
    std::cout << "\n";
}

//! [edits]
void edit(std::string const& movie)
{
    // 30 edit units a second, for the life of the project.
    boost::shared_ptr<tarn::Project> const project = tarn::Project::create(30, 1);
    project->execute(tarn::LoadSourceCmd::create(movie));
    project->execute(tarn::NewVisualMixerCmd::create(1280, 720));
    project->execute(tarn::NewVisualTrackCmd::create(-1));

    // What was loaded lies in the bin; a clone of its pictures goes on the track.
    boost::shared_ptr<tarn::Source> const source = *project->sourceBin()->begin();
    boost::shared_ptr<tarn::AbstractVisualTrack> const track =
        project->timeline()->visualMixer()->trackAtIndex(0);
    auto const place = tarn::AddSourceCmd::create(source, 0, tarn::Range<long long>());
    place->addTrackMap<tarn::AbstractVisualTrack>(
        source->timeline()->visualMixer()->trackAtIndex(0), track);
    project->execute(place);
    print("placed", *track);

    project->execute(tarn::SplitCmd::create(track, 60));
    print("split at 60", *track);

    auto const first =
        boost::dynamic_pointer_cast<tarn::VMFile const>(track->mediaAtTime(0).second);
    project->execute(tarn::AddLeftEdgeModCmd::create(
        first, tarn::EdgeModification(first->opacity(), tarn::FadeInFunc())));
    project->execute(tarn::MoveLeftEdgeModCmd::create(first, 15));
    print("faded", *track);

    project->undo();  // the length of the fade
    project->undo();  // the fade
    project->undo();  // the split
    print("three steps back", *track);
}
//! [edits]

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    try {
        edit(argv[1]);
    } catch (tarn::TarnMediaLibException const& failure) {
        std::cerr << failure.what() << "\n";
        return 1;
    }
}
