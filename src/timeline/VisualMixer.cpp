#include "timeline/VisualMixer.h"

#include "datatypes/Point.h"
#include "datatypes/VectorUtil.h"
#include "datatypes/XmlText.h"
#include "exceptions/TypeException.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "parameters/VectorParam.h"
#include "project/ReadWriteMutex.h"
#include "timeline/VisualTrack.h"

#include <cmath>

namespace tarn {

namespace {

double const k_eyeZ = 3000;
double const k_lookAtZ = 0;
float const k_nearClipDistance = 1.5f;
float const k_farClipDistance = 6000.0f;

boost::shared_ptr<VectorParam> newVector(boost::weak_ptr<ThreadSafe const> const& project,
                                         std::string const& name, Point const& initial)
{
    boost::shared_ptr<VectorParam> const vector(new VectorParam(project, 3, name));
    vector->at(0)->addKeyFrame(0, initial.x);
    vector->at(1)->addKeyFrame(0, initial.y);
    vector->at(2)->addKeyFrame(0, initial.z);
    return vector;
}

boost::shared_ptr<InterpolatingParam<float>> newScalar(
    boost::weak_ptr<ThreadSafe const> const& project, std::string const& name, float initial)
{
    boost::shared_ptr<InterpolatingParam<float>> const scalar(
        new InterpolatingParam<float>(project, name));
    scalar->addKeyFrame(0, initial);
    return scalar;
}

/// The angle under which an eye at `distance` sees something of that height, in radians.
double angleOfView(double height, double distance)
{
    return 2 * std::atan2(height * 0.5, distance);
}

double aspectOf(Rect<int> const& viewport)
{
    return static_cast<double>(viewport.width) / static_cast<double>(viewport.height);
}

}  // namespace

VisualMixer::VisualMixer(float width, float height,
                         boost::weak_ptr<ThreadSafe const> const& project)
    : Mixer(project)
    , Transformer(project)
    , m_width(new Attribute<float>(width, project))
    , m_height(new Attribute<float>(height, project))
    , m_eyePosition(newVector(project, "eyePosition", Point(0, 0, k_eyeZ)))
    , m_eyeLookAtPosition(newVector(project, "eyeLookAtPosition", Point(0, 0, k_lookAtZ)))
    , m_eyeUpVector(newVector(project, "eyeUpVector", Point(0, 1, 0)))
    , m_fov(newScalar(project, "fov", static_cast<float>(angleOfView(height, k_eyeZ - k_lookAtZ))))
    , m_nearClipDistance(newScalar(project, "nearClipDistance", k_nearClipDistance))
    , m_farClipDistance(newScalar(project, "farClipDistance", k_farClipDistance))
{}

VisualMixer::VisualMixer(VisualMixer const& other) : VisualMixer(other, WithoutTracks())
{
    appendTrackClones(other);
}

VisualMixer::VisualMixer(VisualMixer const& other, WithoutTracks)
    : XMLIdentified(other)
    , Mixer(other)
    , Transformer(other)
    , m_width(other.m_width->clone())
    , m_height(other.m_height->clone())
    , m_eyePosition(other.m_eyePosition->clone())
    , m_eyeLookAtPosition(other.m_eyeLookAtPosition->clone())
    , m_eyeUpVector(other.m_eyeUpVector->clone())
    , m_fov(other.m_fov->clone())
    , m_nearClipDistance(other.m_nearClipDistance->clone())
    , m_farClipDistance(other.m_farClipDistance->clone())
{}

VisualMixer* VisualMixer::clone() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return new VisualMixer(*this);
}

void VisualMixer::addTrack(boost::shared_ptr<Track> const& track, int index)
{
    boost::shared_ptr<VisualTrack> const visualTrack =
        boost::dynamic_pointer_cast<VisualTrack>(track);
    if (!visualTrack) {
        throw TypeException("VisualTrack");
    }
    addTrackSansTypeCheck(visualTrack, index);
}

VisualMixer::TrackList& VisualMixer::trackList()
{
    return m_tracks;
}

