#pragma once

#include "datatypes/Export.h"
#include "datatypes/TarnObject.h"

#include <iosfwd>
#include <string>

namespace tarn {

/// Where a sound is heard to come from.
class TARN_API AudioPosition : public TarnObject
{
public:
    AudioPosition() : x(0), y(0), z(0) {}
    AudioPosition(float px, float py, float pz) : x(px), y(py), z(pz) {}
    AudioPosition(AudioPosition const& other) = default;
    AudioPosition& operator=(AudioPosition const& other) = default;

    std::string description() const override;

    friend bool operator==(AudioPosition const& a, AudioPosition const& b)
    {
        return a.x == b.x && a.y == b.y && a.z == b.z;
    }
    friend bool operator!=(AudioPosition const& a, AudioPosition const& b) { return !(a == b); }

    AudioPosition operator+(AudioPosition const& other) const;
    /// Each component is multiplied as a double and rounded to float.
    AudioPosition operator*(double factor) const;

    float x;
    float y;
    float z;
};

/// Written as `(x,y,z)`.
TARN_API std::ostream& operator<<(std::ostream& out, AudioPosition const& position);
/// Reads the same shape; each delimiter may be any character. Unchanged when reading fails.
TARN_API std::istream& operator>>(std::istream& in, AudioPosition& position);

}  // namespace tarn
