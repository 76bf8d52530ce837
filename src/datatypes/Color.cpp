#include "datatypes/Color.h"

#include "datatypes/ClampedCast.h"

#include <istream>
#include <ostream>
#include <sstream>

namespace tarn {

namespace {

/// Wraps, so that no sum of channels is undefined.
int sum(int a, int b)
{
    return static_cast<int>(static_cast<unsigned int>(a) + static_cast<unsigned int>(b));
}

}  // namespace

Color Color::black()
{
    return Color(0, 0, 0, 255);
}

Color Color::white()
{
    // Kept so: white covers nothing, unlike black. Hosts lay it under what they draw.
    return Color(255, 255, 255, 0);
}

std::string Color::description() const
{
    std::ostringstream out;
    out << *this;
    return out.str();
}

Color Color::operator*(double factor) const
{
    return Color(clampedTruncateToInt(red * factor), clampedTruncateToInt(green * factor),
                 clampedTruncateToInt(blue * factor), clampedTruncateToInt(alpha * factor));
}

Color Color::operator+(Color const& other) const
{
    return Color(sum(red, other.red), sum(green, other.green), sum(blue, other.blue),
                 sum(alpha, other.alpha));
}

std::ostream& operator<<(std::ostream& out, Color const& color)
{
    return out << '(' << color.red << ',' << color.green << ',' << color.blue << ',' << color.alpha
               << ')';
}

std::istream& operator>>(std::istream& in, Color& color)
{
    Color read;
    char delimiter = 0;
    in >> delimiter >> read.red >> delimiter >> read.green >> delimiter >> read.blue >> delimiter >>
        read.alpha >> delimiter;
    if (in)
        color = read;
    return in;
}

}  // namespace tarn
