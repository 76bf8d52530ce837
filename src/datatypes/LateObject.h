#pragma once

#include "datatypes/IdentManager.h"
#include "datatypes/MadeOnFirstUse.h"
#include "datatypes/ReservedIdent.h"

#include <array>
#include <cstddef>
#include <cstring>

namespace tarn {

/// A place for an object that draws N idents and that most owners never look at: it is made when
/// the first one asks for it, by whichever thread that is, and stays the same one from then on.
///
/// The idents are drawn at once, so that nobody can tell from XML when it was made. What is not
/// made gives them back in the order in which the object would: those of each parameter from the
/// last to the first, and then those of the object around them.
template <class T, std::size_t N>
class LateObject
{
public:
    using Idents = std::array<unsigned int, N>;

    static std::size_t constexpr k_numIdents = N;

    /// Takes N idents over, or draws them if there are none.
    explicit LateObject(unsigned int const* idents = nullptr)
    {
        if (idents)
            std::memcpy(m_idents.data(), idents, sizeof m_idents);  // no call, of a size known here
        else
            draw();
    }
    /// Takes N idents over.
    explicit LateObject(ReservedIdent* idents)
    {
        for (std::size_t i = 0; i < N; ++i)
            m_idents[i] = idents[i].take();
    }
    /// Of something made already, unless it is empty.
    explicit LateObject(boost::shared_ptr<T> const& object) : m_object(object)
    {
        if (!object)
            draw();
    }
    LateObject(LateObject const&) = delete;
    LateObject& operator=(LateObject const&) = delete;
    ~LateObject()
    {
        if (!m_object.isMade())
            giveIdentsBack();
    }

    /// Null while it is not made.
    T* ifMade() const { return m_object.ifMade(); }

    /// Calls `make` with N reserved idents if it is not made yet. @throws what `make` throws, and
    /// is as before then, but for the number of an ident that another thread took meanwhile
    template <class Make>
    boost::shared_ptr<T> const& get(Make make) const
    {
        return m_object.get([&] { return madeBy(make); });
    }

    /// Tells the idents that wait for the object. @return false when it is made and has them
    bool waitingIdents(Idents& idents) const
    {
        std::lock_guard<std::mutex> const guard(firstUseMutex());
        if (m_object.isMade())
            return false;
        idents = m_idents;
        return true;
    }

private:
    static std::size_t constexpr k_aParameter = 4;
    static std::size_t constexpr k_around = N % k_aParameter;

    void draw()
    {
        if constexpr (N == 1)
            m_idents[0] = IdentManager::instance()->newIdent();
        else
            IdentManager::instance()->newIdents(m_idents.data(), N);
    }

    template <class Make>
    boost::shared_ptr<T> madeBy(Make make) const
    {
        std::array<ReservedIdent, N> idents;
        for (std::size_t i = 0; i < N; ++i)
            idents[i].hold(m_idents[i]);
        try {
            return make(idents.data());
        } catch (...) {
            // What had been made in part has given its idents back.
            for (std::size_t i = 0; i < N; ++i)
                m_idents[i] = idents[i].take();
            throw;
        }
    }

    void giveIdentsBack() noexcept
    {
        Idents ordered;
        std::size_t next = 0;
        for (std::size_t first = k_around; first < N; first += k_aParameter) {
            for (std::size_t i = k_aParameter; i > 0; --i)
                ordered[next++] = m_idents[first + i - 1];
        }
        for (std::size_t i = k_around; i > 0; --i)
            ordered[next++] = m_idents[i - 1];
        IdentManager::instance()->retireIdents(ordered.data(), N);
    }

    // Guarded by the first-use mutex, and of no meaning once the object is made.
    mutable Idents m_idents;
    MadeOnFirstUse<T> m_object;
};

}  // namespace tarn
