#include "datatypes/Rect.h"

#include <ostream>
#include <sstream>

namespace tarn {

template <class T>
std::string Rect<T>::description() const
{
    std::ostringstream out;
    out << *this;
    return out.str();
}

template <class T>
std::ostream& operator<<(std::ostream& out, Rect<T> const& rect)
{
    return out << '(' << rect.x << ',' << rect.y << ',' << rect.width << ',' << rect.height << ')';
}

template class Rect<int>;
template class Rect<float>;
template class Rect<double>;
template std::ostream& operator<<(std::ostream&, Rect<int> const&);
template std::ostream& operator<<(std::ostream&, Rect<float> const&);
template std::ostream& operator<<(std::ostream&, Rect<double> const&);

}  // namespace tarn
