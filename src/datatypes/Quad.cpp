#include "datatypes/Quad.h"

#include "datatypes/Rect.h"
#include "datatypes/VectorUtil.h"

#include <algorithm>
#include <ostream>
#include <sstream>

namespace tarn {

Quad::Quad(Rect<double> const& rect)
{
    m_corners[0] = Point(rect.x, rect.y, 0);
    m_corners[1] = Point(rect.x, rect.y + rect.height, 0);
    m_corners[2] = Point(rect.x + rect.width, rect.y + rect.height, 0);
    m_corners[3] = Point(rect.x + rect.width, rect.y, 0);
}

Quad::Quad(Point const& corner0, Point const& corner1, Point const& corner2, Point const& corner3)
{
    m_corners[0] = corner0;
    m_corners[1] = corner1;
    m_corners[2] = corner2;
    m_corners[3] = corner3;
}

std::string Quad::description() const
{
    std::ostringstream out;
    out << *this;
    return out.str();
}

double Quad::minX() const
{
    return std::min({m_corners[0].x, m_corners[1].x, m_corners[2].x, m_corners[3].x});
}

double Quad::maxX() const
{
    return std::max({m_corners[0].x, m_corners[1].x, m_corners[2].x, m_corners[3].x});
}

double Quad::minY() const
{
    return std::min({m_corners[0].y, m_corners[1].y, m_corners[2].y, m_corners[3].y});
}

double Quad::maxY() const
{
    return std::max({m_corners[0].y, m_corners[1].y, m_corners[2].y, m_corners[3].y});
}

Point Quad::leftMid() const
{
    return VectorUtil::midPoint(m_corners[1], m_corners[0]);
}

Point Quad::topMid() const
{
    return VectorUtil::midPoint(m_corners[2], m_corners[1]);
}

Point Quad::rightMid() const
{
    return VectorUtil::midPoint(m_corners[3], m_corners[2]);
}

Point Quad::bottomMid() const
{
    return VectorUtil::midPoint(m_corners[0], m_corners[3]);
}

std::ostream& operator<<(std::ostream& out, Quad const& quad)
{
    for (int i = 0; i < 4; ++i)
        out << quad.at(i) << ' ';
    return out;
}

}  // namespace tarn
