#include "datatypes/Range.h"

#include <ostream>
#include <sstream>

namespace tarn {

namespace {

long long distance(long long from, long long to)
{
    return saturatedDifference(to, from);
}

double distance(double from, double to)
{
    return to - from;
}

}  // namespace

template <class T>
Range<T> Range<T>::intersection(Range const& other) const
{
    T const thisEnd = end();
    T const otherEnd = other.end();

    T commonStart = T();
    if (start <= other.start && other.start < thisEnd)
        commonStart = other.start;
    else if (other.start <= start && start < otherEnd)
        commonStart = start;

    // An end lies just behind the last moment that counts, hence the sides of the comparisons.
    T commonEnd = T();
    if (start < otherEnd && otherEnd <= thisEnd)
        commonEnd = otherEnd;
    else if (other.start < thisEnd && thisEnd <= otherEnd)
        commonEnd = thisEnd;

    T const commonDuration = distance(commonStart, commonEnd);
    bool const oneIsEmpty = duration <= T() || other.duration <= T();
    if (oneIsEmpty && commonDuration > T())
        return Range();
    return Range(commonStart, commonDuration);
}

template <class T>
std::string Range<T>::description() const
{
    std::ostringstream out;
    out << *this;
    return out.str();
}

template <class T>
std::ostream& operator<<(std::ostream& out, Range<T> const& range)
{
    return out << '(' << range.start << ',' << range.duration << ')';
}

template class Range<long long>;
template class Range<double>;
template std::ostream& operator<<(std::ostream&, Range<long long> const&);
template std::ostream& operator<<(std::ostream&, Range<double> const&);

}  // namespace tarn
