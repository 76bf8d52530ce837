#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"
#include "timeline/CastingIterator.h"
#include "timeline/MediaMapView.h"
#include "timeline/Track.h"

namespace tarn {

/// Wraps a parameter's type so that a template argument has to be named.
template <class T>
struct NotDeduced
{
    using type = T;
};

/// A track of sounds, heard from a position that may move.
class TARN_API AudioTrack : public Track
{
public:
    using MediaType = AudioMedia;
    using AudioMediaIterator = CastingIterator<MediaMap::iterator, CastMedia<AudioMedia>>;
    using ConstAudioMediaIterator =
        CastingIterator<ConstMediaIterator, CastMedia<AudioMedia const>>;

    explicit AudioTrack(boost::weak_ptr<ThreadSafe const> const& project);

    void receiveDispatcher(ConstTrackDispatcher* dispatcher) const override;
    void receiveDispatcher(TrackDispatcher* dispatcher) override;

    void addMedia(boost::shared_ptr<Media> const& media, long long time) override;

    /// For a media known to be a sound: no dispatch. T is AMFile and always named, since its
    /// parameter is not deduced; so addMedia(media, time) is the checked form.
    /// @throws what addMediaSansTypeCheck() throws
    template <class T>
    void addMedia(typename NotDeduced<boost::shared_ptr<T>>::type const& media, long long time);

    AudioTrack* clone() const override;

    MediaMap& medias() override;
    MediaMap const& medias() const override;

    /// The medias by rising start, each seen as a sound. Takes no lock.
    MediaMapView<AudioMedia> audioMedias();
    MediaMapView<AudioMedia const> audioMedias() const;
    /// The medias in time order, each seen as a sound. The const forms hold the read lock for their
    /// life; the others hold none.
    AudioMediaIterator audioMediaBegin();
    AudioMediaIterator audioMediaEnd();
    ConstAudioMediaIterator audioMediaBegin() const;
    ConstAudioMediaIterator audioMediaEnd() const;
    /// The same as audioMediaBegin() of a track that may not change.
    ConstAudioMediaIterator typeSafeMediaBegin() const;
    /// The same as audioMediaEnd() of a track that may not change.
    ConstAudioMediaIterator typeSafeMediaEnd() const;

    /// What reaches into `range` (edit units of the timeline), with the part of it that each media
    /// covers. Read lock.
    boost::shared_ptr<TrackSubSection<AudioMedia>> subSection(Range<long long> const& range) const;

    /// False once something else was put past addMedia(). Read lock.
    bool allMediasAreValid() const;

    /// Where the sound is heard from. Starts at (0,0,0) and jumps from key frame to key frame.
    boost::shared_ptr<InterpolatingParam<AudioPosition>> position();
    boost::shared_ptr<InterpolatingParam<AudioPosition> const> position() const;

    /// One: the position.
    int numParameters() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlOfParameters(XMLable::Options& options, int indent) const override;

private:
    class MediaAdder;

    AudioTrack(AudioTrack const& other);

    MediaMap m_medias;
    boost::shared_ptr<InterpolatingParam<AudioPosition>> m_position;
};

}  // namespace tarn
