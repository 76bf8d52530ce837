#include "timeline/Media.h"

#include "datatypes/FetchAhead.h"
#include "datatypes/SaturatedArithmetic.h"
#include "timeline/Track.h"

#include <cstddef>
#include <cstdint>

namespace tarn {

Media::Media(boost::weak_ptr<ThreadSafe const> const& project) : SubTimeline(project) {}

Media::Media(Media const& other)
    : XMLIdentified(other)
    , SubTimeline(other)
    , DecoratedCloneable<Media>(other)
    , boost::enable_shared_from_this<Media>(other)
    , EdgeModifiable(other)
{}

bool Media::isUnlinked() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_keepsPlace ? m_place.links.empty() : linkBegin() == linkEnd();
}

void Media::fetchAhead() const
{
    // What a move and its notification touch lies in two places.
    Subject const* const subject = this;
    auto const begin = reinterpret_cast<std::uintptr_t>(this);
    FetchAhead::bytes(begin, reinterpret_cast<std::uintptr_t>(subject + 1) - begin);
    auto const place = reinterpret_cast<std::uintptr_t>(&m_place);
    FetchAhead::bytes(place, reinterpret_cast<std::uintptr_t>(&m_keepsPlace + 1) - place);
}

void Media::fetchEntryAhead() const
{
    // The links of a map's node stand before the entry.
    std::size_t constexpr k_nodeLinks = 4 * sizeof(void*);
    FetchAhead::bytes(reinterpret_cast<std::uintptr_t>(m_place.entry) - k_nodeLinks,
                      k_nodeLinks + sizeof(Track::MediaMap::value_type));
}

Range<long long> Media::trackRangeWithMove(long long offset) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    Range<long long> const& range = placedRange();
    return Range<long long>(saturatedSum(range.start, offset), range.duration);
}

Range<long long> Media::trackRangeWithTrimStart(long long offset) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    Range<long long> const& range = placedRange();
    return Range<long long>(saturatedSum(range.start, offset),
                            saturatedDifference(range.duration, offset));
}

Range<long long> Media::trackRangeWithTrimEnd(long long offset) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    Range<long long> const& range = placedRange();
    return Range<long long>(range.start, saturatedDifference(range.duration, offset));
}

}  // namespace tarn
