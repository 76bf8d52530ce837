#include "datatypes/IdentManager.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace tarn {

IdentManager* IdentManager::instance()
{
    static IdentManager* const s_instance = new IdentManager;
    return s_instance;
}

unsigned int IdentManager::newIdent()
{
    std::lock_guard<std::mutex> const guard(m_mutex);
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
    std::lock_guard<std::mutex> const guard(m_mutex);
    std::size_t const reused = std::min(count, m_retiredIdents.size());
    makeRoomFor(count - reused);
    unsigned int const* const newest = m_retiredIdents.data() + m_retiredIdents.size();
    for (std::size_t i = 0; i < reused; ++i) {
        idents[i] = *(newest - 1 - i);
    }
    m_retiredIdents.resize(m_retiredIdents.size() - reused);
    std::iota(idents + reused, idents + count, m_nextIdent);
    m_nextIdent += static_cast<unsigned int>(count - reused);
}

/// Room for every ident given out, for destructors retire them and must not fail. Under the mutex.
void IdentManager::makeRoomFor(std::size_t fresh)
{
    std::size_t const needed = m_nextIdent + fresh;
    if (m_retiredIdents.capacity() < needed) {
        m_retiredIdents.reserve(2 * needed);
    }
}

void IdentManager::retireIdent(unsigned int ident)
{
    std::lock_guard<std::mutex> const guard(m_mutex);
    m_retiredIdents.push_back(ident);
}

void IdentManager::retireIdents(unsigned int const* idents, std::size_t count)
{
    std::lock_guard<std::mutex> const guard(m_mutex);
    m_retiredIdents.insert(m_retiredIdents.end(), idents, idents + count);
}

std::string IdentManager::description() const
{
    return std::string();
}

}  // namespace tarn
