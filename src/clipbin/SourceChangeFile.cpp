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

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <vector>

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

/// The files beside one recording: what they were called, and what they are to be called.
struct SideFiles
{
    using Names = std::array<std::string, 4>;

    SideFiles(boost::shared_ptr<ScreenMetaData> const& owner, std::string const& oldFile,
              std::string const& newFile)
        : metaData(owner)
        , oldNames{owner->topmostWindowCoordinatesFilename(), owner->cursorLocationFilename(),
                   owner->cursorActionFilename(), owner->dirtyRectsFilename()}
    {
        std::transform(
            oldNames.begin(), oldNames.end(), newNames.begin(),
            [&](std::string const& name) { return replacePath(oldFile, newFile, name); });
    }

    void rename(Names const& names) const
    {
        metaData->setTopmostWindowCoordinates(names[0]);
        metaData->setCursorLocation(names[1]);
        metaData->setCursorAction(names[2]);
        metaData->setDirtyRects(names[3]);
    }

    boost::shared_ptr<ScreenMetaData> metaData;
    Names oldNames;
    Names newNames;
};

/// Finds what was recorded beside a video; other medias have nothing beside them.
class SideFilesFinder : public DefaultMediaDispatcher
{
public:
    using MetaDataMap = std::map<boost::shared_ptr<VMFile>, boost::shared_ptr<ScreenMetaData>>;
    using DefaultMediaDispatcher::dispatchMedia;

    SideFilesFinder(std::string const& oldFile, std::string const& newFile,
                    MetaDataMap const& metaData)
        : m_oldFile(oldFile), m_newFile(newFile), m_metaData(metaData)
    {}

    void dispatchMedia(boost::shared_ptr<VMFile> const& media) override
    {
        MetaDataMap::const_iterator const entry = m_metaData.find(media);
        if (entry != m_metaData.end())
            m_found.emplace_back(entry->second, m_oldFile, m_newFile);
    }

    void mediaNotHandled() override {}

    std::vector<SideFiles> const& found() const { return m_found; }

private:
    std::string const& m_oldFile;
    std::string const& m_newFile;
    MetaDataMap const& m_metaData;
    std::vector<SideFiles> m_found;
};

}  // namespace

void Source::changeFile(std::string const& newFile)
{
    if (!m_stats || !filesAreCompatableForChange(*m_stats, newFile)) {
        throw TarnMediaLibException(
            "attempting to replace source's file with an incompatable file");
    }
    std::string const oldFile = m_stats->filename();
    std::vector<std::string> trackFilenames = changedTrackFilenames(oldFile, newFile);
    m_stats->setFilename(newFile);
    try {
        updateScreenMetaData(oldFile, newFile);
    } catch (...) {
        m_stats->setFilename(oldFile);
        throw;
    }
    for (unsigned int track = 0; track < m_stats->numTracks(); ++track)
        m_stats->trackStats(track).filename.swap(trackFilenames[track]);
    notify();
}

/// All or none. What is renamed back has held its old name before, and so has room for it.
void Source::updateScreenMetaData(std::string const& oldFile, std::string const& newFile)
{
    boost::shared_ptr<VisualMixer> const mixer = m_timeline->visualMixer();
    if (!mixer)
        return;
    SideFilesFinder finder(oldFile, newFile, m_screenMetaData);
    for (boost::shared_ptr<Track> const& track : mixer->trackList()) {
        for (Track::MediaMap::value_type const& entry : track->medias())
            entry.second->receiveDispatcher(&finder);
    }
    try {
        for (SideFiles const& files : finder.found())
            files.rename(files.newNames);
    } catch (...) {
        for (SideFiles const& files : finder.found())
            files.rename(files.oldNames);
        throw;
    }
}

std::vector<std::string> Source::changedTrackFilenames(std::string const& oldFile,
                                                       std::string const& newFile) const
{
    std::vector<std::string> names;
    for (unsigned int track = 0; track < m_stats->numTracks(); ++track)
        names.push_back(replacePath(oldFile, newFile, m_stats->trackStats(track).filename));
    return names;
}

}  // namespace tarn
