#include "clipbin/StatsLoader.h"

namespace tarn {

StatsLoader::~StatsLoader() = default;

}  // namespace tarn
