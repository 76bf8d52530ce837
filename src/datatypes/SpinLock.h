#pragma once

#include <atomic>
#include <thread>

namespace tarn {

/// Guards a few instructions that hardly ever meet: taken by one exchange and given back by a plain
/// store, which is half of what a mutex costs that nobody else wants. Whoever must wait yields, and
/// nobody waits in turn, so nothing that calls a host or waits itself belongs under it.
///
/// For std::lock_guard.
class SpinLock
{
public:
    SpinLock() = default;
    SpinLock(SpinLock const&) = delete;
    SpinLock& operator=(SpinLock const&) = delete;

    /// Takes it, once whoever has it gives it back. Not twice on one thread.
    void lock()
    {
        while (m_isTaken.exchange(true, std::memory_order_acquire))
            std::this_thread::yield();
    }
    /// Gives it back.
    void unlock() { m_isTaken.store(false, std::memory_order_release); }

private:
    std::atomic<bool> m_isTaken{false};
};

}  // namespace tarn
