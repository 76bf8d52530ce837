#include "datatypes/IdentManager.h"

#include <algorithm>
#include <cstddef>
#include <mutex>
#include <numeric>

namespace tarn {

namespace {

// In blocks of a fixed size, of which a compiler makes a few wide moves each.
std::size_t constexpr k_block = 8;

/// Copies what stands before `end`, the last first.
void copyBackwards(unsigned int const* __restrict end, unsigned int* __restrict copy,
                   std::size_t count)
{
    for (; count >= k_block; count -= k_block) {
        end -= k_block;
        for (std::size_t i = 0; i < k_block; ++i) {
            copy[i] = end[k_block - 1 - i];
        }
        copy += k_block;
    }
    std::reverse_copy(end - count, end, copy);
}

void countUp(unsigned int first, unsigned int* numbers, std::size_t count)
{
    for (; count >= k_block; count -= k_block) {
        for (unsigned int i = 0; i < k_block; ++i) {
            numbers[i] = first + i;
        }
        numbers += k_block;
        first += static_cast<unsigned int>(k_block);
    }
    std::iota(numbers, numbers + count, first);
}

}  // namespace

IdentManager* IdentManager::instance()
{
    static IdentManager* const s_instance = new IdentManager;
    return s_instance;
}

unsigned int IdentManager::newIdent()
{
    std::lock_guard<SpinLock> const guard(m_lock);
    if (m_retiredIdents.empty()) {
        makeRoomFor(1);
        return m_nextIdent++;
    }
    unsigned int const ident = m_retiredIdents.back();
    m_retiredIdents.pop_back();
    return ident;
}

void IdentManager::newIdents(unsigned int* idents, std::size_t count)
{
    std::lock_guard<SpinLock> const guard(m_lock);
    std::size_t const reused = std::min(count, m_retiredIdents.size());
    makeRoomFor(count - reused);
    copyBackwards(m_retiredIdents.data() + m_retiredIdents.size(), idents, reused);
    m_retiredIdents.resize(m_retiredIdents.size() - reused);
    countUp(m_nextIdent, idents + reused, count - reused);
    m_nextIdent += static_cast<unsigned int>(count - reused);
}

/// Room for every ident given out, for destructors retire them and must not fail. Under the lock.
void IdentManager::makeRoomFor(std::size_t fresh)
{
    std::size_t const needed = m_nextIdent + fresh;
    if (m_retiredIdents.capacity() < needed) {
        m_retiredIdents.reserve(needed + needed / 4 + k_block);
    }
}

void IdentManager::retireIdent(unsigned int ident)
{
    std::lock_guard<SpinLock> const guard(m_lock);
    m_retiredIdents.push_back(ident);
}

void IdentManager::retireIdents(unsigned int const* idents, std::size_t count)
{
    std::lock_guard<SpinLock> const guard(m_lock);
    m_retiredIdents.insert(m_retiredIdents.end(), idents, idents + count);
}

std::string IdentManager::description() const
{
    return std::string();
}

}  // namespace tarn
