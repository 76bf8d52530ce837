#pragma once

#include "datatypes/Export.h"

#include <ostream>
#include <utility>

namespace tarn {

/// Two values of one type: the left one and the right one, as a cut sees them.
template <class T>
class TARN_API Pair
{
public:
    Pair() : first(), second() {}
    Pair(T left, T right) : first(std::move(left)), second(std::move(right)) {}

    T first;
    T second;
};

template <class T>
bool operator==(Pair<T> const& a, Pair<T> const& b)
{
    return a.first == b.first && a.second == b.second;
}

template <class T>
bool operator!=(Pair<T> const& a, Pair<T> const& b)
{
    return !(a == b);
}

template <class T>
std::ostream& operator<<(std::ostream& out, Pair<T> const& pair)
{
    return out << "(" << pair.first << "," << pair.second << ")";
}

}  // namespace tarn
