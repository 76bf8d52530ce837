#include "project/Version.h"

namespace tarn {

int libraryVersion()
{
    return TARN_VERSION;
}

}  // namespace tarn
