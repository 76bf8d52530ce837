#pragma once

#include "datatypes/Observer.h"

#include <functional>

namespace tarn {
namespace test {

/// Counts its calls and then does what it is told.
class CountingObserver : public Observer
{
public:
    CountingObserver() = default;
    explicit CountingObserver(std::function<void()> const& action) : m_action(action) {}

    void observerUpdate() override
    {
        ++m_calls;
        // A copy: the action may set another.
        std::function<void()> const action = m_action;
        if (action) {
            action();
        }
    }

    void setAction(std::function<void()> const& action) { m_action = action; }
    int calls() const { return m_calls; }

private:
    int m_calls = 0;
    std::function<void()> m_action;
};

}  // namespace test
}  // namespace tarn
