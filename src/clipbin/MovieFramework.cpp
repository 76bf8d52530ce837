#include "clipbin/MovieFramework.h"

namespace tarn {

MovieFramework::~MovieFramework() = default;

}  // namespace tarn
