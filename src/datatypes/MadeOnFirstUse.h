#pragma once

#include "datatypes/Export.h"

#include <boost/shared_ptr.hpp>

#include <atomic>
#include <mutex>

namespace tarn {

/// What making on first use waits for: one for the process, and never while anyone else is called.
TARN_API std::mutex& firstUseMutex();

/// A shared object that few ever ask for, made when the first one does, by whichever thread that
/// is. It stays the same one from then on.
template <class T>
class MadeOnFirstUse
{
public:
    MadeOnFirstUse() : m_isMade(false) {}
    /// Of something made already, unless it is empty.
    explicit MadeOnFirstUse(boost::shared_ptr<T> const& object)
        : m_isMade(object != nullptr), m_object(object)
    {}
    MadeOnFirstUse(MadeOnFirstUse const&) = delete;
    MadeOnFirstUse& operator=(MadeOnFirstUse const&) = delete;

    bool isMade() const { return m_isMade.load(std::memory_order_acquire); }

    /// Calls `make` if it is not made yet. @throws what `make` throws, and is not made then
    template <class Make>
    boost::shared_ptr<T> const& get(Make make) const
    {
        if (!isMade()) {
            std::lock_guard<std::mutex> const guard(firstUseMutex());
            if (!isMade()) {
                m_object = make();
                m_isMade.store(true, std::memory_order_release);
            }
        }
        return m_object;
    }

private:
    mutable std::atomic<bool> m_isMade;
    mutable boost::shared_ptr<T> m_object;
};

}  // namespace tarn
