#include "support/BenchProject.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/Source.h"
#include "commands/AddMediaCmd.h"
#include "commands/CommandHistory.h"
#include "commands/LoadSourceCmd.h"
#include "commands/NewAudioMixerCmd.h"
#include "commands/NewAudioTrackCmd.h"
#include "commands/NewVisualMixerCmd.h"
#include "commands/NewVisualTrackCmd.h"
#include "project/Project.h"
#include "timeline/AMFile.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Timeline.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"

#include <set>
#include <stdexcept>

namespace tarn {
namespace bench {
namespace {

Range<long long> const k_wholeSource(0, 10000);
Range<long long> const k_shownPart(500, BenchProject::k_length);

boost::shared_ptr<MediaFileStats> movieStats()
{
    MediaFileStats::TrackStats picture;
    picture.range = k_wholeSource;
    picture.rangeEditRate = boost::rational<unsigned long>(30, 1);
    picture.type = MediaFileStats::Video;
    picture.rect = Rect<int>(0, 0, 640, 480);

    MediaFileStats::TrackStats sound;
    sound.range = k_wholeSource;
    sound.rangeEditRate = boost::rational<unsigned long>(30, 1);
    sound.type = MediaFileStats::Audio;
    sound.sampleRate = boost::rational<unsigned long>(44100, 1);
    sound.bitDepth = 16;
    sound.numChannels = 2;

    boost::shared_ptr<MediaFileStats> const stats(MediaFileStats::create());
    stats->setFilename("bench:movie");
    stats->setRect(Rect<int>(0, 0, 640, 480));
    stats->addTrackStats(picture);
    stats->addTrackStats(sound);
    return stats;
}

}  // namespace

BenchProject::BenchProject(LockPolicy policy) : m_project(Project::create(30, 1, policy))
{
    m_source = Source::create(m_project, lock(), movieStats());
    execute(LoadSourceCmd::create(m_source));
    execute(NewVisualMixerCmd::create(640, 480));
    execute(NewAudioMixerCmd::create(44100, 16, 2));
    execute(NewVisualTrackCmd::create(-1));
    execute(NewAudioTrackCmd::create(-1));
    m_pictures = visualMixer()->trackAtIndex(0);
    m_sounds = m_project->timeline()->audioMixer()->trackAtIndex(0);
    forgetHistory();
}

boost::weak_ptr<ThreadSafe const> BenchProject::lock() const
{
    return boost::weak_ptr<ThreadSafe const>(m_project);
}

boost::shared_ptr<VisualMixer> BenchProject::visualMixer() const
{
    return m_project->timeline()->visualMixer();
}

boost::shared_ptr<VMFile> BenchProject::newPicture() const
{
    return boost::shared_ptr<VMFile>(new VMFile(k_shownPart, lock(), m_source, 0));
}

boost::shared_ptr<Media> BenchProject::newSound() const
{
    return boost::shared_ptr<Media>(
        new AMFile(k_shownPart, lock(), m_source, 1, std::set<unsigned int>{0, 1}));
}

void BenchProject::addPictureTracks(int count)
{
    for (int i = 0; i < count; ++i)
        execute(NewVisualTrackCmd::create(-1));
}

void BenchProject::placePictures(boost::shared_ptr<Track> const& track, std::int64_t n,
                                 long long step)
{
    for (std::int64_t i = 0; i < n; ++i)
        execute(AddMediaCmd::create(track, newPicture(), i * step));
    forgetHistory();
}

void BenchProject::placeSounds(std::int64_t n, long long step)
{
    for (std::int64_t i = 0; i < n; ++i)
        execute(AddMediaCmd::create(m_sounds, newSound(), i * step));
    forgetHistory();
}

void BenchProject::execute(boost::shared_ptr<Command> const& command) const
{
    if (!m_project->execute(command))
        throw std::logic_error("a workload's command found nothing to do");
}

void BenchProject::forgetHistory() const
{
    m_project->commandHistory()->setUndoLimit(0);
    m_project->commandHistory()->setUndoLimit(-1);
}

}  // namespace bench
}  // namespace tarn
