#include "timeline/VisualMediaHitTester.h"

#include "datatypes/Quad.h"
#include "datatypes/Range.h"
#include "datatypes/Rect.h"
#include "datatypes/SaturatedArithmetic.h"
#include "datatypes/TransformMatrix.h"
#include "datatypes/VectorUtil.h"
#include "exceptions/TypeException.h"
#include "timeline/Callout.h"
#include "timeline/IMFile.h"
#include "timeline/ImageTransition.h"
#include "timeline/TextBox.h"
#include "timeline/Track.h"
#include "timeline/VMFile.h"

#include <boost/pointer_cast.hpp>

#include <cmath>

namespace tarn {

namespace {

double const k_edgeTolerance = 0.0001;
/// The least cosine between ray and normal; below it the plane is seen edge-on.
double const k_leastIncidence = 1e-9;

bool isFinite(Point const& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

bool isInside(Rect<double> const& rect, Point const& point)
{
    return rect.x - k_edgeTolerance <= point.x &&
           point.x <= rect.x + rect.width + k_edgeTolerance &&
           rect.y - k_edgeTolerance <= point.y && point.y <= rect.y + rect.height + k_edgeTolerance;
}

/// @returns false for a miss: the plane is edge-on, degenerate or behind the origin
bool rayMeetsPlane(Point const& origin, Point const& direction, Quad const& plane,
                   Point& intersection)
{
    double const incidence = VectorUtil::dotProduct(VectorUtil::computeNormal(plane), direction);
    if (!(std::fabs(incidence) > k_leastIncidence))
        return false;
    intersection = VectorUtil::intersectionOfRayWithPlane(origin, origin + direction, plane);
    return isFinite(intersection) && VectorUtil::dotProduct(intersection - origin, direction) >= 0;
}

}  // namespace

VisualMediaHitTester::VisualMediaHitTester(Point const& rayOrigin, Point const& rayDirection,
                                           TransformMatrix const& trackTransform, long long time)
    : m_rayOrigin(rayOrigin)
    , m_rayDirection(rayDirection)
    , m_trackTransform(trackTransform)
    , m_hits(false)
    , m_time(time)
{}

bool VisualMediaHitTester::rayHitsVisualMedia(boost::shared_ptr<VisualMedia const> const& media)
{
    long long const localTime = saturatedDifference(m_time, media->startTime());
    Rect<double> const rect = media->geometryCropRectAtTime(localTime);
    TransformMatrix matrix = media->transformAtTime(localTime);
    matrix.prepend(m_trackTransform);
    Point intersection;
    if (!rayMeetsPlane(m_rayOrigin, m_rayDirection, matrix * Quad(rect), intersection))
        return false;
    Point const local = matrix.inverse() * intersection;
    if (!isInside(rect, local))
        return false;
    m_hitLocation = local;
    return true;
}

void VisualMediaHitTester::dispatchMedia(boost::shared_ptr<VMFile const> const& media)
{
    m_hits = rayHitsVisualMedia(media);
}

void VisualMediaHitTester::dispatchMedia(boost::shared_ptr<AMFile const> const&)
{
    throw TypeException("Audio media can't be tested for geometry");
}

void VisualMediaHitTester::dispatchMedia(boost::shared_ptr<IMFile const> const& media)
{
    m_hits = rayHitsVisualMedia(media);
}

void VisualMediaHitTester::dispatchMedia(boost::shared_ptr<ImageTransition const> const& media)
{
    boost::shared_ptr<Track const> const track(media->parentTrack());
    m_hits = rayHitsNeighbour(track->leftOfTransition(media)) ||
             rayHitsNeighbour(track->rightOfTransition(media));
}

void VisualMediaHitTester::dispatchMedia(boost::shared_ptr<AudioTransition const> const&)
{
    throw TypeException("Audio media can't be tested for geometry");
}

void VisualMediaHitTester::dispatchMedia(boost::shared_ptr<TextBox const> const& media)
{
    m_hits = rayHitsVisualMedia(media);
}

void VisualMediaHitTester::dispatchMedia(boost::shared_ptr<Callout const> const& media)
{
    m_hits = rayHitsVisualMedia(media);
}

bool VisualMediaHitTester::rayHitsNeighbour(boost::shared_ptr<Media const> const& neighbour)
{
    auto const media = boost::dynamic_pointer_cast<VisualMedia const>(neighbour);
    // Another transition has no picture, and so no place.
    if (!media || boost::dynamic_pointer_cast<Transition const>(neighbour))
        return false;
    return rayHitsVisualMedia(media);
}

}  // namespace tarn
