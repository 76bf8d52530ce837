#include "datatypes/IdentManager.h"

#include <cstddef>

namespace tarn {

IdentManager* IdentManager::instance()
{
    static IdentManager* const s_instance = new IdentManager;
    return s_instance;
}

unsigned int IdentManager::newIdent()
{
    std::lock_guard<std::mutex> const guard(m_mutex);
    return draw();
}

void IdentManager::newIdents(unsigned int* idents, std::size_t count)
{
    std::lock_guard<std::mutex> const guard(m_mutex);
    std::size_t drawn = 0;
    try {
        for (; drawn < count; ++drawn) {
            idents[drawn] = draw();
        }
    } catch (...) {
        while (drawn > 0) {
            m_retiredIdents.push_back(idents[--drawn]);
        }
        throw;
    }
}

/// Under the mutex.
unsigned int IdentManager::draw()
{
    if (m_retiredIdents.empty()) {
        // Room for every ident given out, for destructors retire them and must not fail.
        std::size_t const needed = std::size_t(m_nextIdent) + 1;
        if (m_retiredIdents.capacity() < needed) {
            m_retiredIdents.reserve(2 * needed);
        }
        return m_nextIdent++;
    }
    unsigned int const ident = m_retiredIdents.back();
    m_retiredIdents.pop_back();
    return ident;
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
