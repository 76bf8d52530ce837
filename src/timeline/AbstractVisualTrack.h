#pragma once

#include "datatypes/Export.h"
#include "datatypes/Transformer.h"
#include "timeline/CastingIterator.h"
#include "timeline/MediaMapView.h"
#include "timeline/Track.h"

namespace tarn {

/// A track of pictures, with a transform of its own.
class TARN_API AbstractVisualTrack : public Track, public Transformer
{
public:
    using MediaType = VisualMedia;
    using VisualMediaIterator = CastingIterator<MediaMap::iterator, CastMedia<VisualMedia>>;
    using ConstVisualMediaIterator =
        CastingIterator<ConstMediaIterator, CastMedia<VisualMedia const>>;

    explicit AbstractVisualTrack(boost::weak_ptr<ThreadSafe const> const& project);

    AbstractVisualTrack* clone() const override = 0;

    /// The medias by rising start, each seen as a picture. Takes no lock.
    virtual MediaMapView<VisualMedia> visualMedias() = 0;
    virtual MediaMapView<VisualMedia const> visualMedias() const = 0;

    /// The medias in time order, each seen as a picture. The const forms hold the read lock for
    /// their life; the others hold none.
    VisualMediaIterator visualMediaBegin();
    VisualMediaIterator visualMediaEnd();
    ConstVisualMediaIterator visualMediaBegin() const;
    ConstVisualMediaIterator visualMediaEnd() const;
    /// The same as visualMediaBegin() of a track that may not change.
    ConstVisualMediaIterator typeSafeMediaBegin() const;
    /// The same as visualMediaEnd() of a track that may not change.
    ConstVisualMediaIterator typeSafeMediaEnd() const;

    /// What reaches into `range` (edit units of the timeline), with the part of it that each media
    /// covers. Read lock.
    boost::shared_ptr<TrackSubSection<VisualMedia>> subSection(Range<long long> const& range) const;

    /// False once something else was put past addMedia(). Read lock.
    bool allMediasAreVisualMedias() const;

    /// The fourteen of the transform.
    int numParameters() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;

protected:
    AbstractVisualTrack(AbstractVisualTrack const& other);
};

}  // namespace tarn
