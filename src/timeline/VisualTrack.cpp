#include "timeline/VisualTrack.h"

#include "datatypes/XmlText.h"
#include "exceptions/TypeException.h"
#include "project/ReadWriteMutex.h"
#include "timeline/AMFile.h"
#include "timeline/AudioTransition.h"
#include "timeline/Callout.h"
#include "timeline/ConstTrackDispatcher.h"
#include "timeline/IMFile.h"
#include "timeline/ImageTransition.h"
#include "timeline/MediaDispatcher.h"
#include "timeline/TextBox.h"
#include "timeline/TrackDispatcher.h"
#include "timeline/VMFile.h"

namespace tarn {

/// Adds what is a picture, and says what it is that is not.
class VisualTrack::MediaAdder : public MediaDispatcher
{
public:
    MediaAdder(VisualTrack& track, boost::shared_ptr<Media> const& media, long long time)
        : m_track(track), m_media(media), m_time(time)
    {}

    void dispatchMedia(boost::shared_ptr<VMFile> const& media) override { add(media); }
    void dispatchMedia(boost::shared_ptr<AMFile> const&) override
    {
        throw TypeException("Trying to add a AMFile to an VisualTrack");
    }
    void dispatchMedia(boost::shared_ptr<IMFile> const& media) override { add(media); }
    void dispatchMedia(boost::shared_ptr<ImageTransition> const& media) override { add(media); }
    void dispatchMedia(boost::shared_ptr<AudioTransition> const&) override
    {
        throw TypeException("can't add audio transitions to visual tracks");
    }
    void dispatchMedia(boost::shared_ptr<TextBox> const& media) override { add(media); }
    void dispatchMedia(boost::shared_ptr<Callout> const& media) override { add(media); }

private:
    template <class M>
    void add(boost::shared_ptr<M> const& media)
    {
        // What was given serves, unless it sent another in its place: one share less to take.
        if (media == m_media)
            m_track.addMediaSansTypeCheck(m_media, m_time);
        else
            m_track.addMediaSansTypeCheck(media, m_time);
    }

    VisualTrack& m_track;
    boost::shared_ptr<Media> const& m_media;
    long long m_time;
};

VisualTrack::VisualTrack(boost::weak_ptr<ThreadSafe const> const& project)
    : AbstractVisualTrack(project)
{}

VisualTrack::VisualTrack(VisualTrack const& other)
    : XMLIdentified(other), AbstractVisualTrack(other)
{}

void VisualTrack::receiveDispatcher(ConstTrackDispatcher* dispatcher) const
{
    dispatcher->dispatchTrack(boost::static_pointer_cast<VisualTrack const>(shared_from_this()));
}

void VisualTrack::receiveDispatcher(TrackDispatcher* dispatcher)
{
    dispatcher->dispatchTrack(boost::static_pointer_cast<VisualTrack>(shared_from_this()));
}

void VisualTrack::addMedia(boost::shared_ptr<Media> const& media, long long time)
{
    MediaAdder adder(*this, media, time);
    media->receiveDispatcher(&adder);
}

VisualTrack* VisualTrack::clone() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return new VisualTrack(*this);
}

VisualTrack::MediaMap& VisualTrack::medias()
{
    return m_medias;
}

VisualTrack::MediaMap const& VisualTrack::medias() const
{
    return m_medias;
}

MediaMapView<VisualMedia> VisualTrack::visualMedias()
{
    return MediaMapView<VisualMedia>(m_medias);
}

MediaMapView<VisualMedia const> VisualTrack::visualMedias() const
{
    return MediaMapView<VisualMedia const>(m_medias);
}

void VisualTrack::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "VisualTrack";
}

}  // namespace tarn
