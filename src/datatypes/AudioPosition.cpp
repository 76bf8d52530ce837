#include "datatypes/AudioPosition.h"

#include <istream>
#include <ostream>
#include <sstream>

namespace tarn {

std::string AudioPosition::description() const
{
    std::ostringstream out;
    out << *this;
    return out.str();
}

AudioPosition AudioPosition::operator+(AudioPosition const& other) const
{
    return AudioPosition(x + other.x, y + other.y, z + other.z);
}

AudioPosition AudioPosition::operator*(double factor) const
{
    return AudioPosition(static_cast<float>(x * factor), static_cast<float>(y * factor),
                         static_cast<float>(z * factor));
}

std::ostream& operator<<(std::ostream& out, AudioPosition const& position)
{
    return out << '(' << position.x << ',' << position.y << ',' << position.z << ')';
}

std::istream& operator>>(std::istream& in, AudioPosition& position)
{
    AudioPosition read;
    char delimiter = 0;
    in >> delimiter >> read.x >> delimiter >> read.y >> delimiter >> read.z >> delimiter;
    if (in)
        position = read;
    return in;
}

}  // namespace tarn
