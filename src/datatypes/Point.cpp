#include "datatypes/Point.h"

#include <istream>
#include <ostream>
#include <sstream>

namespace tarn {

std::string Point::description() const
{
    std::ostringstream out;
    out << *this;
    return out.str();
}

std::ostream& operator<<(std::ostream& out, Point const& point)
{
    return out << '(' << point.x << ',' << point.y << ',' << point.z << ')';
}

std::istream& operator>>(std::istream& in, Point& point)
{
    Point read;
    char delimiter = 0;
    in >> delimiter >> read.x >> delimiter >> read.y >> delimiter >> read.z >> delimiter;
    if (in)
        point = read;
    return in;
}

}  // namespace tarn
