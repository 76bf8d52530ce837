#pragma once

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <mutex>
#include <numeric>
#include <string>
#include <vector>

namespace tarn {
namespace bench {

/// The barest thing that could stand for a media: where it lies and what is shown.
struct BareMedia
{
    long long start;
    long long duration;
    double mediaStart;
    double values[23];
};

/// Medias by their start, as a track keeps them, and nothing else.
using BareTrack = std::map<long long, boost::shared_ptr<BareMedia>>;

/// Numbers as the process gives them out, in the barest way: one stack, one mutex.
struct BareIdents
{
    std::mutex mutex;
    unsigned int next = 0;
    std::vector<unsigned int> retired;

    void draw(unsigned int* idents, std::size_t count)
    {
        std::lock_guard<std::mutex> const guard(mutex);
        std::size_t const reused = std::min(count, retired.size());
        std::copy_n(retired.rbegin(), reused, idents);
        retired.resize(retired.size() - reused);
        std::iota(idents + reused, idents + count, next);
        next += static_cast<unsigned int>(count - reused);
    }
    void retire(unsigned int const* idents, std::size_t count)
    {
        std::lock_guard<std::mutex> const guard(mutex);
        retired.insert(retired.end(), idents, idents + count);
    }
};

/// What a picture must hold to answer as one: numbers with a time and a name each, its idents, and
/// shares in what it shows. A copy has idents of its own.
struct BarePicture
{
    struct Value
    {
        long long time;
        double value;
    };

    BareMedia place{};
    void const* observers = nullptr;
    Value values[23] = {};
    std::array<unsigned int, 108> idents;
    std::string name;
    boost::shared_ptr<BareIdents> project;
    boost::shared_ptr<int> source;

    explicit BarePicture(boost::shared_ptr<BareIdents> const& owner)
        : project(owner), source(boost::make_shared<int>())
    {
        project->draw(idents.data(), idents.size());
    }
    BarePicture(BarePicture const& other)
        : place(other.place), name(other.name), project(other.project), source(other.source)
    {
        std::copy(std::begin(other.values), std::end(other.values), std::begin(values));
        project->draw(idents.data(), idents.size());
    }
    BarePicture& operator=(BarePicture const&) = delete;
    ~BarePicture() { project->retire(idents.data(), idents.size()); }
};

using BarePictures = std::map<long long, boost::shared_ptr<BarePicture>>;

inline BarePictures copyOf(BarePictures const& pictures)
{
    BarePictures copy;
    for (auto const& entry : pictures)
        copy.emplace_hint(copy.end(), entry.first, boost::make_shared<BarePicture>(*entry.second));
    return copy;
}

/// What copying and pasting leave beside the copies, in the barest way: who was copied from whom,
/// what an undo must know, and whom to ask for observers once all is done.
struct BareNotes
{
    struct Added
    {
        boost::shared_ptr<BarePictures> track;
        boost::shared_ptr<BarePicture> picture;
        long long time;
    };

    std::vector<std::pair<boost::shared_ptr<BarePicture>, boost::shared_ptr<BarePicture>>> copies;
    std::vector<Added> undo;
    std::vector<BarePicture const*> changed;
};

/// Whether `length` from `time` on is free before `after`.
inline bool isFree(BarePictures const& track, BarePictures::const_iterator after, long long time,
                   long long length)
{
    if (after != track.end() && after->first < time + length)
        return false;
    return after == track.begin() ||
           std::prev(after)->first + std::prev(after)->second->place.duration <= time;
}

inline BareTrack bareTrack(std::int64_t n, long long length, long long step)
{
    BareTrack track;
    for (std::int64_t i = 0; i < n; ++i) {
        boost::shared_ptr<BareMedia> const media = boost::make_shared<BareMedia>();
        media->start = i * step;
        media->duration = length;
        track.emplace_hint(track.end(), media->start, media);
    }
    return track;
}

/// Gives a media another start, if nothing is in its way.
inline bool moveBare(BareTrack& track, long long from, long long offset)
{
    auto const entry = track.find(from);
    long long const start = from + offset;
    auto const after = track.upper_bound(start);
    if (after != track.end() && after != entry && after->first < start + entry->second->duration)
        return false;
    auto node = track.extract(entry);
    node.key() = start;
    node.mapped()->start = start;
    track.insert(std::move(node));
    return true;
}

}  // namespace bench
}  // namespace tarn
