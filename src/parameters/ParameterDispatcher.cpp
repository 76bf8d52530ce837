#include "parameters/ParameterDispatcher.h"

namespace tarn {

ParameterDispatcher::~ParameterDispatcher() {}

}  // namespace tarn
