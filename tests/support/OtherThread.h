#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <thread>

namespace tarn {
namespace test {

/// Runs an action on a thread of its own, to see whether it waits.
class OtherThread
{
public:
    explicit OtherThread(std::function<void()> const& action)
        : m_task(action), m_done(m_task.get_future()), m_thread(std::ref(m_task))
    {}
    ~OtherThread()
    {
        if (m_thread.joinable()) {
            m_thread.join();
        }
    }
    OtherThread(OtherThread const&) = delete;
    OtherThread& operator=(OtherThread const&) = delete;

    /// Whether the action is still not done after a while that is long for it.
    bool isWaiting()
    {
        return m_done.wait_for(std::chrono::milliseconds(100)) == std::future_status::timeout;
    }
    /// Whether the action gets done in a time that is more than enough.
    bool finishes()
    {
        return m_done.wait_for(std::chrono::seconds(20)) == std::future_status::ready;
    }
    /// Waits for the action, and passes on what it threw.
    void join() { m_done.get(); }
    /// Gives up an action that will never be done; the object itself must then live on.
    void abandon() { m_thread.detach(); }

private:
    std::packaged_task<void()> m_task;
    std::future<void> m_done;
    std::thread m_thread;
};

}  // namespace test
}  // namespace tarn
