#pragma once

#include "clipbin/MediaFileStats.h"
#include "clipbin/Source.h"
#include "support/FakeProject.h"
#include "support/FakeStatsLoader.h"
#include "timeline/AMFile.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/Timeline.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <boost/shared_ptr.hpp>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarn {
namespace test {

/// A project of 30 edit units a second, and sources of files that exist only by name.
class SourceTestBase : public ::testing::Test
{
protected:
    using TrackStats = MediaFileStats::TrackStats;

    static TrackStats picture(long long duration, unsigned long rate = 30)
    {
        return FakeStatsLoader::picture(duration, rate);
    }
    static TrackStats still() { return FakeStatsLoader::still(); }
    static TrackStats sound(long long duration, unsigned long rate = 30)
    {
        return FakeStatsLoader::sound(duration, rate);
    }
    /// The same track with another range.
    static TrackStats over(long long start, long long duration, TrackStats track)
    {
        track.range = Range<long long>(start, duration);
        return track;
    }

    boost::shared_ptr<Source> load(std::string const& file) const
    {
        return Source::create(project, project->weak(), file);
    }
    /// The source of a file with these tracks.
    boost::shared_ptr<Source> sourceOf(std::vector<TrackStats> const& tracks) const
    {
        FakeStatsLoader::instance().set("fake:source", tracks);
        return load("fake:source");
    }
    /// A source with ready-made statistics, of a name that need not be a loader's.
    boost::shared_ptr<Source> sourceNamed(std::string const& file,
                                          std::vector<TrackStats> const& tracks) const
    {
        boost::shared_ptr<MediaFileStats> const stats(MediaFileStats::create());
        stats->setFilename(file);
        stats->setRect(Rect<int>(0, 0, 640, 480));
        for (TrackStats const& track : tracks) {
            stats->addTrackStats(track);
        }
        return Source::create(project, project->weak(), stats);
    }

    static boost::shared_ptr<VMFile> videoOf(Source& source, unsigned int track = 0)
    {
        return boost::dynamic_pointer_cast<VMFile>(
            source.timeline()->visualMixer()->trackAtIndex(track)->mediaBegin()->second);
    }
    static boost::shared_ptr<AMFile> soundOf(Source& source, unsigned int track = 0)
    {
        boost::shared_ptr<Track> const on = source.timeline()->audioMixer()->trackAtIndex(track);
        return boost::dynamic_pointer_cast<AMFile>(on->mediaBegin()->second);
    }

    boost::shared_ptr<FakeProject> project = FakeProject::create(30);
};

}  // namespace test
}  // namespace tarn
