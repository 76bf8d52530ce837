#include "clipbin/Source.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/WideInteger.h"
#include "datatypes/ScreenMetaData.h"
#include "exceptions/TarnMediaLibException.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/DefaultMediaDispatcher.h"
#include "timeline/Timeline.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"

#include <boost/algorithm/string/replace.hpp>
#include <boost/scoped_ptr.hpp>

#include <map>
#include <string>

namespace tarn {

namespace {

/// Kept so: a length times its rate is no length in seconds. It only ever meets another one made
/// the same way, and tells two files apart.
WideInteger calcTrackLength(MediaFileStats const& stats, unsigned int track)
{
    boost::rational<unsigned long> const rate = stats.rangeEditRate(track);
    return WideInteger(stats.trackRange(track).duration) *
           static_cast<long long>(rate.numerator()) / static_cast<long long>(rate.denominator());
}

// Kept so: the first track stands for the file, since the recorder writes the picture first; a
// changed sound track is no obstacle.
bool tracksAreCompatableForChange(MediaFileStats const& a, MediaFileStats const& b)
{
    return a.trackType(0) == b.trackType(0) && calcTrackLength(a, 0) == calcTrackLength(b, 0);
}

bool filesAreCompatableForChange(MediaFileStats const& stats, std::string const& newFile)
{
    boost::scoped_ptr<MediaFileStats const> const newStats(MediaFileStats::create(newFile));
    if (stats.numTracks() != newStats->numTracks())
        return false;
    return stats.numTracks() == 0 || tracksAreCompatableForChange(stats, *newStats);
}

std::string replacePath(std::string const& search, std::string const& replacement,
                        std::string const& target)
{
    return boost::algorithm::replace_first_copy(target, search, replacement);
}

void replacePaths(std::string const& oldFile, std::string const& newFile, ScreenMetaData& metaData)
{
    metaData.setTopmostWindowCoordinates(
        replacePath(oldFile, newFile, metaData.topmostWindowCoordinatesFilename()));
    metaData.setCursorLocation(replacePath(oldFile, newFile, metaData.cursorLocationFilename()));
    metaData.setCursorAction(replacePath(oldFile, newFile, metaData.cursorActionFilename()));
    metaData.setDirtyRects(replacePath(oldFile, newFile, metaData.dirtyRectsFilename()));
}

/// Renames what was recorded beside a video; other medias have nothing beside them.
class ScreenMetaDataUpdater : public DefaultMediaDispatcher
{
public:
    using MetaDataMap = std::map<boost::shared_ptr<VMFile>, boost::shared_ptr<ScreenMetaData>>;
    using DefaultMediaDispatcher::dispatchMedia;

    ScreenMetaDataUpdater(std::string const& oldFile, std::string const& newFile,
                          MetaDataMap const& metaData)
        : m_oldFile(oldFile), m_newFile(newFile), m_metaData(metaData)
    {}

    void dispatchMedia(boost::shared_ptr<VMFile> const& media) override
    {
        MetaDataMap::const_iterator const entry = m_metaData.find(media);
        if (entry != m_metaData.end())
            replacePaths(m_oldFile, m_newFile, *entry->second);
    }

    void mediaNotHandled() override {}

private:
    std::string const& m_oldFile;
    std::string const& m_newFile;
    MetaDataMap const& m_metaData;
};

}  // namespace

void Source::changeFile(std::string const& newFile)
{
    if (!m_stats || !filesAreCompatableForChange(*m_stats, newFile)) {
        throw TarnMediaLibException(
            "attempting to replace source's file with an incompatable file");
    }
    std::string const oldFile = m_stats->filename();
    updateScreenMetaData(oldFile, newFile);
    updateTrackFilenames(oldFile, newFile);
    m_stats->setFilename(newFile);
    notify();
}

void Source::updateScreenMetaData(std::string const& oldFile, std::string const& newFile)
{
    boost::shared_ptr<VisualMixer> const mixer = m_timeline->visualMixer();
    if (!mixer)
        return;
    ScreenMetaDataUpdater updater(oldFile, newFile, m_screenMetaData);
    for (boost::shared_ptr<Track> const& track : mixer->trackList()) {
        for (Track::MediaMap::value_type const& entry : track->medias())
            entry.second->receiveDispatcher(&updater);
    }
}

void Source::updateTrackFilenames(std::string const& oldFile, std::string const& newFile)
{
    for (unsigned int track = 0; track < m_stats->numTracks(); ++track) {
        MediaFileStats::TrackStats& stats = m_stats->trackStats(track);
        stats.filename = replacePath(oldFile, newFile, stats.filename);
    }
}

}  // namespace tarn
