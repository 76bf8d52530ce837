#pragma once

#include "datatypes/Export.h"
#include "timeline/AbstractVisualTrack.h"

namespace tarn {

/// A track for stills alone; a video is refused.
class TARN_API ImageTrack : public AbstractVisualTrack
{
public:
    using MediaType = ImageMedia;
    using ImageMediaIterator = CastingIterator<MediaMap::iterator, CastMedia<ImageMedia>>;
    using ConstImageMediaIterator =
        CastingIterator<ConstMediaIterator, CastMedia<ImageMedia const>>;

    explicit ImageTrack(boost::weak_ptr<ThreadSafe const> const& project);

    void receiveDispatcher(ConstTrackDispatcher* dispatcher) const override;
    void receiveDispatcher(TrackDispatcher* dispatcher) override;

    void addMedia(boost::shared_ptr<Media> const& media, long long time) override;

    ImageTrack* clone() const override;

    MediaMap& medias() override;
    MediaMap const& medias() const override;
    MediaMapView<VisualMedia> visualMedias() override;
    MediaMapView<VisualMedia const> visualMedias() const override;

    /// The medias by rising start, each seen as a still. Takes no lock.
    MediaMapView<ImageMedia> imageMedias();
    MediaMapView<ImageMedia const> imageMedias() const;
    /// The medias in time order, each seen as a still. The const forms hold the read lock for their
    /// life; the others hold none.
    ImageMediaIterator imageMediaBegin();
    ImageMediaIterator imageMediaEnd();
    ConstImageMediaIterator imageMediaBegin() const;
    ConstImageMediaIterator imageMediaEnd() const;

    /// What reaches into `range` (edit units of the timeline), with the part of it that each media
    /// covers. Read lock.
    boost::shared_ptr<TrackSubSection<ImageMedia>> subSection(Range<long long> const& range) const;

    /// False once something else was put past addMedia(). Read lock.
    bool allMediasAreImageMedias() const;

    void xmlName(XMLable::Options& options) const override;

private:
    class MediaAdder;

    ImageTrack(ImageTrack const& other);

    MediaMap m_medias;
};

}  // namespace tarn
