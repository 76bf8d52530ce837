#pragma once

#include "datatypes/Export.h"

/// The version these headers belong to; a host compares it with libraryVersion().
#define TARN_VERSION_MAJOR 1
#define TARN_VERSION_MINOR 0
#define TARN_VERSION_PATCH 0
#define TARN_VERSION (TARN_VERSION_MAJOR * 10000 + TARN_VERSION_MINOR * 100 + TARN_VERSION_PATCH)

namespace tarn {

/// The version of the library that is loaded, as TARN_VERSION tells the one of the headers.
TARN_API int libraryVersion();

}  // namespace tarn
