#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <set>
#include <string>

namespace tarn {
namespace test {

/// Collects the models that a session leaves and those that readers see, and compares them when all
/// is over. May be used by all threads at once.
class Judge
{
public:
    /// By the editing thread, after the edit.
    void addLeft(std::uint64_t model);
    /// By a reader. `broken` tells what of the invariants does not hold in it; empty if all do.
    void addSeen(std::uint64_t model, std::string const& broken);
    void addFault(std::string const& text);

    /// Once all threads are done.
    /// @param endsAtLimit whether the session has found its last model beyond what is promised
    void judge(bool endsAtLimit);

    std::size_t numSeen() const { return m_numSeen; }
    std::size_t numLeft() const { return m_left.size(); }
    std::set<std::string> const& faults() const { return m_faults; }

private:
    std::mutex m_mutex;
    std::set<std::uint64_t> m_left;
    std::uint64_t m_last = 0;
    std::map<std::uint64_t, std::string> m_seen;  // model and what is broken in it
    std::size_t m_numSeen = 0;
    std::set<std::string> m_faults;
};

}  // namespace test
}  // namespace tarn
