#include "fuzz/ScatteredHeap.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

namespace {

std::uint64_t s_state = 0;
std::size_t const k_places = 4;

std::size_t drawBelow(std::size_t count)
{
    s_state = s_state * 6364136223846793005ULL + 1442695040888963407ULL;
    return static_cast<std::size_t>(s_state >> 33) % count;
}

/// One of some places that lie near each other; those given back are the next ones to be offered.
void* scatteredPlace(std::size_t size)
{
    void* places[k_places];
    std::size_t const count = 1 + drawBelow(k_places);
    for (std::size_t i = 0; i < count; ++i)
        places[i] = std::malloc(size);
    std::size_t const kept = drawBelow(count);
    for (std::size_t i = 0; i < count; ++i)
        if (i != kept)
            std::free(places[i]);
    return places[kept];
}

}  // namespace

void* operator new(std::size_t size)
{
    void* const place = s_state == 0 ? std::malloc(size) : scatteredPlace(size);
    if (!place)
        throw std::bad_alloc();
    return place;
}

void operator delete(void* place) noexcept
{
    std::free(place);
}

void operator delete(void* place, std::size_t) noexcept
{
    std::free(place);
}

namespace tarn {
namespace test {

void scatterHeap(std::uint64_t seed)
{
    s_state = seed;
}

std::size_t heapInUse()
{
    struct mallinfo2 const book = mallinfo2();
    return book.uordblks + book.hblkhd;
}

}  // namespace test
}  // namespace tarn
