#include "timeline/Media.h"

#include "datatypes/SaturatedArithmetic.h"

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
