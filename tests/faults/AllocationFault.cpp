#include "faults/AllocationFault.h"

#include <execinfo.h>

#include <cstdlib>
#include <new>
#include <thread>

namespace tarn {
namespace test {
namespace {

int const k_maxFrames = 40;

struct State
{
    bool isArmed = false;
    int requestsToGo = 0;
    int numSeen = 0;
    AllocationFault::Lasting lasting = AllocationFault::Once;
    std::thread::id thread;
    bool hasFired = false;
    long long numRefused = 0;
    void* frames[k_maxFrames] = {};
    int numFrames = 0;
};

State s_state;

bool isRefused()
{
    if (!s_state.isArmed || s_state.thread != std::this_thread::get_id())
        return false;
    if (s_state.requestsToGo > 0) {
        --s_state.requestsToGo;
        ++s_state.numSeen;
    }
    if (s_state.requestsToGo > 0)
        return false;
    if (s_state.hasFired && s_state.lasting == AllocationFault::Once)
        return false;
    ++s_state.numRefused;
    if (!s_state.hasFired) {
        s_state.hasFired = true;
        s_state.numFrames = backtrace(s_state.frames, k_maxFrames);
    }
    return true;
}

void* memoryOrNull(std::size_t size) noexcept
{
    return isRefused() ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void* memoryOrThrow(std::size_t size)
{
    if (void* const memory = memoryOrNull(size))
        return memory;
    throw std::bad_alloc();
}

}  // namespace

AllocationFault::AllocationFault(int k, Lasting lasting)
{
    // The first one loads a library, which allocates.
    static int const s_loaded = backtrace(s_state.frames, 1);
    static_cast<void>(s_loaded);
    s_state.requestsToGo = k;
    s_state.numSeen = 0;
    s_state.lasting = lasting;
    s_state.thread = std::this_thread::get_id();
    s_state.hasFired = false;
    s_state.numFrames = 0;
    s_state.isArmed = true;
}

AllocationFault::~AllocationFault()
{
    s_state.isArmed = false;
}

bool AllocationFault::hasFired()
{
    return s_state.hasFired;
}

int AllocationFault::numSeen()
{
    return s_state.numSeen;
}

long long AllocationFault::numRefused()
{
    return s_state.numRefused;
}

std::string AllocationFault::whereFired()
{
    std::string text;
    char** const symbols = backtrace_symbols(s_state.frames, s_state.numFrames);
    for (int i = 0; symbols && i < s_state.numFrames; ++i)
        text.append("    ").append(symbols[i]).append("\n");
    std::free(symbols);
    return text;
}

AllocationFault::Pause::Pause() : m_wasArmed(s_state.isArmed)
{
    s_state.isArmed = false;
}

AllocationFault::Pause::~Pause()
{
    s_state.isArmed = m_wasArmed;
}

}  // namespace test
}  // namespace tarn

// In the place of the system's own, all of them, so that what one gives another takes back. They
// use malloc, which the sanitizers watch as they watch operator new. Never inlined: the compiler
// would see a free() without its malloc() then, and warn.

[[gnu::noinline]] void* operator new(std::size_t size)
{
    return tarn::test::memoryOrThrow(size);
}
[[gnu::noinline]] void* operator new[](std::size_t size)
{
    return tarn::test::memoryOrThrow(size);
}
[[gnu::noinline]] void* operator new(std::size_t size, std::nothrow_t const&) noexcept
{
    return tarn::test::memoryOrNull(size);
}
[[gnu::noinline]] void* operator new[](std::size_t size, std::nothrow_t const&) noexcept
{
    return tarn::test::memoryOrNull(size);
}
[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    std::free(memory);
}
[[gnu::noinline]] void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
[[gnu::noinline]] void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::nothrow_t const&) noexcept
{
    std::free(memory);
}
[[gnu::noinline]] void operator delete[](void* memory, std::nothrow_t const&) noexcept
{
    std::free(memory);
}
