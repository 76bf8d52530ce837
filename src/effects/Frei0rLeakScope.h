#pragma once

#if defined(__SANITIZE_ADDRESS__)  // g++
#define TARN_HAS_LEAK_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)  // clang
#define TARN_HAS_LEAK_SANITIZER
#endif
#endif

#ifdef TARN_HAS_LEAK_SANITIZER
#include <sanitizer/lsan_interface.h>
#endif

namespace tarn {

/// Keeps what plug-ins leak in its scope, some kilobytes a process, out of a leak sanitizer's
/// report: they are unloaded by the time of the report, so that no suppression could name them.
class Frei0rLeakScope
{
public:
    Frei0rLeakScope(Frei0rLeakScope const&) = delete;
    Frei0rLeakScope& operator=(Frei0rLeakScope const&) = delete;

#ifdef TARN_HAS_LEAK_SANITIZER
    Frei0rLeakScope()
    {
        __lsan_disable();
    }
    ~Frei0rLeakScope()
    {
        __lsan_enable();
    }
#else
    Frei0rLeakScope() {}
    ~Frei0rLeakScope() {}
#endif
};

}  // namespace tarn
