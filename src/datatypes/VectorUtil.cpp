#include "datatypes/VectorUtil.h"

#include "datatypes/Point.h"
#include "datatypes/Quad.h"

#include <cmath>

namespace tarn {

namespace VectorUtil {

namespace {

/// Whether a, b, c turn counter-clockwise.
bool ccw(Point const& a, Point const& b, Point const& c)
{
    return (c.y - a.y) * (b.x - a.x) > (b.y - a.y) * (c.x - a.x);
}

/// Above zero where `point` lies to the left of the edge that starts at that corner.
double sideOfEdge(Quad const& quad, int edge, Point const& point)
{
    Point const& start = quad.at(edge);
    Point const along = createVector(start, quad.at((edge + 1) % 4));
    return crossProduct(along, createVector(start, point)).z;
}

}  // namespace

Point createVector(Point const& a, Point const& b)
{
    return b - a;
}

double length(Point const& vector)
{
    return std::sqrt(dotProduct(vector, vector));
}

void normalize(Point& vector)
{
    vector = vector / length(vector);
}

Point midPoint(Point const& a, Point const& b)
{
    return (a + b) / 2;
}

Point crossProduct(Point const& a, Point const& b)
{
    return Point(a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x);
}

double dotProduct(Point const& a, Point const& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Point computeNormal(Point const& a, Point const& b)
{
    Point normal = crossProduct(a, b);
    normalize(normal);
    return normal;
}

Point computeNormal(Quad const& quad)
{
    return computeNormal(createVector(quad.at(0), quad.at(1)),
                         createVector(quad.at(1), quad.at(2)));
}

bool linesIntersect2D(Point const& a, Point const& b, Point const& c, Point const& d)
{
    return ccw(a, c, d) != ccw(b, c, d) && ccw(a, b, c) != ccw(a, b, d);
}

bool lineIntersectsQuad2D(Point const& a, Point const& b, Quad const& quad)
{
    for (int i = 0; i < 4; ++i) {
        if (linesIntersect2D(a, b, quad.at(i), quad.at((i + 1) % 4)))
            return true;
    }
    return false;
}

bool quadContainsPoint(Quad const& quad, Point const& point)
{
    double const sign = sideOfEdge(quad, 0, point) > 0 ? 1 : -1;
    return sign * sideOfEdge(quad, 1, point) > 0 && sign * sideOfEdge(quad, 2, point) > 0 &&
           sign * sideOfEdge(quad, 3, point) > 0;
}

bool quadInsideOfQuad(Quad const& a, Quad const& b)
{
    // Kept so: one corner is enough, as callers ask whether any of `a` shows through `b`.
    return quadContainsPoint(b, a.at(0)) || quadContainsPoint(b, a.at(1)) ||
           quadContainsPoint(b, a.at(2)) || quadContainsPoint(b, a.at(3));
}

bool quadsIntersect2D(Quad const& a, Quad const& b)
{
    for (int i = 0; i < 4; ++i) {
        if (lineIntersectsQuad2D(a.at(i), a.at((i + 1) % 4), b))
            return true;
    }
    return quadInsideOfQuad(a, b) || quadInsideOfQuad(b, a);
}

Point intersectionOfRayWithPlane(Point const& point0, Point const& point1, Quad const& quad)
{
    Point const normal = computeNormal(quad);
    Point const along = createVector(point0, point1);
    double const distance = dotProduct(normal, createVector(point0, quad.at(0)));
    return point0 + along * (distance / dotProduct(normal, along));
}

}  // namespace VectorUtil

}  // namespace tarn
