// The private medias of a source: making, placing and linking them.
#include "clipbin/Source.h"

#include "clipbin/MediaFileStats.h"
#include "datatypes/ScreenMetaData.h"
#include "exceptions/AddRemoveException.h"
#include "parameters/Attribute.h"
#include "project/ProjectEditRate.h"
#include "timeline/AMFile.h"
#include "timeline/AudioMixer.h"
#include "timeline/AudioTrack.h"
#include "timeline/IMFile.h"
#include "timeline/Timeline.h"
#include "timeline/VMFile.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <boost/filesystem/path.hpp>

#include <set>
#include <vector>

namespace tarn {

namespace {

using Medias = std::vector<boost::shared_ptr<Media>>;

void linkNewMedias(Medias const& medias)
{
    for (boost::shared_ptr<Media> const& media : medias) {
        if (media != medias.front() && !media->isLinkedWith(medias.front()))
            medias.front()->link(media);
    }
}

std::set<unsigned int> allChannels(unsigned int numChannels)
{
    std::set<unsigned int> channels;
    for (unsigned int channel = 0; channel < numChannels; ++channel)
        channels.insert(channels.end(), channel);
    return channels;
}

/// The recorder tells its side files apart by their names alone.
void setSideFile(ScreenMetaData& metaData, std::string const& path)
{
    std::string const name = boost::filesystem::path(path).filename().string();
    if (name == "dirtyrect.dat")
        metaData.setDirtyRects(path);
    else if (name == "frontmost.dat")
        metaData.setTopmostWindowCoordinates(path);
    else if (name == "cursoraction.dat")
        metaData.setCursorAction(path);
    else if (name == "cursorlocation.dat")
        metaData.setCursorLocation(path);
}

}  // namespace

void Source::createAndAddMedias(boost::shared_ptr<ProjectEditRate const> const& rate)
{
    Medias medias;
    for (unsigned int track = 0; track < m_stats->numTracks(); ++track) {
        if (boost::shared_ptr<Media> const media = createMedia(rate, track))
            medias.push_back(media);
        linkNewMedias(medias);
    }
}

boost::shared_ptr<Media> Source::createMedia(boost::shared_ptr<ProjectEditRate const> const& rate,
                                             unsigned int track)
{
    switch (m_stats->trackType(track)) {
    case MediaFileStats::Video:
        return createVideo(rate, track);
    case MediaFileStats::Image:
        return createImage(track);
    case MediaFileStats::Audio:
        return createAndAddAudioMedias(track);
    }
    return boost::shared_ptr<Media>();
}

boost::shared_ptr<Media> Source::createVideo(boost::shared_ptr<ProjectEditRate const> const& rate,
                                             unsigned int track)
{
    boost::shared_ptr<VMFile> const media(
        new VMFile(m_timeRange, projectMutex(), shared_from_this(), track));
    media->holdSourceWeakly();
    addMetaData(media, track, rate);
    addMediaToTimeline(media);
    return media;
}

boost::shared_ptr<Media> Source::createImage(unsigned int track)
{
    boost::shared_ptr<IMFile> const media(
        new IMFile(0, 1, projectMutex(), shared_from_this(), track));
    media->holdSourceWeakly();
    addMediaToTimeline(media);
    return media;
}

boost::shared_ptr<Media> Source::createAndAddAudioMedias(unsigned int track)
{
    std::set<unsigned int> const channels = allChannels(m_stats->numChannels(track));
    boost::shared_ptr<AMFile> const media(
        new AMFile(m_timeRange, projectMutex(), shared_from_this(), track, channels));
    media->holdSourceWeakly();
    addMediaToTimeline(media);
    return media;
}

// Every video gets a metadata object, so that its attribute is never empty; without side files the
// object is just not valid.
void Source::addMetaData(boost::shared_ptr<VMFile> const& media, unsigned int track,
                         boost::shared_ptr<ProjectEditRate const> const& rate)
{
    boost::shared_ptr<ScreenMetaData> const metaData(
        ScreenMetaData::create(projectMutex(), media, rate));
    for (std::string const& path : m_stats->metaData(track))
        setSideFile(*metaData, path);
    media->screenMetaData()->setValue(metaData);
    m_screenMetaData[media] = metaData;
}

void Source::addMediaToTimeline(boost::shared_ptr<VisualMedia> const& media)
{
    try {
        boost::shared_ptr<VisualMixer> mixer = m_timeline->visualMixer();
        if (!mixer) {
            Rect<int> const rect = m_stats->rect();
            mixer = m_timeline->newVisualMixer(static_cast<float>(rect.width),
                                               static_cast<float>(rect.height));
        }
        mixer->newTrack<VisualTrack>(-1)->addMedia(media, 0);
    } catch (AddRemoveException const&) {
        // Kept so: a media that cannot be placed is left off, and the others still load.
    }
}

void Source::addMediaToTimeline(boost::shared_ptr<AMFile> const& media)
{
    try {
        boost::shared_ptr<AudioMixer> mixer = m_timeline->audioMixer();
        if (!mixer)
            mixer = m_timeline->newAudioMixer(media->sampleRate(), media->bitDepth(), 1);
        mixer->newTrack<AudioTrack>(-1)->addMedia<AMFile>(media, 0);
    } catch (AddRemoveException const&) {
        // Kept so: a media that cannot be placed is left off, and the others still load.
    }
}

}  // namespace tarn
