#include "project/FairGate.h"

namespace tarn {

void FairGate::enterTogether()
{
    Word word = m_word.load(std::memory_order_relaxed);
    while ((word & (k_alone | k_queue)) == 0) {
        if (m_word.compare_exchange_weak(word, word + k_together, std::memory_order_acquire,
                                         std::memory_order_relaxed)) {
            return;
        }
    }
    queueUp(false);
}

void FairGate::enterAlone()
{
    Word free = 0;
    if (!m_word.compare_exchange_strong(free, k_alone, std::memory_order_acquire,
                                        std::memory_order_relaxed)) {
        queueUp(true);
    }
}

void FairGate::leaveTogether()
{
    // Leaving and looking for a queue are one step: who queues up after it finds the gate as it is
    // left here.
    Word const before = m_word.fetch_sub(k_together, std::memory_order_acq_rel);
    if ((before & k_queue) != 0 && before / k_together == 1) {
        std::lock_guard<std::mutex> const guard(m_mutex);
        letIn();
    }
}

void FairGate::leaveAlone()
{
    if ((m_word.fetch_sub(k_alone, std::memory_order_acq_rel) & k_queue) != 0) {
        std::lock_guard<std::mutex> const guard(m_mutex);
        letIn();
    }
}

void FairGate::goOnTogether()
{
    if ((m_word.fetch_add(k_together - k_alone, std::memory_order_acq_rel) & k_queue) != 0) {
        std::lock_guard<std::mutex> const guard(m_mutex);
        letIn();
    }
}

void FairGate::queueUp(bool isAlone)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    Waiting self(isAlone);
    (m_last ? m_last->next : m_first) = &self;
    m_last = &self;
    m_word.fetch_or(k_queue, std::memory_order_acq_rel);
    if (isAlone) {
        ++m_numWaitingAlone;
    }
    letIn();
    while (!self.isIn) {
        self.letIn.wait(lock);
    }
}

bool FairGate::hasRoomFor(Waiting const& waiting) const
{
    // Acquires what those who left have done, for the one who is let in.
    Word const word = m_word.load(std::memory_order_acquire);
    return waiting.isAlone ? word == k_queue : (word & k_alone) == 0;
}

void FairGate::letIn()
{
    while (m_first && hasRoomFor(*m_first)) {
        Waiting& waiting = *m_first;
        m_first = waiting.next;
        if (!m_first) {
            m_last = nullptr;
        }
        // One step: the queue's bit must not go before its last one is in.
        Word const in = waiting.isAlone ? k_alone : k_together;
        m_word.fetch_add(m_first ? in : in - k_queue, std::memory_order_acq_rel);
        if (waiting.isAlone) {
            --m_numWaitingAlone;
        }
        waiting.isIn = true;
        waiting.letIn.notify_one();
    }
}

}  // namespace tarn
