#include "fuzz/Stage.h"

#include "clipbin/ClipBoard.h"
#include "clipbin/Clipping.h"
#include "clipbin/MediaFileStats.h"
#include "clipbin/Source.h"
#include "clipbin/SourceBin.h"
#include "commands/CommandHistory.h"
#include "commands/LoadSourceCmd.h"
#include "commands/RemoveMixerCmd.h"
#include "datatypes/ScreenMetaData.h"
#include "effects/Blur.h"
#include "parameters/MTVector.h"
#include "parameters/Parameter.h"
#include "timeline/AMFile.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/AudioTransition.h"
#include "timeline/Callout.h"
#include "timeline/IMFile.h"
#include "timeline/ImageTransition.h"
#include "timeline/TextBox.h"
#include "timeline/Track.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"

#include <iterator>
#include <set>

namespace tarn {
namespace test {
namespace {

MediaFileStats::TrackStats trackOf(MediaFileStats::TrackType type, long long length)
{
    MediaFileStats::TrackStats stats;
    stats.range = Range<long long>(0, length);
    stats.rangeEditRate = boost::rational<unsigned long>(30, 1);
    stats.type = type;
    stats.rect = Rect<int>(0, 0, 640, 480);
    stats.sampleRate = boost::rational<unsigned long>(44100, 1);
    stats.bitDepth = 16;
    stats.numChannels = 2;
    return stats;
}

}  // namespace

boost::shared_ptr<Source> Stage::movie(std::string const& name, long long length, bool loaded)
{
    boost::shared_ptr<MediaFileStats> const stats(MediaFileStats::create());
    stats->setFilename("fake:" + name);
    stats->setRect(Rect<int>(0, 0, 640, 480));
    stats->addTrackStats(trackOf(MediaFileStats::Video, length));
    stats->addTrackStats(trackOf(MediaFileStats::Audio, length));
    boost::shared_ptr<Source> const made = Source::create(project, lock(), stats);
    if (loaded)
        project->execute(LoadSourceCmd::create(made));
    return made;
}

void Stage::begin(std::string const& strip)
{
    given(strip);
    std::set<unsigned> const stereo{0, 1};
    boost::shared_ptr<Source> const brief = movie("brief", 530, true);
    m_foreign = movie("foreign", 1000, false);
    Range<long long> const three(k_mediaStart, 30);
    auto const keep = [this](Media* made) { m_pool.push_back(boost::shared_ptr<Media>(made)); };
    m_pool = {freshVideo('k', 3), freshVideo('l', 5), freshSound('k', 3), freshSound('l', 5),
              freshStill('x', 4)};
    keep(new Callout(k_mediaStart, 30, lock(), boost::shared_ptr<Source const>(), 0));
    keep(new TextBox("text", 0, 40, 0, 1e6, lock(), 100, 50));
    keep(new ImageTransition(0, 10, lock()));
    keep(new AudioTransition(Range<long long>(0, 10), lock()));
    keep(new VMFile(three, lock(), brief, 0));
    keep(new AMFile(three, lock(), brief, 1, stereo));
    keep(new VMFile(three, lock(), m_foreign, 0));
    keep(new IMFile(0, 0, lock(), source('x'), 0));
    keep(new VMFile(Range<long long>(0, 20), lock(), source('k'), 0));
    m_typed = std::make_unique<TypedParameters>(*this);
    project->commandHistory()->setUndoLimit(0);
    project->commandHistory()->setUndoLimit(-1);
}

void Stage::takeOver(boost::shared_ptr<InternalProject> const& other)
{
    empty(*other);
    project = other;
}

void Stage::empty(InternalProject& used)
{
    CommandHistory& history = *used.commandHistory();
    history.dropRedoCommands();
    history.setUndoLimit(0);
    if (used.timeline()->hasVisualMixer())
        used.execute(RemoveMixerCmd<VisualMixer>::create());
    if (used.timeline()->hasAudioMixer())
        used.execute(RemoveMixerCmd<AudioMixer>::create());
    for (boost::shared_ptr<Clipping> const& clipping : used.clipBoard()->clippings())
        used.clipBoard()->removeClipping(clipping);
    SourceBin& bin = *used.sourceBin();
    while (bin.begin() != bin.end())
        bin.removeSource(boost::shared_ptr<Source const>(*bin.begin()));
    history.setUndoLimit(-1);
}

boost::shared_ptr<Media> Stage::at(std::string const& trackName, long long start) const
{
    Track::MediaMap const& medias = track(trackName)->medias();
    auto const found = medias.find(start);
    return found == medias.end() ? boost::shared_ptr<Media>() : found->second;
}

boost::shared_ptr<Clipping> Stage::clipping(int index) const
{
    ClipBoard::ClippingList const all = project->clipBoard()->clippings();
    return *std::next(all.begin(), index);
}

boost::shared_ptr<Source> Stage::sourceAt(int index) const
{
    boost::shared_ptr<SourceBin> const bin = project->sourceBin();
    for (auto const& found : *bin)
        if (index-- == 0)
            return found;
    return boost::shared_ptr<Source>();
}

boost::shared_ptr<Parameter<double> const> Stage::numberOf(
    boost::shared_ptr<Media const> const& media, int index) const
{
    auto const all = media->parameterVector();
    for (auto const& candidate : *all) {
        auto const number = boost::dynamic_pointer_cast<Parameter<double> const>(candidate);
        if (number && index-- == 0)
            return number;
    }
    return boost::shared_ptr<Parameter<double> const>();
}

void Stage::mapVisual(TrackMapCommand& command, boost::shared_ptr<Timeline> const& from,
                      unsigned place, boost::shared_ptr<Track> const& to)
{
    command.addTrackMap<AbstractVisualTrack>(from->visualMixer()->trackAtIndex(place),
                                             boost::dynamic_pointer_cast<AbstractVisualTrack>(to));
}

void Stage::mapAudio(TrackMapCommand& command, boost::shared_ptr<Timeline> const& from,
                     unsigned place, boost::shared_ptr<Track> const& to)
{
    command.addTrackMap<AudioTrack>(from->audioMixer()->trackAtIndex(place),
                                    boost::dynamic_pointer_cast<AudioTrack>(to));
}

boost::shared_ptr<Effect> Stage::blur() const
{
    return boost::shared_ptr<Effect>(new Blur(lock()));
}

boost::shared_ptr<ScreenMetaData const> Stage::metaData() const
{
    return boost::shared_ptr<ScreenMetaData const>(
        ScreenMetaData::create(lock(), boost::weak_ptr<ProjectEditRate const>(project)));
}

}  // namespace test
}  // namespace tarn
