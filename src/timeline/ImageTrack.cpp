#include "timeline/ImageTrack.h"

#include "datatypes/XmlText.h"
#include "exceptions/TypeException.h"
#include "project/ReadWriteMutex.h"
#include "timeline/AMFile.h"
#include "timeline/AudioTransition.h"
#include "timeline/Callout.h"
#include "timeline/ConstTrackDispatcher.h"
#include "timeline/IMFile.h"
#include "timeline/ImageMedia.h"
#include "timeline/ImageTransition.h"
#include "timeline/MediaDispatcher.h"
#include "timeline/TextBox.h"
#include "timeline/TrackDispatcher.h"
#include "timeline/VMFile.h"

#include <algorithm>

namespace tarn {

/// Adds what is a still, and says what it is that is not.
class ImageTrack::MediaAdder : public MediaDispatcher
{
public:
    MediaAdder(ImageTrack& track, long long time) : m_track(track), m_time(time) {}

    void dispatchMedia(boost::shared_ptr<VMFile> const&) override
    {
        throw TypeException("Trying to add a VMFile to an ImageTrack");
    }
    void dispatchMedia(boost::shared_ptr<AMFile> const&) override
    {
        throw TypeException("Trying to add a AMFile to an ImageTrack");
    }
    void dispatchMedia(boost::shared_ptr<IMFile> const& media) override { add(media); }
    void dispatchMedia(boost::shared_ptr<ImageTransition> const& media) override { add(media); }
    void dispatchMedia(boost::shared_ptr<AudioTransition> const&) override
    {
        throw TypeException("can't add transitions yet");
    }
    void dispatchMedia(boost::shared_ptr<TextBox> const& media) override { add(media); }
    void dispatchMedia(boost::shared_ptr<Callout> const& media) override { add(media); }

private:
    void add(boost::shared_ptr<Media> const& media)
    {
        m_track.addMediaSansTypeCheck(media, m_time);
    }

    ImageTrack& m_track;
    long long m_time;
};

ImageTrack::ImageTrack(boost::weak_ptr<ThreadSafe const> const& project)
    : AbstractVisualTrack(project)
{}

ImageTrack::ImageTrack(ImageTrack const& other) : XMLIdentified(other), AbstractVisualTrack(other)
{}

void ImageTrack::receiveDispatcher(ConstTrackDispatcher* dispatcher) const
{
    dispatcher->dispatchTrack(boost::static_pointer_cast<ImageTrack const>(shared_from_this()));
}

void ImageTrack::receiveDispatcher(TrackDispatcher* dispatcher)
{
    dispatcher->dispatchTrack(boost::static_pointer_cast<ImageTrack>(shared_from_this()));
}

void ImageTrack::addMedia(boost::shared_ptr<Media> const& media, long long time)
{
    MediaAdder adder(*this, time);
    media->receiveDispatcher(&adder);
}

ImageTrack* ImageTrack::clone() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return new ImageTrack(*this);
}

ImageTrack::MediaMap& ImageTrack::medias()
{
    return m_medias;
}

ImageTrack::MediaMap const& ImageTrack::medias() const
{
    return m_medias;
}

MediaMapView<VisualMedia> ImageTrack::visualMedias()
{
    return MediaMapView<VisualMedia>(m_medias);
}

MediaMapView<VisualMedia const> ImageTrack::visualMedias() const
{
    return MediaMapView<VisualMedia const>(m_medias);
}

MediaMapView<ImageMedia> ImageTrack::imageMedias()
{
    return MediaMapView<ImageMedia>(m_medias);
}

MediaMapView<ImageMedia const> ImageTrack::imageMedias() const
{
    return MediaMapView<ImageMedia const>(m_medias);
}

ImageTrack::ImageMediaIterator ImageTrack::imageMediaBegin()
{
    return ImageMediaIterator(mediaBegin());
}

ImageTrack::ImageMediaIterator ImageTrack::imageMediaEnd()
{
    return ImageMediaIterator(mediaEnd());
}

ImageTrack::ConstImageMediaIterator ImageTrack::imageMediaBegin() const
{
    return ConstImageMediaIterator(mediaBegin());
}

ImageTrack::ConstImageMediaIterator ImageTrack::imageMediaEnd() const
{
    return ConstImageMediaIterator(mediaEnd());
}

boost::shared_ptr<TrackSubSection<ImageMedia>> ImageTrack::subSection(
    Range<long long> const& range) const
{
    return subSectionImpl(this, range);
}

bool ImageTrack::allMediasAreImageMedias() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return std::all_of(m_medias.begin(), m_medias.end(), [](MediaMap::value_type const& entry) {
        return dynamic_cast<ImageMedia const*>(entry.second.get()) != nullptr;
    });
}

void ImageTrack::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "ImageTrack";
}

}  // namespace tarn
