#pragma once

#include "datatypes/Export.h"
#include "datatypes/TarnObject.h"

#include <iosfwd>
#include <string>

namespace tarn {

/// Four channels on a scale of 0 to 255. Arithmetic leaves that scale freely.
class TARN_API Color : public TarnObject
{
public:
    Color() : red(0), green(0), blue(0), alpha(0) {}
    Color(int r, int g, int b, int a) : red(r), green(g), blue(b), alpha(a) {}
    Color(Color const& other) = default;
    Color& operator=(Color const& other) = default;

    /// Opaque.
    static Color black();
    /// Kept so: with an alpha of 0; it covers nothing.
    static Color white();

    std::string description() const override;

    friend bool operator==(Color const& a, Color const& b)
    {
        return a.red == b.red && a.green == b.green && a.blue == b.blue && a.alpha == b.alpha;
    }
    friend bool operator!=(Color const& a, Color const& b) { return !(a == b); }

    /// Each channel is cut to a whole number.
    Color operator*(double factor) const;
    Color operator+(Color const& other) const;

    int red;
    int green;
    int blue;
    int alpha;
};

/// Written as `(red,green,blue,alpha)`.
TARN_API std::ostream& operator<<(std::ostream& out, Color const& color);
/// Reads the same shape; each delimiter may be any character. Unchanged when reading fails.
TARN_API std::istream& operator>>(std::istream& in, Color& color);

}  // namespace tarn
