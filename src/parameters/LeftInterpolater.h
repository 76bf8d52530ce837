#pragma once

#include "parameters/Interpolater.h"

namespace tarn {

/// Keeps the left value until the next key frame. There is one for each type, so two are the same
/// policy exactly when their pointers are equal. T may be any type that can be copied and compared.
template <class T>
class TARN_API LeftInterpolater : public Interpolater<T>
{
public:
    static boost::shared_ptr<Interpolater<T>> const& instance()
    {
        static boost::shared_ptr<Interpolater<T>> const s_only(new LeftInterpolater);
        return s_only;
    }
    /// instance() by its data name. While statics are still being made, use instance().
    static boost::shared_ptr<Interpolater<T>> const& s_instance;

protected:
    T doInterpolate(T left, T, double) const override { return left; }

private:
    LeftInterpolater() : Interpolater<T>("left") {}
};

template <class T>
boost::shared_ptr<Interpolater<T>> const& LeftInterpolater<T>::s_instance =
    LeftInterpolater<T>::instance();

#define TARN_DECLARE(T) extern template class TARN_API LeftInterpolater<T>;
TARN_PARAMETER_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
