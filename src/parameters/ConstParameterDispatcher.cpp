#include "parameters/ConstParameterDispatcher.h"

namespace tarn {

ConstParameterDispatcher::~ConstParameterDispatcher() {}

}  // namespace tarn
