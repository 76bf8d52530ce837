#pragma once

#include "project/ReadWriteMutex.h"

#include <atomic>
#include <cstddef>
#include <optional>

namespace tarn {
namespace test {

/// Shows by counting that readers who come after a waiting writer get in after it.
///
/// There is one writer. It numbers its requests, and counts those that were granted once it is in.
/// A reader that sees request 7 wait before it asks itself must find 7 granted when it is in.
class WriterCount
{
public:
    explicit WriterCount(ReadWriteMutex& mutex) : m_mutex(mutex) {}

    /// By the writer: takes the lock for a moment.
    void ask();
    /// By a reader, before it asks: the request that waits now, if one does.
    std::optional<std::size_t> waiting() const;
    /// By the same reader, once it is in.
    void enteredAfter(std::size_t request);

    std::size_t numAsked() const { return m_asked; }
    std::size_t numReadersAfterWriter() const { return m_numAfter; }
    std::size_t numOvertaken() const { return m_numOvertaken; }

private:
    ReadWriteMutex& m_mutex;
    std::atomic<std::size_t> m_asked{0};
    std::atomic<std::size_t> m_granted{0};
    std::atomic<std::size_t> m_numAfter{0};
    std::atomic<std::size_t> m_numOvertaken{0};
};

}  // namespace test
}  // namespace tarn
