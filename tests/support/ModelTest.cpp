#include "support/ModelTest.h"

#include "support/Notation.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/Source.h"
#include "clipbin/SourceBin.h"
#include "commands/AddMediaCmd.h"
#include "commands/CommandHistory.h"
#include "commands/LoadSourceCmd.h"
#include "commands/MoveCmd.h"
#include "commands/NewAudioMixerCmd.h"
#include "commands/NewAudioTrackCmd.h"
#include "commands/NewVisualMixerCmd.h"
#include "commands/NewVisualTrackCmd.h"
#include "commands/RemoveMediaCmd.h"
#include "commands/SplitCmd.h"
#include "commands/StretchCmd.h"
#include "commands/TrimEndCmd.h"
#include "commands/TrimStartCmd.h"
#include "timeline/AMFile.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/IMFile.h"
#include "timeline/Media.h"
#include "timeline/Mixer.h"
#include "timeline/Track.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"

#include <algorithm>
#include <set>
#include <sstream>
#include <stdexcept>

namespace tarn {
namespace test {
namespace {

bool isStill(char letter)
{
    return letter >= 's';
}

MediaFileStats::TrackStats pictureTrack(bool still)
{
    MediaFileStats::TrackStats stats;
    stats.range = Range<long long>(0, still ? 1 : 10000);
    stats.rangeEditRate = boost::rational<unsigned long>(30, 1);
    stats.type = still ? MediaFileStats::Image : MediaFileStats::Video;
    stats.rect = Rect<int>(0, 0, 640, 480);
    return stats;
}

MediaFileStats::TrackStats soundTrack()
{
    MediaFileStats::TrackStats stats;
    stats.range = Range<long long>(0, 10000);
    stats.rangeEditRate = boost::rational<unsigned long>(30, 1);
    stats.type = MediaFileStats::Audio;
    stats.sampleRate = boost::rational<unsigned long>(44100, 1);
    stats.bitDepth = 16;
    stats.numChannels = 2;
    return stats;
}

/// What strip() would print for it: rows without a media and free cells at a row's end left out.
std::string normalised(std::string const& expected)
{
    if (expected.find('[') != std::string::npos)
        return expected;
    Strip strip = Strip::parse(expected);
    strip.rows.erase(std::remove_if(strip.rows.begin(), strip.rows.end(),
                                    [](auto const& row) { return row.second.empty(); }),
                     strip.rows.end());
    return strip.text();
}

std::string commandText(boost::shared_ptr<Command> const& command)
{
    std::ostringstream text;
    command->toXML(text);
    return withoutIdents(text.str());
}

}  // namespace

char const* const ModelTest::k_anyMessage = "(any message)";
char const* const ModelTest::k_nothingThrown = "(nothing of that type was thrown)";

ModelTest::ModelTest()
    : project(boost::dynamic_pointer_cast<InternalProject>(Project::create(30, 1)))
{}

void ModelTest::addTracks(char kind, int count)
{
    for (int i = 0; i < count; ++i) {
        if (kind == 'V')
            project->execute(NewVisualTrackCmd::create(-1));
        else
            project->execute(NewAudioTrackCmd::create(-1));
    }
}

void ModelTest::given(std::string const& text)
{
    Strip const strip = Strip::parse(text);
    int visualTracks = 1;
    int audioTracks = 1;
    for (auto const& row : strip.rows) {
        int& count = row.first[0] == 'V' ? visualTracks : audioTracks;
        count = std::max(count, row.first[1] - '0');
    }
    project->execute(NewVisualMixerCmd::create(640, 480));
    project->execute(NewAudioMixerCmd::create(44100, 16, 2));
    addTracks('V', visualTracks);
    addTracks('A', audioTracks);

    std::map<char, boost::shared_ptr<Media>> groups;
    for (auto const& row : strip.rows) {
        for (StripMedia const& cell : row.second) {
            boost::shared_ptr<Media> const made = freshMedia(row.first, cell.letter, cell.duration);
            project->execute(AddMediaCmd::create(track(row.first), made, cell.start));
            m_medias[row.first + "." + cell.letter] = made;
            m_letters[made.get()] = cell.letter;
            boost::shared_ptr<Media>& first = groups[cell.letter];
            if (first)
                first->link(made);
            else
                first = made;
        }
    }
    // An undo limit of nothing empties the history: what was given cannot be undone by accident.
    project->commandHistory()->setUndoLimit(0);
    project->commandHistory()->setUndoLimit(-1);
}

boost::shared_ptr<Media> ModelTest::freshMedia(std::string const& row, char letter,
                                               long long duration)
{
    boost::shared_ptr<Source> const from = makeSource(letter);
    Range<long long> const range(k_mediaStart, duration);
    if (row[0] == 'A')
        return boost::shared_ptr<Media>(
            new AMFile(range, lock(), from, 1, std::set<unsigned>{0, 1}));
    if (isStill(letter))
        return boost::shared_ptr<Media>(new IMFile(0, duration, lock(), from, 0));
    return boost::shared_ptr<Media>(new VMFile(range, lock(), from, 0));
}

boost::shared_ptr<Source> ModelTest::makeSource(char letter)
{
    boost::shared_ptr<Source>& known = m_sources[letter];
    if (known)
        return known;
    boost::shared_ptr<MediaFileStats> const stats(MediaFileStats::create());
    stats->setFilename(std::string("fake:") + letter);
    stats->setRect(Rect<int>(0, 0, 640, 480));
    stats->addTrackStats(pictureTrack(isStill(letter)));
    if (!isStill(letter))
        stats->addTrackStats(soundTrack());
    known = Source::create(project, lock(), stats);
    project->execute(LoadSourceCmd::create(known));
    return known;
}

boost::shared_ptr<Media> ModelTest::freshVideo(char letter, long long cells)
{
    return freshMedia("V1", letter, cells * Strip::k_cell);
}

boost::shared_ptr<Media> ModelTest::freshSound(char letter, long long cells)
{
    return freshMedia("A1", letter, cells * Strip::k_cell);
}

boost::shared_ptr<Media> ModelTest::freshStill(char letter, long long cells)
{
    return freshMedia("V1", letter, cells * Strip::k_cell);
}

boost::shared_ptr<Timeline> ModelTest::timeline() const
{
    return project->timeline();
}

boost::shared_ptr<VisualMixer> ModelTest::visualMixer() const
{
    return timeline()->visualMixer();
}

boost::shared_ptr<AudioMixer> ModelTest::audioMixer() const
{
    return timeline()->audioMixer();
}

boost::weak_ptr<ThreadSafe const> ModelTest::lock() const
{
    return boost::weak_ptr<ThreadSafe const>(project);
}

boost::shared_ptr<Source> ModelTest::source(char letter) const
{
    return m_sources.at(letter);
}

boost::shared_ptr<Track> ModelTest::track(std::string const& name) const
{
    unsigned const index = static_cast<unsigned>(name.at(1) - '1');
    if (name.at(0) == 'V')
        return visualMixer()->trackAtIndex(index);
    return audioMixer()->trackAtIndex(index);
}

boost::shared_ptr<Media> ModelTest::media(std::string const& name) const
{
    auto const found = m_medias.find(name);
    if (found == m_medias.end())
        throw std::invalid_argument("no media was given as " + name);
    return found->second;
}

std::string ModelTest::strip() const
{
    Strip shown;
    std::map<Media const*, char> letters = m_letters;
    std::set<char> taken;
    for (auto const& known : letters)
        taken.insert(known.second);
    auto const nextLetter = [&taken] {
        char letter = 'a';
        while (!taken.insert(letter).second)
            ++letter;
        return letter;
    };
    auto const show = [&](std::string const& kind, Mixer const& mixer) {
        for (unsigned i = 0; i < static_cast<unsigned>(mixer.numTracks()); ++i) {
            boost::shared_ptr<Track const> const shownTrack = mixer.trackAtIndex(i);
            std::vector<StripMedia> medias;
            for (auto entry = shownTrack->mediaBegin(); entry != shownTrack->mediaEnd(); ++entry) {
                Media const& shownMedia = *entry->second;
                if (letters.count(&shownMedia) == 0) {
                    char const letter = nextLetter();
                    letters[&shownMedia] = letter;
                    for (auto link = shownMedia.linkBegin(); link != shownMedia.linkEnd(); ++link)
                        letters.emplace(link->lock().get(), letter);
                }
                medias.push_back(
                    {letters[&shownMedia], entry->first, shownMedia.trackRange().duration});
            }
            shown.rows.push_back({kind + static_cast<char>('1' + i), medias});
        }
    };
    if (audioMixer())
        show("A", *audioMixer());
    if (visualMixer())
        show("V", *visualMixer());
    // Tracks that hold nothing are left out, as the tests leave them out.
    shown.rows.erase(std::remove_if(shown.rows.begin(), shown.rows.end(),
                                    [](auto const& row) { return row.second.empty(); }),
                     shown.rows.end());
    return shown.text();
}

boost::shared_ptr<Command> ModelTest::move(std::string const& name, long long cells) const
{
    return MoveCmd::create(track(name), media(name), cells * Strip::k_cell);
}

boost::shared_ptr<Command> ModelTest::trimStart(std::string const& name, long long cells) const
{
    return TrimStartCmd::create(track(name), media(name), cells * Strip::k_cell);
}

boost::shared_ptr<Command> ModelTest::trimEnd(std::string const& name, long long cells) const
{
    return TrimEndCmd::create(track(name), media(name), cells * Strip::k_cell);
}

boost::shared_ptr<Command> ModelTest::stretch(std::string const& name, double scalar) const
{
    return StretchCmd::create(track(name), media(name), scalar);
}

boost::shared_ptr<Command> ModelTest::add(std::string const& name,
                                          boost::shared_ptr<Media const> const& added,
                                          long long cells) const
{
    return AddMediaCmd::create(track(name), added, cells * Strip::k_cell);
}

boost::shared_ptr<Command> ModelTest::remove(std::string const& name) const
{
    return boost::shared_ptr<Command>(new RemoveMediaCmd<Media>(track(name), media(name)));
}

boost::shared_ptr<Command> ModelTest::split(std::string const& name, long long cells) const
{
    return SplitCmd::create(track(name), cells * Strip::k_cell);
}

::testing::AssertionResult ModelTest::cameBack(char const* after, std::string const& wantedStrip,
                                               std::string const& wantedModel) const
{
    if (strip() != wantedStrip)
        return ::testing::AssertionFailure()
               << after << " the timeline is\n  " << strip() << "\nand not\n  " << wantedStrip;
    std::string const model = exactModelText(*project);
    if (model != wantedModel)
        return ::testing::AssertionFailure() << after << " the model is\n"
                                             << model << "\nand not\n"
                                             << wantedModel;
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult ModelTest::edits(boost::shared_ptr<Command> const& command)
{
    std::string const stripBefore = strip();
    std::string const modelBefore = exactModelText(*project);
    if (!project->execute(command))
        return ::testing::AssertionFailure() << "the command had nothing to do";
    std::string const stripAfter = strip();
    std::string const modelAfter = exactModelText(*project);
    for (int round = 0; round < 2; ++round) {
        project->undo();
        if (auto const back = cameBack("after undo", stripBefore, modelBefore); !back)
            return back;
        project->redo();
        if (auto const back = cameBack("after redo", stripAfter, modelAfter); !back)
            return back;
    }
    // The history does not look at what these return; a host that runs a command itself may.
    if (!command->unexecute(project.get()) || !command->reexecute(project.get()))
        return ::testing::AssertionFailure() << "the command denies what it did";
    return cameBack("after undo and redo without a history", stripAfter, modelAfter);
}

::testing::AssertionResult ModelTest::edits(boost::shared_ptr<Command> const& command,
                                            std::string const& expected)
{
    ::testing::AssertionResult const result = edits(command);
    if (!result)
        return result;
    std::string const wanted = normalised(expected);
    if (strip() != wanted)
        return ::testing::AssertionFailure()
               << "the edit gives\n  " << strip() << "\nand not\n  " << wanted << "\n"
               << commandText(command);
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult ModelTest::refusesAs(
    std::function<std::string(std::function<void()> const&)> const& catching,
    boost::shared_ptr<Command> const& command, std::string const& message)
{
    std::string const stripBefore = strip();
    std::string const modelBefore = exactModelText(*project);
    CommandHistoryState const historyBefore = project->commandState();
    std::string const text = catching([&] { project->execute(command); });
    if (text == k_nothingThrown)
        return ::testing::AssertionFailure() << k_nothingThrown;
    if (message != k_anyMessage && text != message)
        return ::testing::AssertionFailure()
               << "refused with\n  " << text << "\nand not\n  " << message;
    CommandHistoryState const historyAfter = project->commandState();
    if (historyAfter.undoTop() != historyBefore.undoTop() ||
        historyAfter.redoCommands() != historyBefore.redoCommands())
        return ::testing::AssertionFailure() << "the refused command changed the history";
    return cameBack("after the refusal", stripBefore, modelBefore);
}

}  // namespace test
}  // namespace tarn
