#pragma once

#include "datatypes/DatatypesFwd.h"
#include "datatypes/Export.h"

namespace tarn {

/// Vectors in space, and tests in the plane, which look at x and y alone.
///
/// Nothing is reported: a zero length yields components that are not finite.
namespace VectorUtil {

/// From `a` to `b`.
TARN_API Point createVector(Point const& a, Point const& b);
/// By Pythagoras, in space.
TARN_API double length(Point const& vector);
/// Makes it one long.
TARN_API void normalize(Point& vector);
/// Half way from `a` to `b`.
TARN_API Point midPoint(Point const& a, Point const& b);
/// a x b: at right angles to both.
TARN_API Point crossProduct(Point const& a, Point const& b);
/// The sum of the products of the components.
TARN_API double dotProduct(Point const& a, Point const& b);
/// a x b, one long.
TARN_API Point computeNormal(Point const& a, Point const& b);
/// Of the plane through the first three corners.
TARN_API Point computeNormal(Quad const& quad);

/// Whether segment a-b crosses segment c-d. Segments that touch or lie on one line may go either
/// way.
TARN_API bool linesIntersect2D(Point const& a, Point const& b, Point const& c, Point const& d);
/// Whether segment a-b crosses an edge of `quad`.
TARN_API bool lineIntersectsQuad2D(Point const& a, Point const& b, Quad const& quad);
/// For either winding. A point on an edge is outside, but for the first edge of a quad that turns
/// clockwise, where it is inside.
TARN_API bool quadContainsPoint(Quad const& quad, Point const& point);
/// Whether any corner of `a` lies in `b`.
TARN_API bool quadInsideOfQuad(Quad const& a, Quad const& b);
/// Whether edges cross or a corner of either lies in the other. Touching need not count.
TARN_API bool quadsIntersect2D(Quad const& a, Quad const& b);

/// Where the line through both points meets the plane of `quad`; not finite when it runs parallel.
TARN_API Point intersectionOfRayWithPlane(Point const& point0, Point const& point1,
                                          Quad const& quad);

}  // namespace VectorUtil

}  // namespace tarn
