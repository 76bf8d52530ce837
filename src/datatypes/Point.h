#pragma once

#include "datatypes/Export.h"
#include "datatypes/TarnObject.h"

#include <iosfwd>
#include <string>

namespace tarn {

/// A point or a vector in space. Dividing by zero yields infinities, which flow on.
class TARN_API Point : public TarnObject
{
public:
    Point() : x(0), y(0), z(0) {}
    Point(double px, double py, double pz) : x(px), y(py), z(pz) {}
    /// From three numbers in a row.
    explicit Point(double const* coordinates)
        : x(coordinates[0]), y(coordinates[1]), z(coordinates[2])
    {}
    Point(Point const& other) = default;
    Point& operator=(Point const& other) = default;

    std::string description() const override;

    friend bool operator==(Point const& a, Point const& b)
    {
        return a.x == b.x && a.y == b.y && a.z == b.z;
    }
    friend bool operator!=(Point const& a, Point const& b) { return !(a == b); }

    Point operator+(Point const& other) const
    {
        return Point(x + other.x, y + other.y, z + other.z);
    }
    Point operator-(Point const& other) const
    {
        return Point(x - other.x, y - other.y, z - other.z);
    }
    Point operator*(double factor) const { return Point(x * factor, y * factor, z * factor); }
    Point operator/(double divisor) const { return Point(x / divisor, y / divisor, z / divisor); }

    double x;
    double y;
    double z;
};

/// Written as `(x,y,z)`.
TARN_API std::ostream& operator<<(std::ostream& out, Point const& point);
/// Reads the same shape; each delimiter may be any character. Unchanged when reading fails.
TARN_API std::istream& operator>>(std::istream& in, Point& point);

}  // namespace tarn
