#include "threads/WriterCount.h"

namespace tarn {
namespace test {

void WriterCount::ask()
{
    ++m_asked;
    ReadWriteMutex::ScopedWriteLock const lock(m_mutex);
    ++m_granted;
}

std::optional<std::size_t> WriterCount::waiting() const
{
    // In this order: the request was made before the look at the lock, and was not granted after
    // it.
    std::size_t const asked = m_asked;
    bool const isWaiting = m_mutex.isWriterWaiting();
    std::size_t const granted = m_granted;
    if (isWaiting && granted < asked) {
        return asked;
    }
    return std::nullopt;
}

void WriterCount::enteredAfter(std::size_t request)
{
    ++m_numAfter;
    if (m_granted < request) {
        ++m_numOvertaken;
    }
}

}  // namespace test
}  // namespace tarn
