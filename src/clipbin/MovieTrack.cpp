#include "clipbin/MovieTrack.h"

namespace tarn {

MovieTrack::~MovieTrack() = default;

}  // namespace tarn
