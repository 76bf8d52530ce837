#include "script/Stage.h"

#include "script/Model.h"
#include "script/ScriptError.h"
#include "script/Values.h"

#include <TarnMediaLib/commands/CommandHistory.h>
#include <TarnMediaLib/commands/NewAudioMixerCmd.h>
#include <TarnMediaLib/commands/NewVisualMixerCmd.h>
#include <TarnMediaLib/timeline/AudioMixer.h>
#include <TarnMediaLib/timeline/VisualMixer.h>

#include <boost/rational.hpp>

namespace tarn::tool {

namespace {

unsigned const k_bitDepth = 16;
unsigned const k_channels = 2;

/// The start or end of a range, said by the ending of its word.
long long edge(Range<long long> const& range, std::string const& word)
{
    return word.compare(word.size() - 3, 3, "end") == 0 ? range.end() : range.start;
}

}  // namespace

Stage::Stage(ProjectSettings const& settings, std::string const& folder, std::ostream& out)
    : m_project(Project::create(settings.rateUpper, settings.rateLower))
    , m_folder(folder)
    , m_out(out)
{
    m_project->execute(NewVisualMixerCmd::create(static_cast<float>(settings.width),
                                                 static_cast<float>(settings.height)));
    m_project->execute(NewAudioMixerCmd::create(settings.sampleRate, k_bitDepth, k_channels));
    // What a script starts with is none of its edits: the history forgets it.
    m_project->commandHistory()->setUndoLimit(0);
    m_project->commandHistory()->setUndoLimit(-1);
}

boost::shared_ptr<Mixer> Stage::mixer(Word const& word, char kind) const
{
    boost::shared_ptr<Mixer> found;
    if (kind == 'V')
        found = timeline()->visualMixer();
    else
        found = timeline()->audioMixer();
    if (!found)
        throw ScriptError(word.place, "the project has no such mixer");
    return found;
}

boost::shared_ptr<Track> Stage::track(Word const& word) const
{
    auto const name = readTrack(word.text);
    boost::shared_ptr<Mixer> const owner = mixer(word, name->first);
    if (name->second >= owner->numTracks())
        throw ScriptError(word.place, "there is no track " + word.text);
    return owner->trackAtIndex(name->second);
}

std::vector<boost::shared_ptr<Track>> Stage::tracks(std::vector<Word> const& words) const
{
    std::vector<boost::shared_ptr<Track>> found;
    for (Word const& word : words)
        found.push_back(track(word));
    return found;
}

boost::shared_ptr<Media const> Stage::media(Word const& word) const
{
    if (auto const spot = readSpot(word.text)) {
        boost::shared_ptr<Track const> const owner = track(Word{spot->first, word.place, false});
        long long const at = readTime(spot->second)->at(unitsPerSecond());
        boost::shared_ptr<Media const> const found = owner->mediaAtTime(at).second;
        if (!found)
            throw ScriptError(word.place, "nothing lies on " + spot->first + " at " + spot->second);
        return found;
    }
    auto const found = m_medias.find(word.text);
    if (found == m_medias.end() || !found->second->parentTrack().lock() ||
        trackName(*timeline(), *found->second).empty())
        throw ScriptError(word.place, "'" + word.text + "' lies on no track now");
    return found->second;
}

boost::shared_ptr<Clipping> Stage::clip(Word const& word) const
{
    auto const found = m_clips.find(word.text);
    if (found == m_clips.end())
        throw ScriptError(word.place, "'" + word.text + "' holds nothing");
    return found->second;
}

boost::shared_ptr<Source const> Stage::source(Word const& word) const
{
    auto const found = m_sources.find(word.text);
    return word.isQuoted || found == m_sources.end() ? boost::shared_ptr<Source const>()
                                                     : found->second;
}

std::string Stage::filePath(Word const& word) const
{
    return m_folder.empty() || word.text[0] == '/' ? word.text : m_folder + "/" + word.text;
}

long long Stage::time(Word const& word) const
{
    if (auto const written = readTime(word.text))
        return written->at(unitsPerSecond());
    if (word.text == "end")
        return timeline()->endTime();
    std::string const name = word.text.substr(0, word.text.rfind('.'));
    return edge(media(Word{name, word.place, false})->trackRange(), word.text);
}

Range<long long> Stage::range(Statement const& statement) const
{
    long long const from = time(statement.word("from"));
    long long const to = time(statement.word("to"));
    if (to <= from)
        throw ScriptError(statement.word("to").place, "the range ends at " + std::to_string(to) +
                                                          ", not after its start at " +
                                                          std::to_string(from));
    return Range<long long>(from, to - from);
}

double Stage::unitsPerSecond() const
{
    return boost::rational_cast<double>(m_project->editRate());
}

void Stage::nameMedia(Statement const& statement, boost::shared_ptr<Media const> const& media)
{
    if (!statement.has("as") || !media)
        return;
    std::string const& name = statement.word("as").text;
    m_medias.emplace(name, media);
    m_labels[media] = name;
    for (boost::shared_ptr<Media const> const& linked : linksOf(*media))
        m_labels[linked] = name;
}

void Stage::nameClip(Statement const& statement, boost::shared_ptr<Clipping> const& clip)
{
    if (statement.has("as"))
        m_clips[statement.word("as").text] = clip;
}

void Stage::nameSource(Statement const& statement, boost::shared_ptr<Source const> const& source)
{
    if (statement.has("as"))
        m_sources[statement.word("as").text] = source;
}

std::string Stage::label(boost::shared_ptr<Media const> const& media) const
{
    auto const found = m_labels.find(media);
    return found == m_labels.end() ? materialOf(*media) : found->second;
}

}  // namespace tarn::tool
