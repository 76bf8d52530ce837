#pragma once

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

#include <cstdint>
#include <map>

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
