#include "parameters/KeyFrame.h"

namespace tarn {

#define TARN_INSTANTIATE(T) template class KeyFrame<T>;
TARN_PARAMETER_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
