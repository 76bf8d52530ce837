#pragma once

#include "datatypes/IdentManager.h"

#include <array>
#include <cstddef>

namespace tarn {

/// Idents for several late objects that are made one after the other, drawn in one go: the numbers
/// are those that each of them would draw. What nobody has taken is given back at the end.
class IdentBatch
{
public:
    /// At most k_most; without any, each object draws its own.
    explicit IdentBatch(std::size_t count) : m_count(count), m_numTaken(0)
    {
        if (count > 0)
            IdentManager::instance()->newIdents(m_idents.data(), count);
    }
    IdentBatch(IdentBatch const&) = delete;
    IdentBatch& operator=(IdentBatch const&) = delete;
    ~IdentBatch()
    {
        while (m_count > m_numTaken)
            IdentManager::instance()->retireIdent(m_idents[--m_count]);
    }

    /// The next so many, which are the caller's from now on; null when there are none.
    unsigned int const* take(std::size_t count)
    {
        if (m_count == 0)
            return nullptr;
        unsigned int const* const taken = m_idents.data() + m_numTaken;
        m_numTaken += count;
        return taken;
    }

private:
    static std::size_t constexpr k_most = 66;

    std::array<unsigned int, k_most> m_idents;
    std::size_t m_count;
    std::size_t m_numTaken;
};

}  // namespace tarn
