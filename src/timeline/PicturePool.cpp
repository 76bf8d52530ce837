#include "timeline/PicturePool.h"

#include "datatypes/PoolHeap.h"
#include "datatypes/SpinLock.h"

#include <boost/pool/pool.hpp>

#include <array>
#include <memory>
#include <mutex>
#include <new>

namespace tarn {

namespace {

/// Those of one size.
class SizePool
{
public:
    explicit SizePool(std::size_t size) : m_pieces(size, k_firstPieces, k_mostPieces) {}

    void* take()
    {
        void* const place = m_pieces.malloc();
        ++m_numTaken;
        return place;
    }
    void giveBack(void* place)
    {
        m_pieces.free(place);
        if (--m_numTaken == 0)
            m_pieces.purge_memory();
    }

private:
    // How many it asks the heap for at a time.
    static std::size_t constexpr k_firstPieces = 8;
    static std::size_t constexpr k_mostPieces = 64;

    boost::pool<PoolHeap> m_pieces;
    std::size_t m_numTaken = 0;
};

class SizePools
{
public:
    static SizePools& instance()
    {
        // Never freed: static pictures of a host may die last.
        static SizePools* const s_instance = new SizePools;
        return *s_instance;
    }
    static bool hasOne(std::size_t size) { return size <= k_step * k_count; }

    void* take(std::size_t size)
    {
        std::lock_guard<SpinLock> const guard(m_lock);
        std::unique_ptr<SizePool>& pool = at(size);
        if (!pool)
            pool.reset(new SizePool(roundedUp(size)));
        return pool->take();
    }
    void giveBack(void* place, std::size_t size)
    {
        std::lock_guard<SpinLock> const guard(m_lock);
        at(size)->giveBack(place);
    }

private:
    static std::size_t constexpr k_step = 64;
    static std::size_t constexpr k_count = 64;

    static std::size_t roundedUp(std::size_t size) { return (size + k_step - 1) / k_step * k_step; }
    std::unique_ptr<SizePool>& at(std::size_t size) { return m_pools[(size - 1) / k_step]; }

    SpinLock m_lock;
    std::array<std::unique_ptr<SizePool>, k_count> m_pools;
};

}  // namespace

#ifdef TARN_SANITIZE  // whose sanitizers would not see into a pool

void* PicturePool::take(std::size_t size)
{
    return ::operator new(size);
}

void PicturePool::giveBack(void* place, std::size_t)
{
    ::operator delete(place);
}

#else

void* PicturePool::take(std::size_t size)
{
    return SizePools::hasOne(size) ? SizePools::instance().take(size) : ::operator new(size);
}

void PicturePool::giveBack(void* place, std::size_t size)
{
    if (SizePools::hasOne(size))
        SizePools::instance().giveBack(place, size);
    else
        ::operator delete(place);
}

#endif

}  // namespace tarn
