#include "parameters/Interpolater.h"

namespace tarn {

#define TARN_INSTANTIATE(T) template class Interpolater<T>;
TARN_PARAMETER_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
