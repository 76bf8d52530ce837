#include "parameters/LeftInterpolater.h"

namespace tarn {

#define TARN_INSTANTIATE(T) template class LeftInterpolater<T>;
TARN_PARAMETER_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
