#pragma once

#include "datatypes/Export.h"
#include "datatypes/Rect.h"
#include "datatypes/TransformMatrix.h"
#include "datatypes/Transformer.h"
#include "timeline/CastingIterator.h"
#include "timeline/Mixer.h"

namespace tarn {

/// The mixer of visual tracks, and the camera that looks at them: a frame size, and an eye whose
/// place, direction and clipping are animated. The whole mix has a transform of its own.
class TARN_API VisualMixer : public Mixer, public Transformer
{
public:
    using VisualTrackIterator =
        CastingIterator<TrackList::iterator, CastTrack<AbstractVisualTrack>>;
    using ConstVisualTrackIterator =
        CastingIterator<ConstTrackIterator, CastTrack<AbstractVisualTrack const>>;

    /// The eye stands 3000 in front of the middle; the field of view is such that a picture of the
    /// given height fills the frame from there.
    VisualMixer(float width, float height, boost::weak_ptr<ThreadSafe const> const& project);

    VisualMixer* clone() const override;

    /// Takes a VisualTrack only.
    /// @throws TypeException "VisualTrack" for anything else, an ImageTrack included
    void addTrack(boost::shared_ptr<Track> const& track, int index) override;

    TrackList& trackList() override;
    TrackList const& trackList() const override;

    /// The tracks from back to front. The const forms hold the read lock for their life; the others
    /// hold none.
    VisualTrackIterator trackBegin();
    VisualTrackIterator trackEnd();
    ConstVisualTrackIterator trackBegin() const;
    ConstVisualTrackIterator trackEnd() const;
    /// @throws IndexException
    boost::shared_ptr<AbstractVisualTrack> trackAtIndex(unsigned int index);
    boost::shared_ptr<AbstractVisualTrack const> trackAtIndex(unsigned int index) const;

    /// Of the frame, in pixels.
    boost::shared_ptr<Attribute<float> const> attributeWidth() const;
    /// Of the frame, in pixels.
    boost::shared_ptr<Attribute<float> const> attributeHeight() const;

    /// @name Camera parameters, in the timeline's edit units; the const forms take the read lock
    /// @{
    boost::shared_ptr<VectorParam> eyePositionParam();
    boost::shared_ptr<VectorParam const> eyePositionParam() const;
    boost::shared_ptr<VectorParam> eyeLookAtPositionParam();
    boost::shared_ptr<VectorParam const> eyeLookAtPositionParam() const;
    boost::shared_ptr<VectorParam> eyeUpVectorParam();
    boost::shared_ptr<VectorParam const> eyeUpVectorParam() const;
    /// In radians. For the host to use: the projections below derive their own.
    boost::shared_ptr<InterpolatingParam<float>> fovParam();
    boost::shared_ptr<InterpolatingParam<float> const> fovParam() const;
    boost::shared_ptr<InterpolatingParam<float>> nearClipDistanceParam();
    boost::shared_ptr<InterpolatingParam<float> const> nearClipDistanceParam() const;
    boost::shared_ptr<InterpolatingParam<float>> farClipDistanceParam();
    boost::shared_ptr<InterpolatingParam<float> const> farClipDistanceParam() const;
    /// @}

    /// From the scene to the eye; `time` is in edit units of the timeline, here and below. See
    /// TransformMatrix::cameraLookAt().
    TransformMatrix cameraTransformAtTime(long long time) const;
    /// Left-handed and transposed, meant for points as rows.
    TransformMatrix cameraTransformAtTimeLH(long long time) const;
    /// The field of view follows from the viewport's height h and the distance d to what is looked
    /// at, 2 atan(h / 2d), so that one unit there is one pixel.
    TransformMatrix projectionTransformAtTime(long long time, Rect<int> const& viewport) const;
    /// Left-handed and transposed, meant for points as rows.
    TransformMatrix projectionTransformAtTimeLH(long long time, Rect<int> const& viewport) const;
    /// In pixels of the picture plane.
    double distanceBetweenEyeAndLookAt(long long time) const;

    /// A mixer with clones of what lies in `range` (edit units of the timeline) on those of its
    /// tracks that are named, or of the medias as a whole. Links between copied medias hold between
    /// their clones; `map`, which may be null, receives each pair. Read lock.
    boost::shared_ptr<VisualMixer> copyPortion(Range<long long> const& range,
                                               ConstTrackSet const& tracks,
                                               MediaCloneMap* map) const;
    boost::shared_ptr<VisualMixer> copyPortion(ConstMediaVector const& medias,
                                               MediaCloneMap* map) const;

    /// The camera's twelve; those of the transform do not count.
    int numParameters() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;
    int numAttributes() const override;

    void xmlName(XMLable::Options& options) const override;
    void xmlBody(XMLable::Options& options, int indent) const override;
    void xmlOfParameters(XMLable::Options& options, int indent) const override;
    void xmlOfAttributes(XMLable::Options& options, int indent) const override;

    std::string description() const override;

private:
    friend class Mixer;  // copies portions

    VisualMixer(VisualMixer const& other);
    VisualMixer(VisualMixer const& other, WithoutTracks);

    double valueAtTime(boost::shared_ptr<InterpolatingParam<float>> const& parameter,
                       long long time) const;
    Point pointAtTime(boost::shared_ptr<VectorParam> const& vector, long long time) const;
    double fieldOfViewY(long long time, Rect<int> const& viewport) const;

    TrackList m_tracks;
    boost::shared_ptr<Attribute<float>> m_width;
    boost::shared_ptr<Attribute<float>> m_height;
    boost::shared_ptr<VectorParam> m_eyePosition;
    boost::shared_ptr<VectorParam> m_eyeLookAtPosition;
    boost::shared_ptr<VectorParam> m_eyeUpVector;
    boost::shared_ptr<InterpolatingParam<float>> m_fov;
    boost::shared_ptr<InterpolatingParam<float>> m_nearClipDistance;
    boost::shared_ptr<InterpolatingParam<float>> m_farClipDistance;
};

}  // namespace tarn
