#pragma once

#include <chrono>

namespace tarn {

/// The moment by which a file must have been read.
class Deadline
{
public:
    explicit Deadline(std::chrono::milliseconds timeFromNow) : m_end(Clock::now() + timeFromNow) {}

    bool hasPassed() const { return Clock::now() >= m_end; }

private:
    using Clock = std::chrono::steady_clock;

    Clock::time_point m_end;
};

}  // namespace tarn
