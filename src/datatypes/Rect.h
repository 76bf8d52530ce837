#pragma once

#include "datatypes/Export.h"
#include "datatypes/TarnObject.h"

#include <iosfwd>
#include <string>

namespace tarn {

/// An upright rectangle; T is int, float or double. From its left bottom corner, y upwards; sizes
/// are not tested.
template <class T>
class TARN_API Rect : public TarnObject
{
public:
    Rect() : x(), y(), width(), height() {}
    Rect(T left, T bottom, T w, T h) : x(left), y(bottom), width(w), height(h) {}
    Rect(Rect const& other) = default;
    Rect& operator=(Rect const& other) = default;

    std::string description() const override;

    friend bool operator==(Rect const& a, Rect const& b)
    {
        return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
    }
    friend bool operator!=(Rect const& a, Rect const& b) { return !(a == b); }

    T x;
    T y;
    T width;
    T height;
};

/// Written as `(x,y,width,height)`.
template <class T>
TARN_API std::ostream& operator<<(std::ostream& out, Rect<T> const& rect);

extern template class Rect<int>;
extern template class Rect<float>;
extern template class Rect<double>;
extern template std::ostream& operator<<(std::ostream&, Rect<int> const&);
extern template std::ostream& operator<<(std::ostream&, Rect<float> const&);
extern template std::ostream& operator<<(std::ostream&, Rect<double> const&);

}  // namespace tarn
