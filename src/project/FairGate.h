#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace tarn {

/// Lets many in together or one alone, by the order in which they come.
///
/// Who cannot enter at once stands in a queue, and as long as anyone stands there, everyone who
/// comes does. Who leaves lets in from the front of the queue: one who wants to be alone, or all
/// who come together up to the next who wants to be alone. So everyone waits only for those who
/// came before, and nobody for ever.
///
/// It knows no threads: who is inside and enters again may wait for ever.
class FairGate
{
public:
    FairGate() = default;
    FairGate(FairGate const&) = delete;
    FairGate& operator=(FairGate const&) = delete;

    void enterTogether();
    void leaveTogether();
    void enterAlone();
    void leaveAlone();
    /// For the one alone: others who come together may enter now.
    void goOnTogether();

    /// Whether anyone in the queue wants to be alone.
    bool isAwaitedByOneAlone() const { return m_numWaitingAlone.load() > 0; }

private:
    using Word = std::uint64_t;

    static Word constexpr k_alone = 1;
    // Whether the queue is not empty. Set, only who holds the mutex lets anyone in.
    static Word constexpr k_queue = 2;
    // The upper bits count those inside together.
    static Word constexpr k_together = 4;

    struct Waiting
    {
        explicit Waiting(bool alone) : isAlone(alone) {}

        bool const isAlone;
        bool isIn = false;
        Waiting* next = nullptr;
        std::condition_variable letIn;
    };

    void queueUp(bool isAlone);
    void letIn();
    bool hasRoomFor(Waiting const& waiting) const;

    std::atomic<Word> m_word{0};
    std::atomic<int> m_numWaitingAlone{0};
    // Guards the queue and those who stand in it.
    std::mutex m_mutex;
    Waiting* m_first = nullptr;
    Waiting* m_last = nullptr;
};

}  // namespace tarn
