#include "datatypes/MadeOnFirstUse.h"

namespace tarn {

std::mutex& firstUseMutex()
{
    // Never freed, as objects of a host may die last.
    static std::mutex& s_instance = *new std::mutex;
    return s_instance;
}

}  // namespace tarn
