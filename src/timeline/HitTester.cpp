#include "timeline/HitTester.h"

#include "datatypes/ClampedCast.h"
#include "datatypes/GraphicsUtil.h"
#include "datatypes/Point.h"
#include "datatypes/Rect.h"
#include "datatypes/TransformMatrix.h"
#include "datatypes/VectorUtil.h"
#include "parameters/Attribute.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"
#include "project/ReadWriteMutex.h"
#include "timeline/AbstractVisualTrack.h"
#include "timeline/VisualMedia.h"
#include "timeline/VisualMediaHitTester.h"
#include "timeline/VisualMixer.h"
#include "timeline/VisualTrack.h"

#include <boost/pointer_cast.hpp>

#include <typeinfo>

namespace tarn {

namespace {

using Hit = std::pair<boost::shared_ptr<VisualMedia const>, Point>;

/// The mixer's frame around the origin, in whole pixels.
Rect<int> calcViewport(VisualMixer const& mixer)
{
    float const width = mixer.attributeWidth()->value();
    float const height = mixer.attributeHeight()->value();
    return Rect<int>(clampedTruncateToInt(width * -0.5), clampedTruncateToInt(-0.5 * height),
                     clampedTruncateToInt(width), clampedTruncateToInt(height));
}

/// The eye, wherever on the picture the ray goes.
Point calcPickRayOrigin(VisualMixer const& mixer, long long time)
{
    boost::shared_ptr<VectorParam const> const eye = mixer.eyePositionParam();
    double const parameterTime = mixer.toParameterTime(static_cast<double>(time));
    return Point(eye->at(0)->valueAtTime(parameterTime), eye->at(1)->valueAtTime(parameterTime),
                 eye->at(2)->valueAtTime(parameterTime));
}

Point calcPickRayDirection(VisualMixer const& mixer, Point const& location, long long time)
{
    Rect<int> const viewport = calcViewport(mixer);
    TransformMatrix const projection = mixer.projectionTransformAtTime(time, viewport);
    TransformMatrix const camera = mixer.cameraTransformAtTime(time);
    Point const nearPoint =
        GraphicsUtil::unProject(Point(location.x, location.y, 0.0), camera, projection, viewport);
    Point const farPoint =
        GraphicsUtil::unProject(Point(location.x, location.y, 1.0), camera, projection, viewport);
    Point direction = farPoint - nearPoint;
    VectorUtil::normalize(direction);
    return direction;
}

AbstractVisualTrack const& asVisual(Track const& track)
{
    // Nearly always it is one of these, which is seen without a walk over its bases.
    if (typeid(track) == typeid(VisualTrack))
        return static_cast<VisualTrack const&>(track);
    return dynamic_cast<AbstractVisualTrack const&>(track);
}

Hit visualMediaIntersectsRay(AbstractVisualTrack const& track, Point const& origin,
                             Point const& direction, long long time)
{
    boost::shared_ptr<Media const> const media = track.mediaAtTime(time).second;
    if (!media)
        return Hit();
    TransformMatrix const trackTransform = track.calcTransformAtTime(&track, time);
    VisualMediaHitTester tester(origin, direction, trackTransform, time);
    media->receiveDispatcher(&tester);
    if (!tester.doesHit())
        return Hit();
    return Hit(boost::dynamic_pointer_cast<VisualMedia const>(media), tester.hitLocation());
}

Hit findMediaIntersectingRay(VisualMixer const& mixer, Point const& origin, Point const& direction,
                             long long time)
{
    // The front of the picture is the last track. The mixer's own list, as the lock is held.
    Mixer::TrackList const& tracks = mixer.trackList();
    for (auto it = tracks.rbegin(); it != tracks.rend(); ++it) {
        Hit const hit = visualMediaIntersectsRay(asVisual(**it), origin, direction, time);
        if (hit.first)
            return hit;
    }
    return Hit();
}

}  // namespace

std::pair<boost::shared_ptr<VisualMedia const>, Point> HitTester::hitTestAtLocation(
    boost::shared_ptr<VisualMixer const> const& mixer, Point const& location, long long time)
{
    // One lock over all the steps, so that the ray and what it meets are of one moment.
    ReadWriteMutex::ScopedReadLock lock(mixer->mutex());
    Point const origin = calcPickRayOrigin(*mixer, time);
    Point const direction = calcPickRayDirection(*mixer, location, time);
    return findMediaIntersectingRay(*mixer, origin, direction, time);
}

boost::shared_ptr<VisualMedia const> HitTester::mediaAtLocation(
    boost::shared_ptr<VisualMixer const> const& mixer, Point const& location, long long time)
{
    return hitTestAtLocation(mixer, location, time).first;
}

}  // namespace tarn
