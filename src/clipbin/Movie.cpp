#include "clipbin/Movie.h"

namespace tarn {

Movie::~Movie() = default;

}  // namespace tarn
