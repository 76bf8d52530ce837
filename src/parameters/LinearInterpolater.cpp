#include "parameters/LinearInterpolater.h"

namespace tarn {

namespace {

// Two products everywhere, not left + (right - left) * position: the last digits differ.

template <class T>
T blend(T const& left, T const& right, double position)
{
    return left * (1.0 - position) + right * position;
}

float blend(float left, float right, double position)
{
    double const wideLeft = left;
    double const wideRight = right;
    return static_cast<float>(wideLeft * (1.0 - position) + position * wideRight);
}

double blend(double left, double right, double position)
{
    return (1.0 - position) * left + position * right;
}

}  // namespace

template <class T>
boost::shared_ptr<Interpolater<T>> const& LinearInterpolater<T>::instance()
{
    static boost::shared_ptr<Interpolater<T>> const s_only(new LinearInterpolater);
    return s_only;
}

template <class T>
boost::shared_ptr<Interpolater<T>> const& LinearInterpolater<T>::s_instance =
    LinearInterpolater<T>::instance();

template <class T>
T LinearInterpolater<T>::doInterpolate(T left, T right, double position) const
{
    return blend(left, right, position);
}

#define TARN_INSTANTIATE(T) template class LinearInterpolater<T>;
TARN_INTERPOLATING_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
