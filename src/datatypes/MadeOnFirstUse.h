#pragma once

#include "datatypes/Export.h"

#include <boost/shared_ptr.hpp>

#include <atomic>
#include <memory>
#include <mutex>

namespace tarn {

/// What making on first use waits for: one for the process, and never while anyone else is called.
TARN_API std::mutex& firstUseMutex();

/// A shared object that few ever ask for, made when the first one does, by whichever thread that
/// is. It stays the same one from then on. Until then it costs one word.
template <class T>
class MadeOnFirstUse
{
public:
    MadeOnFirstUse() : m_holder(nullptr) {}
    /// Of something made already, unless it is empty.
    explicit MadeOnFirstUse(boost::shared_ptr<T> const& object)
        : m_holder(object ? new boost::shared_ptr<T>(object) : nullptr)
    {}
    MadeOnFirstUse(MadeOnFirstUse const&) = delete;
    MadeOnFirstUse& operator=(MadeOnFirstUse const&) = delete;
    ~MadeOnFirstUse() { delete m_holder.load(std::memory_order_relaxed); }

    bool isMade() const { return holder() != nullptr; }
    /// Null while it is not made.
    T* ifMade() const
    {
        boost::shared_ptr<T> const* const made = holder();
        return made ? made->get() : nullptr;
    }

    /// Calls `make` if it is not made yet. @throws what `make` throws, and is not made then
    template <class Make>
    boost::shared_ptr<T> const& get(Make make) const
    {
        boost::shared_ptr<T> const* made = holder();
        if (!made) {
            std::lock_guard<std::mutex> const guard(firstUseMutex());
            made = holder();
            if (!made) {
                // Room for the pointer first: nothing may fail once the object exists.
                auto place = std::make_unique<boost::shared_ptr<T>>();
                *place = make();
                made = place.release();
                m_holder.store(made, std::memory_order_release);
            }
        }
        return *made;
    }

private:
    boost::shared_ptr<T> const* holder() const { return m_holder.load(std::memory_order_acquire); }

    mutable std::atomic<boost::shared_ptr<T> const*> m_holder;
};

}  // namespace tarn
