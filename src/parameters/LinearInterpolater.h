#pragma once

#include "parameters/Interpolater.h"

namespace tarn {

/// Blends by the weights 1 - position and position. There is one for each type, so two are the same
/// policy exactly when their pointers are equal.
template <class T>
class TARN_API LinearInterpolater : public Interpolater<T>
{
public:
    static boost::shared_ptr<Interpolater<T>> const& instance();
    /// instance() by its data name. While statics are still being made, use instance().
    static boost::shared_ptr<Interpolater<T>> const& s_instance;

protected:
    T doInterpolate(T left, T right, double position) const override;

private:
    LinearInterpolater() : Interpolater<T>("linr") {}
};

#define TARN_DECLARE(T) extern template class TARN_API LinearInterpolater<T>;
TARN_INTERPOLATING_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
