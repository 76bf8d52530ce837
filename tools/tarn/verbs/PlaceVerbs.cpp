#include "script/Model.h"
#include "script/ScriptError.h"
#include "script/Steps.h"
#include "script/Values.h"
#include "verbs/Verbs.h"

#include <TarnMediaLib/clipbin/MediaFileStats.h>
#include <TarnMediaLib/clipbin/SourceBin.h>
#include <TarnMediaLib/commands/AddMediaCmd.h>
#include <TarnMediaLib/commands/AddSourceCmd.h>
#include <TarnMediaLib/commands/LoadSourceCmd.h>
#include <TarnMediaLib/timeline/AbstractVisualTrack.h>
#include <TarnMediaLib/timeline/AudioMixer.h>
#include <TarnMediaLib/timeline/AudioTrack.h>
#include <TarnMediaLib/timeline/IMFile.h>
#include <TarnMediaLib/timeline/TextBox.h>
#include <TarnMediaLib/timeline/VisualMixer.h>

#include <boost/make_shared.hpp>

namespace tarn::tool::verbs {

namespace {

double const k_secondsOfStill = 5;
float const k_textWidth = 400;
float const k_textHeight = 80;

/// The source that a word names, which the steps load when it is not there yet.
boost::shared_ptr<Source const> sourceFor(Stage& stage, Word const& word, Steps& steps)
{
    if (boost::shared_ptr<Source const> const named = stage.source(word)) {
        if (!stage.project().sourceBin()->containsSource(named))
            throw ScriptError(word.place, "'" + word.text + "' is not loaded now");
        return named;
    }
    std::string const path = stage.filePath(word);
    if (auto const loaded = stage.project().sourceBin()->sourceForFile(path))
        return loaded;
    auto const load = LoadSourceCmd::create(path);
    steps.run(load);
    return load->source();
}

bool isStill(Source const& source)
{
    MediaFileStats const& stats = *source.mediaFileStats();
    for (unsigned i = 0; i < stats.numTracks(); ++i)
        if (stats.trackType(i) != MediaFileStats::Image)
            return false;
    return true;
}

boost::shared_ptr<Media const> placeStill(Stage& stage, Statement const& statement,
                                          boost::shared_ptr<Source const> const& source,
                                          Steps& steps)
{
    std::vector<Word> const& tracks = statement.words("on");
    if (tracks.size() > 1)
        throw ScriptError(tracks[1].place, "a still picture lies on one track");
    long long const duration =
        statement.has("for") ? stage.time(statement.word("for"))
                             : WrittenTime{true, 0, k_secondsOfStill}.at(stage.unitsPerSecond());
    auto const still = boost::make_shared<IMFile>(0, duration, stage.lock(), source, 0u);
    steps.run(AddMediaCmd::create(stage.track(tracks[0]), still, stage.time(statement.word("at"))));
    return still;
}

/// The track of a source that goes to a track of the project: the first of its kind to the first
/// of that kind named, and so on.
template <class T, class M>
boost::shared_ptr<T const> sourceTrack(boost::shared_ptr<M const> const& mixer, unsigned index,
                                       Word const& word)
{
    if (!mixer || index >= mixer->numTracks())
        throw ScriptError(word.place, "the file has nothing for " + word.text);
    return mixer->trackAtIndex(index);
}

void mapTracks(Stage& stage, std::vector<Word> const& words, Timeline const& source,
               AddSourceCmd& command)
{
    boost::shared_ptr<VisualMixer const> const pictures = source.visualMixer();
    boost::shared_ptr<AudioMixer const> const sounds = source.audioMixer();
    unsigned picture = 0;
    unsigned sound = 0;
    for (Word const& word : words) {
        boost::shared_ptr<Track const> const track = stage.track(word);
        if (word.text[0] == 'V')
            command.addTrackMap<AbstractVisualTrack>(
                sourceTrack<AbstractVisualTrack>(pictures, picture++, word),
                boost::dynamic_pointer_cast<AbstractVisualTrack const>(track));
        else
            command.addTrackMap<AudioTrack>(sourceTrack<AudioTrack>(sounds, sound++, word),
                                            boost::dynamic_pointer_cast<AudioTrack const>(track));
    }
}

boost::shared_ptr<Media const> placeMovie(Stage& stage, Statement const& statement,
                                          boost::shared_ptr<Source const> const& source,
                                          Steps& steps)
{
    if (statement.has("for"))
        throw ScriptError(statement.word("for").place, "'for' is for still pictures; trim this");
    std::vector<Word> const& tracks = statement.words("on");
    long long const at = stage.time(statement.word("at"));
    auto const command = AddSourceCmd::create(source, at, Range<long long>());
    mapTracks(stage, tracks, *source->timeline(), *command);
    steps.run(command);
    boost::shared_ptr<Track const> const first = stage.track(tracks[0]);
    return first->mediaAtTime(at).second;
}

}  // namespace

Edit load(Stage& stage, Statement const& statement)
{
    auto const command = LoadSourceCmd::create(stage.filePath(statement.word("FILE")));
    return {command,
            [&stage, statement, command] { stage.nameSource(statement, command->source()); }};
}

Edit place(Stage& stage, Statement const& statement)
{
    auto const placed = boost::make_shared<boost::shared_ptr<Media const>>();
    auto const steps = Steps::create("Place", [&stage, statement, placed](Steps& run) {
        auto const source = sourceFor(stage, statement.word("SOURCE"), run);
        *placed = isStill(*source) ? placeStill(stage, statement, source, run)
                                   : placeMovie(stage, statement, source, run);
    });
    return {steps, [&stage, statement, placed] { stage.nameMedia(statement, *placed); }};
}

Edit text(Stage& stage, Statement const& statement)
{
    long long const duration = stage.time(statement.word("for"));
    float width = k_textWidth;
    float height = k_textHeight;
    if (statement.has("size")) {
        auto const size = readSize(statement.word("size").text);
        width = static_cast<float>(size->first);
        height = static_cast<float>(size->second);
    }
    auto const box =
        boost::make_shared<TextBox>(statement.word("TEXT").text, 0, duration, 0.0,
                                    static_cast<double>(duration), stage.lock(), width, height);
    return {AddMediaCmd::create(stage.track(statement.word("on")), box,
                                stage.time(statement.word("at"))),
            [&stage, statement, box] { stage.nameMedia(statement, box); }};
}

Edit clone(Stage& stage, Statement const& statement)
{
    boost::shared_ptr<Media> const copy = sharedClone(stage.media(statement.word("MEDIA")));
    return {AddMediaCmd::create(stage.track(statement.word("on")), copy,
                                stage.time(statement.word("at"))),
            [&stage, statement, copy] { stage.nameMedia(statement, copy); }};
}

}  // namespace tarn::tool::verbs
