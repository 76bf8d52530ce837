#include "threads/Judge.h"

namespace tarn {
namespace test {

void Judge::addLeft(std::uint64_t model)
{
    std::lock_guard<std::mutex> const guard(m_mutex);
    m_left.insert(model);
    m_last = model;
}

void Judge::addSeen(std::uint64_t model, std::string const& broken)
{
    std::lock_guard<std::mutex> const guard(m_mutex);
    ++m_numSeen;
    auto const entry = m_seen.emplace(model, broken);
    if (entry.first->second != broken) {
        m_faults.insert("one model with two findings: " + broken);
    }
}

void Judge::addFault(std::string const& text)
{
    std::lock_guard<std::mutex> const guard(m_mutex);
    m_faults.insert(text);
}

void Judge::judge(bool endsAtLimit)
{
    for (auto const& seen : m_seen) {
        if (m_left.count(seen.first) == 0) {
            m_faults.insert("a reader saw a model that no edit has left");
        }
        if (!seen.second.empty() && !(endsAtLimit && seen.first == m_last)) {
            m_faults.insert("broken for a reader: " + seen.second);
        }
    }
}

}  // namespace test
}  // namespace tarn
