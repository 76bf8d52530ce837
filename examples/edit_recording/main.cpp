// A host of the library from start to end: it loads media files into a project, lays them on
// tracks, edits them, takes every edit back and runs every one again.
//
//     edit_recording FILE...
//
// Everything a host does is one of three things: it makes a command and hands it to
// Project::execute, it calls undo or redo, or it reads the model.

#include "BinTable.h"
#include "FramePicture.h"

#include <TarnMediaLib/TarnMediaLib.h>
#include <drawing/TimelinePicture.h>

#include <fstream>
#include <iostream>
#include <regex>
#include <sstream>

namespace {

using boost::shared_ptr;

/// The host: a project, and how it reports each step.
class Host
{
public:
    Host() : project(tarn::Project::create(30, 1)) {}

    /// Runs a command as one undoable step.
    void run(std::string const& what, shared_ptr<tarn::Command> const& command)
    {
        project->execute(command);
        ++m_steps;
        std::cout << "  [" << (m_steps < 10 ? " " : "") << m_steps << "] " << what << std::endl;
    }

    int steps() const { return m_steps; }

    /// What a parentless object needs to be made for this project.
    boost::weak_ptr<tarn::ThreadSafe const> lock() const { return project; }

    shared_ptr<tarn::Project> project;

private:
    int m_steps = 0;
};

void say(std::string const& title)
{
    std::cout << "\n" << title << std::endl;
}

/// @returns false when a file could not be loaded; those before it stay in the bin
bool loadFiles(Host& host, std::vector<std::string> const& files)
{
    say("Loading " + std::to_string(files.size()) + " files into the bin");
    for (std::string const& file : files) {
        try {
            host.run("load " + file, tarn::LoadSourceCmd::create(file));
        } catch (tarn::TarnMediaLibException const& failure) {
            std::cerr << "cannot load " << file << ": " << failure.what() << std::endl;
            return false;
        }
    }
    return true;
}

/// The first source in the bin that has, or lacks, pictures and sound as asked; empty if none has.
shared_ptr<tarn::Source> findSource(tarn::Project const& project,
                                    tarn::MediaFileStats::TrackType first)
{
    shared_ptr<tarn::SourceBin const> const bin = project.sourceBin();
    for (auto source = bin->begin(); source != bin->end(); ++source)
        if ((*source)->mediaFileStats()->trackType(0) == first)
            return *source;
    return shared_ptr<tarn::Source>();
}

void makeTracks(Host& host)
{
    say("Making mixers and tracks");
    host.run("a visual mixer of 640 x 480", tarn::NewVisualMixerCmd::create(640, 480));
    host.run("an audio mixer of 44100 Hz", tarn::NewAudioMixerCmd::create(44100, 16, 2));
    host.run("track V1", tarn::NewVisualTrackCmd::create(-1));
    host.run("track V2", tarn::NewVisualTrackCmd::create(-1));
    host.run("track V3", tarn::NewVisualTrackCmd::create(-1));
    host.run("track A1", tarn::NewAudioTrackCmd::create(-1));
    host.run("track A2", tarn::NewAudioTrackCmd::create(-1));
}

shared_ptr<tarn::AbstractVisualTrack> visualTrack(Host const& host, unsigned index)
{
    return host.project->timeline()->visualMixer()->trackAtIndex(index);
}

shared_ptr<tarn::AudioTrack> audioTrack(Host const& host, unsigned index)
{
    return host.project->timeline()->audioMixer()->trackAtIndex(index);
}

/// The media that starts at or reaches over `time`; empty if none does.
shared_ptr<tarn::Media const> mediaAt(shared_ptr<tarn::Track const> const& track, long long time)
{
    return track->mediaAtTime(time).second;
}

/// A media hangs at its anchor, which is its lower left corner until a host moves it.
void centreRecording(Host& host)
{
    auto const clip =
        boost::dynamic_pointer_cast<tarn::VisualMedia const>(mediaAt(visualTrack(host, 0), 0));
    if (!clip)
        return;
    host.run("centre it: the anchor to half its width",
             tarn::ChangeKeyFrameCmd<double>::create(clip->anchor()->at(0), 0, clip->width() / 2));
    // The second half of what the user sees as one edit, and undoes as one.
    host.project->combineNextCommand();
    host.project->execute(
        tarn::ChangeKeyFrameCmd<double>::create(clip->anchor()->at(1), 0, clip->height() / 2));
}

/// Centres a media on a point of the picture plane, whose middle is (0, 0), y upwards.
///
/// Only for one that lies on no track yet: that is the host's own, and changed directly.
void centreOn(tarn::Point const& point, double scale, shared_ptr<tarn::VisualMedia> const& media)
{
    media->anchor()->at(0)->changeKeyFrame(0, media->width() / 2);
    media->anchor()->at(1)->changeKeyFrame(0, media->height() / 2);
    media->scale()->at(0)->changeKeyFrame(0, scale);
    media->scale()->at(1)->changeKeyFrame(0, scale);
    media->translation()->at(0)->changeKeyFrame(0, point.x);
    media->translation()->at(1)->changeKeyFrame(0, point.y);
}

/// Places every track of the recording, linked, so that picture and sound move as one.
void placeRecording(Host& host, shared_ptr<tarn::Source> const& recording)
{
    auto const place = tarn::AddSourceCmd::create(recording, 0, tarn::Range<long long>());
    if (auto const pictures = recording->timeline()->visualMixer())
        place->addTrackMap<tarn::AbstractVisualTrack>(pictures->trackAtIndex(0),
                                                      visualTrack(host, 0));
    if (auto const sounds = recording->timeline()->audioMixer())
        place->addTrackMap<tarn::AudioTrack>(sounds->trackAtIndex(0), audioTrack(host, 0));
    host.run("place the recording on V1 and A1, linked", place);
    centreRecording(host);
}

void placeStill(Host& host, shared_ptr<tarn::Source> const& picture)
{
    shared_ptr<tarn::IMFile> const still(new tarn::IMFile(0, 90, host.lock(), picture, 0));
    centreOn(tarn::Point(220, -160, 0), 0.5, still);
    host.run("place the still picture on V2 at 30",
             tarn::AddMediaCmd::create(visualTrack(host, 1), still, 30));
}

void placeMusic(Host& host, shared_ptr<tarn::Source> const& music)
{
    // The medias inside a source are prototypes: a host places clones of them.
    shared_ptr<tarn::Media const> const prototype = *music->mediaBegin<tarn::AudioMedia const>();
    host.run("place the music on A2",
             tarn::AddMediaCmd::create(audioTrack(host, 1), tarn::sharedClone(prototype), 0));
}

void trimAndStretch(Host& host)
{
    say("Moving, trimming, stretching");
    shared_ptr<tarn::Track const> const track = visualTrack(host, 0);
    shared_ptr<tarn::Media const> const clip = mediaAt(track, 0);
    long long const half = clip->duration() / 2;
    host.run("trim a tenth off its start", tarn::TrimStartCmd::create(track, clip, half / 5));
    host.run("move it back to 0", tarn::MoveCmd::create(track, clip, -clip->startTime()));
    host.run("trim a tenth off its end", tarn::TrimEndCmd::create(track, clip, half / 5));
    host.run("play it at half speed", tarn::StretchCmd::create(track, clip, 2.0));
    host.run("and at natural speed again", tarn::StretchCmd::create(track, clip, 1.0));
}

void refuseCollision(Host& host)
{
    shared_ptr<tarn::Track const> const track = visualTrack(host, 0);
    shared_ptr<tarn::Media const> const clip = mediaAt(track, 0);
    try {
        host.project->execute(
            tarn::AddMediaCmd::create(track, tarn::sharedClone(clip), clip->duration() / 2));
    } catch (tarn::CollisionException const& refusal) {
        std::cout << "  [--] refused, as it must be: a second clip across the first\n       \""
                  << refusal.what() << "\" (" << refusal.medias()->size()
                  << " media in the way; nothing has changed)" << std::endl;
    }
}

void removeRange(Host& host)
{
    auto const removal =
        tarn::RemoveRangeMediaCmd::create(host.project->timeline(), tarn::Range<long long>(60, 15));
    removal->addTrack(visualTrack(host, 0));
    host.run("remove 60 to 75 of V1 and what is linked with it", removal);
}

/// The verbs of an editor: each is one step, however many medias it touches.
void cutAndPaste(Host& host)
{
    say("Splitting, cutting, rippling, copying, inserting, cloning");
    shared_ptr<tarn::Timeline> const timeline = host.project->timeline();
    shared_ptr<tarn::AbstractVisualTrack> const pictures = visualTrack(host, 0);
    shared_ptr<tarn::AudioTrack> const sounds = audioTrack(host, 0);

    host.run("split picture and sound at 30", tarn::SplitCmd::create(pictures, 30));
    host.run("cut 40 to 50 out of the middle",
             tarn::IntraMediaCutCmd::create(pictures, tarn::Range<long long>(40, 10)));
    host.run("close the gap: everything from 50 on moves left by 10",
             tarn::RippleMoveCmd::create(pictures, mediaAt(pictures, 50), -10));

    auto const copy =
        tarn::CopyRangeClippingCmd::create(timeline, tarn::Range<long long>(0, 30), "the opening");
    copy->addTrack(pictures);
    host.run("copy 0 to 30", copy);

    shared_ptr<tarn::Clipping> const clipping = copy->clipping();
    shared_ptr<tarn::InsertClippingCmd> const insert(new tarn::InsertClippingCmd(clipping, 40));
    shared_ptr<tarn::Timeline> const copied = clipping->timeline();
    insert->addTrackMap<tarn::AbstractVisualTrack>(copied->visualMixer()->trackAtIndex(0),
                                                   pictures);
    if (copied->hasAudioMixer())
        insert->addTrackMap<tarn::AudioTrack>(copied->audioMixer()->trackAtIndex(0), sounds);
    host.run("insert the copy at 40, behind a gap of its own length", insert);

    auto const clones = tarn::CloneAddLinkMediasCmd::create(timeline->endTime() + 30);
    shared_ptr<tarn::Media const> const first = mediaAt(pictures, 0);
    clones->addMapping(pictures, first);
    if (first->linkBegin() != first->linkEnd())
        clones->addMapping(sounds, first->linkBegin()->lock());
    host.run("clone the first clip behind the end, with its link", clones);
}

void animate(Host& host)
{
    say("Key frames, edges, effects, a callout and a text box");
    auto const clip =
        boost::dynamic_pointer_cast<tarn::VMFile const>(mediaAt(visualTrack(host, 0), 0));
    if (!clip)
        return;
    // Key frames lie on the clock of the source: local time 0 is where the media starts in it.
    long long const from = static_cast<long long>(clip->toParameterTime(0));
    host.run("opacity: a key frame of 0.4 a second in",
             tarn::AddKeyFrameCmd<double>::create(clip->opacity(), from + 30, 0.4));
    host.run("translation: to the right by 80 a second in",
             tarn::AddKeyFrameCmd<double>::create(clip->translation()->at(0), from + 30, 80.0));

    host.run("a fade-in", tarn::AddLeftEdgeModCmd::create(
                              clip, tarn::EdgeModification(clip->opacity(), tarn::FadeInFunc())));
    host.run("over its first 15 units", tarn::MoveLeftEdgeModCmd::create(clip, 15));
    host.run("a drop shadow",
             tarn::AddEffectCmd::create(clip, shared_ptr<tarn::Effect>(new tarn::GenericEffect(
                                                  "DropShadow", host.lock()))));
}

void decorateStill(Host& host)
{
    auto const still =
        boost::dynamic_pointer_cast<tarn::IMFile const>(mediaAt(visualTrack(host, 1), 30));
    if (!still)
        return;
    host.run(
        "the still slides in from the left",
        tarn::AddLeftEdgeModCmd::create(
            still, tarn::EdgeModification(still->translation()->at(0), tarn::MixerXSlideInFunc())));
    host.run("over its first 20 units", tarn::MoveLeftEdgeModCmd::create(still, 20));
    host.run("it glows",
             tarn::AddEffectCmd::create(
                 still, shared_ptr<tarn::Effect>(new tarn::GenericEffect("Glow", host.lock()))));
    // What else there is depends on the machine.
    for (std::string const& name : tarn::EffectLibrary::instance()->visualEffects()) {
        if (name.compare(0, 7, "frei0r.") != 0)
            continue;
        host.run("and has an effect of this machine: " + name,
                 tarn::AddEffectCmd::create(
                     still, shared_ptr<tarn::Effect>(new tarn::GenericEffect(name, host.lock()))));
        break;
    }
}

void annotate(Host& host, shared_ptr<tarn::Source> const& picture)
{
    shared_ptr<tarn::TextBox> const title(
        new tarn::TextBox("Recorded with TarnMediaLib", 0, 60, 0, 60, host.lock(), 300, 60));
    centreOn(tarn::Point(0, 190, 0), 1, title);
    host.run("a text box on V3", tarn::AddMediaCmd::create(visualTrack(host, 2), title, 0));
    if (!picture)
        return;
    shared_ptr<tarn::Callout> const callout(new tarn::Callout(0, 60, host.lock(), picture, 0));
    centreOn(tarn::Point(-200, 130, 0), 0.5, callout);
    callout->textParam()->changeKeyFrame(0, "Look here");
    host.run("a callout on V3", tarn::AddMediaCmd::create(visualTrack(host, 2), callout, 75));
}

/// A click on the preview names the media under it.
void click(Host& host)
{
    say("Clicking on the picture");
    shared_ptr<tarn::VisualMixer const> const mixer = host.project->timeline()->visualMixer();
    tarn::Point const location(200, -150, 0);
    long long const time = 100;
    auto const hit = tarn::HitTester::hitTestAtLocation(mixer, location, time);
    std::cout << "  at time " << time << ", at " << location << ": "
              << (hit.first ? "a " + hit.first->description() : "nothing");
    if (hit.first)
        std::cout << ", at " << hit.second << " of its own picture";
    std::cout << std::endl;
    drawFrame(mixer, time, location, "out/frame.svg");
}

/// The project as text. Identity numbers are the run's own affair, so they are taken out.
std::string textOf(tarn::Project const& project)
{
    std::ostringstream xml;
    project.toXML(xml);
    static std::regex const idents("(id|link|src|parameter)=\"[0-9]+\"");
    return std::regex_replace(xml.str(), idents, "$1=\"\"");
}

/// @returns whether undoing and redoing gives the same text at every step
bool undoAndRedo(Host& host, std::string const& empty)
{
    say("Undoing everything, redoing everything");
    std::vector<std::string> texts;
    for (int step = 0; step < host.steps(); ++step) {
        texts.push_back(textOf(*host.project));
        host.project->undo();
    }
    bool same = textOf(*host.project) == empty;
    std::cout << "  " << host.steps() << " steps undone: the project is "
              << (same ? "as empty as it was" : "NOT as it was") << std::endl;
    for (int step = host.steps(); step-- > 0;) {
        host.project->redo();
        same = textOf(*host.project) == texts[static_cast<std::size_t>(step)] && same;
    }
    std::cout << "  " << host.steps() << " steps redone: the text of every step is "
              << (same ? "the same" : "NOT the same") << std::endl;
    return same;
}

void writeFiles(Host const& host)
{
    std::ofstream xml("out/project.xml");
    host.project->toXML(xml);
    tarn::drawing::drawTimeline(*host.project->timeline(), "out/timeline.svg");
    say("Wrote out/project.xml, out/timeline.svg and out/frame.svg");
}

int edit(std::vector<std::string> const& files)
{
    Host host;
    std::string const empty = textOf(*host.project);
    bool const loaded = loadFiles(host, files);
    printBin(std::cout, *host.project);
    if (!loaded)
        return 1;

    shared_ptr<tarn::Source> const recording =
        findSource(*host.project, tarn::MediaFileStats::Video);
    shared_ptr<tarn::Source> const picture = findSource(*host.project, tarn::MediaFileStats::Image);
    shared_ptr<tarn::Source> const music = findSource(*host.project, tarn::MediaFileStats::Audio);
    makeTracks(host);
    say("Placing what was loaded");
    if (recording)
        placeRecording(host, recording);
    if (picture)
        placeStill(host, picture);
    if (music)
        placeMusic(host, music);
    if (recording && recording->timeRange().duration >= 120) {
        trimAndStretch(host);
        refuseCollision(host);
        removeRange(host);
        cutAndPaste(host);
        animate(host);
    }
    decorateStill(host);
    annotate(host, picture);
    click(host);
    bool const same = undoAndRedo(host, empty);
    writeFiles(host);
    return same ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::cerr << "usage: edit_recording FILE..." << std::endl;
        return 2;
    }
    try {
        return edit(std::vector<std::string>(argv + 1, argv + argc));
    } catch (std::exception const& failure) {
        std::cerr << "edit_recording: " << failure.what() << std::endl;
        return 1;
    }
}
