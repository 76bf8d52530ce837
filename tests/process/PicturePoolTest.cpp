// Counts what the process asks of the heap, which needs a program of its own.

#include "support/FakeProject.h"

#include "timeline/VMFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <iterator>
#include <map>
#include <memory>
#include <new>
#include <set>
#include <vector>

namespace {

// What has room for a picture at least. The tests that look at them have one thread.
std::size_t const k_large = 1024;
int s_largeMade = 0;
int s_largeLeft = 0;
std::size_t s_largeBytes = 0;
// Before each piece its size, in room enough to keep what follows aligned.
std::size_t const k_header = alignof(std::max_align_t);

}  // namespace

// Takes the place of the system's own in this program. Never inlined: the compiler would see a
// free() without its malloc() then, and warn.

[[gnu::noinline]] void* operator new(std::size_t size)
{
    void* const memory = std::malloc(size + k_header);
    if (!memory)
        throw std::bad_alloc();
    *static_cast<std::size_t*>(memory) = size;
    if (size >= k_large) {
        ++s_largeMade;
        ++s_largeLeft;
        s_largeBytes += size;
    }
    return static_cast<char*>(memory) + k_header;
}

[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    if (!memory)
        return;
    void* const piece = static_cast<char*>(memory) - k_header;
    if (*static_cast<std::size_t*>(piece) >= k_large)
        --s_largeLeft;
    std::free(piece);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}

namespace tarn {
namespace test {

namespace {

/// A host's own kind of picture, of a size to choose.
template <std::size_t Extra>
class HostPicture : public VMFile
{
public:
    explicit HostPicture(boost::weak_ptr<ThreadSafe const> const& project)
        : VMFile(Range<long long>(0, 100), project, Rect<float>(0, 0, 64, 48), "video")
    {
        std::fill(extra, extra + Extra, 'x');
    }

    char extra[Extra];
};

class PicturePoolTest : public ::testing::Test
{
protected:
    using Pictures = std::vector<std::unique_ptr<VMFile>>;

    static std::unique_ptr<VMFile> newPicture(FakeProject const& project)
    {
        return std::make_unique<VMFile>(Range<long long>(0, 100), project.weak(),
                                        Rect<float>(0, 0, 64, 48), "video");
    }

    Pictures newPictures(std::size_t count) const
    {
        Pictures pictures;
        pictures.reserve(count);
        while (pictures.size() < count)
            pictures.push_back(newPicture(*project));
        return pictures;
    }

    boost::shared_ptr<FakeProject> const project = FakeProject::create();
    // The table of numbers to be used again grows here rather than where the heap is watched.
    Pictures const first = newPictures(300);
};

}  // namespace

TEST_F(PicturePoolTest, AskTheHeapForManyAtATime)
{
    int const before = s_largeMade;
    std::size_t const bytesBefore = s_largeBytes;
    Pictures const pictures = newPictures(640);
    // Sixty-four at a time, and a few for the lists that grow meanwhile.
    EXPECT_LE(s_largeMade - before, 20);
    EXPECT_GE(s_largeMade - before, 6);
    // Their own bytes, and about as many for the table of numbers each time that it grows.
    EXPECT_LE(s_largeBytes - bytesBefore, 4 * 640 * sizeof(VMFile));
}

TEST_F(PicturePoolTest, LieApart)
{
    Pictures const pictures = newPictures(128);
    std::set<char const*> places;
    for (auto const& picture : pictures)
        places.insert(reinterpret_cast<char const*>(picture.get()));
    ASSERT_EQ(128u, places.size());
    for (auto place = std::next(places.begin()); place != places.end(); ++place)
        EXPECT_GE(*place - *std::prev(place), static_cast<std::ptrdiff_t>(sizeof(VMFile)));
}

TEST_F(PicturePoolTest, WhatIsGivenBackIsUsedAgain)
{
    Pictures pictures = newPictures(64);
    int const before = s_largeMade;
    for (int i = 0; i < 1000; ++i) {
        pictures.pop_back();
        pictures.push_back(newPicture(*project));
    }
    EXPECT_EQ(0, s_largeMade - before);
}

TEST_F(PicturePoolTest, TheLastOfASizeGivesEverythingBack)
{
    auto const another = FakeProject::create();
    int const before = s_largeLeft;
    {
        std::vector<std::unique_ptr<HostPicture<500>>> pictures;
        pictures.reserve(100);
        for (int i = 0; i < 100; ++i)
            pictures.push_back(std::make_unique<HostPicture<500>>(another->weak()));
        EXPECT_LT(before, s_largeLeft);
        pictures.resize(1);
    }
    EXPECT_EQ(before, s_largeLeft);
    // And begins anew.
    HostPicture<500>* const again = new HostPicture<500>(another->weak());
    EXPECT_LT(before, s_largeLeft);
    delete again;
    EXPECT_EQ(before, s_largeLeft);
}

TEST_F(PicturePoolTest, SizesDoNotMix)
{
    std::unique_ptr<HostPicture<1>> const small(new HostPicture<1>(project->weak()));
    std::unique_ptr<HostPicture<900>> const large(new HostPicture<900>(project->weak()));
    std::unique_ptr<VMFile> const plain = newPicture(*project);
    EXPECT_EQ('x', small->extra[0]);
    EXPECT_EQ(900, std::count(large->extra, large->extra + 900, 'x'));
    EXPECT_EQ(64.0, plain->width());
}

TEST_F(PicturePoolTest, SizesThatDifferByAWordLieApart)
{
    std::size_t constexpr k_toNextLine = 64 - sizeof(VMFile) % 64;
    using Full = HostPicture<k_toNextLine>;
    using Beyond = HostPicture<k_toNextLine + 8>;
    static_assert(sizeof(Full) % 64 == 0 && sizeof(Beyond) == sizeof(Full) + 8, "as meant");
    std::map<char const*, std::size_t> places;
    Pictures pictures;
    for (int i = 0; i < 20; ++i) {
        pictures.push_back(std::make_unique<Full>(project->weak()));
        places[reinterpret_cast<char const*>(pictures.back().get())] = sizeof(Full);
        pictures.push_back(std::make_unique<Beyond>(project->weak()));
        places[reinterpret_cast<char const*>(pictures.back().get())] = sizeof(Beyond);
    }
    for (auto place = std::next(places.begin()); place != places.end(); ++place) {
        auto const before = std::prev(place);
        EXPECT_LE(before->first + before->second, place->first);
    }
}

TEST_F(PicturePoolTest, AVeryLargeOneComesFromTheHeap)
{
    int const made = s_largeMade;
    int const left = s_largeLeft;
    VMFile* const huge = new HostPicture<10000>(project->weak());
    EXPECT_EQ(1, s_largeMade - made);
    delete huge;
    EXPECT_EQ(left, s_largeLeft);
}

}  // namespace test
}  // namespace tarn
