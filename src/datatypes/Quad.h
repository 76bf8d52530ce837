#pragma once

#include "datatypes/Export.h"
#include "datatypes/Point.h"

#include <iosfwd>
#include <string>

namespace tarn {

template <class T>
class Rect;

/// Four corners in order; made from a rectangle they go left bottom, left top, right top, right
/// bottom, with y upwards. An index outside 0 to 3 is not looked for.
class TARN_API Quad : public TarnObject
{
public:
    Quad() {}
    explicit Quad(Rect<double> const& rect);
    Quad(Point const& corner0, Point const& corner1, Point const& corner2, Point const& corner3);
    Quad(Quad const& other) = default;
    Quad& operator=(Quad const& other) = default;

    std::string description() const override;

    /// The corner of that index, from 0 to 3.
    Point const& at(int index) const { return m_corners[index]; }
    /// Replaces the corner of that index, from 0 to 3.
    void setAt(int index, Point const& corner) { m_corners[index] = corner; }

    /// The smallest x of the four corners; and so on.
    double minX() const;
    double maxX() const;
    double minY() const;
    double maxY() const;

    /// Half way between the two corners of that side, as the corners of a rectangle go.
    Point leftMid() const;
    Point topMid() const;
    Point rightMid() const;
    Point bottomMid() const;

    friend bool operator==(Quad const& a, Quad const& b)
    {
        return a.at(0) == b.at(0) && a.at(1) == b.at(1) && a.at(2) == b.at(2) && a.at(3) == b.at(3);
    }
    friend bool operator!=(Quad const& a, Quad const& b) { return !(a == b); }

private:
    Point m_corners[4];
};

/// Written as the four points, each followed by one blank.
TARN_API std::ostream& operator<<(std::ostream& out, Quad const& quad);

}  // namespace tarn