VisualMixer::TrackList const& VisualMixer::trackList() const
{
    return m_tracks;
}

VisualMixer::VisualTrackIterator VisualMixer::trackBegin()
{
    return VisualTrackIterator(Mixer::trackBegin());
}

VisualMixer::VisualTrackIterator VisualMixer::trackEnd()
{
    return VisualTrackIterator(Mixer::trackEnd());
}

VisualMixer::ConstVisualTrackIterator VisualMixer::trackBegin() const
{
    return ConstVisualTrackIterator(Mixer::trackBegin());
}

VisualMixer::ConstVisualTrackIterator VisualMixer::trackEnd() const
{
    return ConstVisualTrackIterator(Mixer::trackEnd());
}

boost::shared_ptr<AbstractVisualTrack> VisualMixer::trackAtIndex(unsigned int index)
{
    return boost::dynamic_pointer_cast<AbstractVisualTrack>(Mixer::trackAtIndex(index));
}

boost::shared_ptr<AbstractVisualTrack const> VisualMixer::trackAtIndex(unsigned int index) const
{
    return boost::dynamic_pointer_cast<AbstractVisualTrack const>(Mixer::trackAtIndex(index));
}

// Attributes and parameters.

boost::shared_ptr<Attribute<float> const> VisualMixer::attributeWidth() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_width;
}

boost::shared_ptr<Attribute<float> const> VisualMixer::attributeHeight() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_height;
}

boost::shared_ptr<VectorParam> VisualMixer::eyePositionParam()
{
    return m_eyePosition;
}

boost::shared_ptr<VectorParam const> VisualMixer::eyePositionParam() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_eyePosition;
}

boost::shared_ptr<VectorParam> VisualMixer::eyeLookAtPositionParam()
{
    return m_eyeLookAtPosition;
}

boost::shared_ptr<VectorParam const> VisualMixer::eyeLookAtPositionParam() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_eyeLookAtPosition;
}

boost::shared_ptr<VectorParam> VisualMixer::eyeUpVectorParam()
{
    return m_eyeUpVector;
}

boost::shared_ptr<VectorParam const> VisualMixer::eyeUpVectorParam() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_eyeUpVector;
}

boost::shared_ptr<InterpolatingParam<float>> VisualMixer::fovParam()
{
    return m_fov;
}

boost::shared_ptr<InterpolatingParam<float> const> VisualMixer::fovParam() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_fov;
}

boost::shared_ptr<InterpolatingParam<float>> VisualMixer::nearClipDistanceParam()
{
    return m_nearClipDistance;
}

boost::shared_ptr<InterpolatingParam<float> const> VisualMixer::nearClipDistanceParam() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_nearClipDistance;
}

boost::shared_ptr<InterpolatingParam<float>> VisualMixer::farClipDistanceParam()
{
    return m_farClipDistance;
}

boost::shared_ptr<InterpolatingParam<float> const> VisualMixer::farClipDistanceParam() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_farClipDistance;
}

