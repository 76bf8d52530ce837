#include "parameters/Attributable.h"

namespace tarn {

Attributable::~Attributable() {}

}  // namespace tarn