int VisualMixer::numParameters() const
{
    return 12;
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>>
VisualMixer::parameterVector() const
{
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> const parameters(
        new MTVector<boost::shared_ptr<ParameterInterface const>>(projectMutex()));
    addVectorParamToParameters(m_eyePosition, parameters.get());
    addVectorParamToParameters(m_eyeLookAtPosition, parameters.get());
    addVectorParamToParameters(m_eyeUpVector, parameters.get());
    parameters->push_back(m_fov);
    parameters->push_back(m_nearClipDistance);
    parameters->push_back(m_farClipDistance);
    return parameters;
}

int VisualMixer::numAttributes() const
{
    return 3;
}

// The camera. Values are read under the parameters' own locks.

double VisualMixer::valueAtTime(boost::shared_ptr<InterpolatingParam<float>> const& parameter,
                                long long time) const
{
    return parameter->valueAtTime(toParameterTime(static_cast<double>(time)));
}

Point VisualMixer::pointAtTime(boost::shared_ptr<VectorParam> const& vector, long long time) const
{
    double const parameterTime = toParameterTime(static_cast<double>(time));
    return Point(vector->at(0)->valueAtTime(parameterTime),
                 vector->at(1)->valueAtTime(parameterTime),
                 vector->at(2)->valueAtTime(parameterTime));
}

double VisualMixer::distanceBetweenEyeAndLookAt(long long time) const
{
    return VectorUtil::length(pointAtTime(m_eyePosition, time) -
                              pointAtTime(m_eyeLookAtPosition, time));
}

double VisualMixer::fieldOfViewY(long long time, Rect<int> const& viewport) const
{
    // Kept so: the host's viewport decides, so that one unit stays one pixel in the look-at plane;
    // an animated fov would undo that.
    return angleOfView(viewport.height, distanceBetweenEyeAndLookAt(time));
}

TransformMatrix VisualMixer::cameraTransformAtTime(long long time) const
{
    return TransformMatrix::cameraLookAt(pointAtTime(m_eyePosition, time),
                                         pointAtTime(m_eyeLookAtPosition, time),
                                         pointAtTime(m_eyeUpVector, time));
}

TransformMatrix VisualMixer::cameraTransformAtTimeLH(long long time) const
{
    return TransformMatrix::cameraLookAtLH(pointAtTime(m_eyePosition, time),
                                           pointAtTime(m_eyeLookAtPosition, time),
                                           pointAtTime(m_eyeUpVector, time));
}

TransformMatrix VisualMixer::projectionTransformAtTime(long long time,
                                                       Rect<int> const& viewport) const
{
    return TransformMatrix::perspectiveProjection(fieldOfViewY(time, viewport), aspectOf(viewport),
                                                  valueAtTime(m_nearClipDistance, time),
                                                  valueAtTime(m_farClipDistance, time));
}

TransformMatrix VisualMixer::projectionTransformAtTimeLH(long long time,
                                                         Rect<int> const& viewport) const
{
    return TransformMatrix::perspectiveProjectionLH(
        fieldOfViewY(time, viewport), aspectOf(viewport), valueAtTime(m_nearClipDistance, time),
        valueAtTime(m_farClipDistance, time));
}

boost::shared_ptr<VisualMixer> VisualMixer::copyPortion(Range<long long> const& range,
                                                        ConstTrackSet const& tracks,
                                                        MediaCloneMap* map) const
{
    return copyPortionImpl<VisualMixer>(range, tracks, map);
}

boost::shared_ptr<VisualMixer> VisualMixer::copyPortion(ConstMediaVector const& medias,
                                                        MediaCloneMap* map) const
{
    return copyPortionImpl<VisualMixer>(medias, map);
}

// XML.

void VisualMixer::xmlName(XMLable::Options& options) const
{
    XmlText(options) << "VisualMixer";
}

void VisualMixer::xmlBody(XMLable::Options& options, int indent) const
{
    Mixer::xmlBody(options, indent);
    genXMLForTransformer(options, indent);
}

void VisualMixer::xmlOfParameters(XMLable::Options& options, int indent) const
{
    m_eyePosition->toXML(options, indent, "name=\"eyePosition\"");
    m_eyeLookAtPosition->toXML(options, indent, "name=\"eyeLookAtPosition\"");
    m_eyeUpVector->toXML(options, indent, "name=\"eyeUpVector\"");
    m_fov->toXML(options, indent, "name=\"fov\"");
    m_nearClipDistance->toXML(options, indent, "name=\"nearClipDistance\"");
    m_farClipDistance->toXML(options, indent, "name=\"farClipDistance\"");
}

void VisualMixer::xmlOfAttributes(XMLable::Options& options, int indent) const
{
    xmlOfIdentAttribute(options, indent);
    m_width->toXML(options, indent, "name=\"width\"");
    m_height->toXML(options, indent, "name=\"height\"");
}

std::string VisualMixer::description() const
{
    return "VisualMixer";
}

}  // namespace tarn
