#include "clipbin/Source.h"

#include "clipbin/MediaFileStats.h"
#include "clipbin/WideInteger.h"
#include "datatypes/ScreenMetaData.h"
#include "exceptions/IndexException.h"
#include "exceptions/TarnMediaLibException.h"
#include "project/ProjectEditRate.h"
#include "project/ReadWriteMutex.h"
#include "timeline/Timeline.h"
#include "timeline/VMFile.h"

#include <limits>
#include <sstream>

namespace tarn {

namespace {

long long clampedToTime(WideInteger value)
{
    if (value < std::numeric_limits<long long>::min())
        return std::numeric_limits<long long>::min();
    if (value > std::numeric_limits<long long>::max())
        return std::numeric_limits<long long>::max();
    return static_cast<long long>(value);
}

/// On another clock, cut towards zero. A rate of zero has no clock, and gives an empty range.
Range<long long> convertEditRate(Range<long long> const& range,
                                 boost::rational<unsigned long> const& from,
                                 boost::rational<unsigned long> const& to)
{
    // Rates are unsigned and times are not: signed first, or a negative start turns enormous.
    WideInteger const multiplier = WideInteger(static_cast<long long>(to.numerator())) *
                                   static_cast<long long>(from.denominator());
    WideInteger const divisor = WideInteger(static_cast<long long>(from.numerator())) *
                                static_cast<long long>(to.denominator());
    if (divisor == 0)
        return Range<long long>(0, 0);
    // A factor beyond 64 bits, which no real rate makes, counts as the largest there is.
    long long const ratioAbove = clampedToTime(multiplier);
    long long const ratioBelow = clampedToTime(divisor);
    return Range<long long>(clampedToTime(WideInteger(range.start) * ratioAbove / ratioBelow),
                            clampedToTime(WideInteger(range.duration) * ratioAbove / ratioBelow));
}

/// What all tracks have in common, in the project's edit units.
Range<long long> calcIntersection(MediaFileStats const& stats,
                                  boost::rational<unsigned long> const& projectRate)
{
    Range<long long> common =
        convertEditRate(stats.trackRange(0), stats.rangeEditRate(0), projectRate);
    for (unsigned int track = 1; track < stats.numTracks(); ++track) {
        common = common.intersection(
            convertEditRate(stats.trackRange(track), stats.rangeEditRate(track), projectRate));
    }
    return common;
}

}  // namespace

boost::shared_ptr<Source> Source::create(boost::shared_ptr<ProjectEditRate const> const& rate,
                                         boost::weak_ptr<ThreadSafe const> const& lockOwner,
                                         std::string const& file)
{
    boost::shared_ptr<MediaFileStats> const stats(MediaFileStats::create(file));
    boost::shared_ptr<Source> const source(new Source(lockOwner, stats));
    source->init(rate, file);
    return source;
}

boost::shared_ptr<Source> Source::create(boost::shared_ptr<ProjectEditRate const> const& rate,
                                         boost::weak_ptr<ThreadSafe const> const& lockOwner,
                                         boost::shared_ptr<MediaFileStats> const& stats)
{
    boost::shared_ptr<Source> const source(new Source(lockOwner, stats));
    source->init(rate, stats->filename());
    return source;
}

Source::Source(boost::weak_ptr<ThreadSafe const> const& lockOwner,
               boost::shared_ptr<MediaFileStats> const& stats)
    : SubProject(lockOwner)
    , m_timeline(new Timeline(lockOwner))
    , m_stats(stats)
    , m_online(true)
    , m_timeRange(0, 0)
{}

Source::Source(Source const& other)
    : XMLIdentified(other)
    , SubProject(other)
    , XMLable(other)
    , Subject(other)
    , boost::enable_shared_from_this<Source>(other)
    , m_online(other.m_online)
    , m_timeRange(0, 0)
{}

Source::~Source() = default;

void Source::init(boost::shared_ptr<ProjectEditRate const> const& rate, std::string const&)
{
    Range<long long> const common = calcIntersection(*m_stats, rate->editRate());
    bool const isStill = m_stats->trackType(0) == MediaFileStats::Image;
    m_timeRange = isStill ? Range<long long>(0, 1) : common;
    // Tracks that have nothing in common may leave a negative duration behind.
    if (!(m_timeRange.duration > 0))
        throw TarnMediaLibException("source has timerange of zero");
    createAndAddMedias(rate);
}

Range<long long> Source::timeRange() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_timeRange;
}

MediaFileStats const* Source::mediaFileStats() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_stats.get();
}

boost::shared_ptr<Timeline> Source::timeline()
{
    return m_timeline;
}

boost::shared_ptr<Timeline const> Source::timeline() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_timeline;
}

Rect<float> Source::trackRect(unsigned int track) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    if (!m_stats)
        throw IndexException(track);
    Rect<int> const rect = m_stats->trackRect(track);
    return Rect<float>(static_cast<float>(rect.x), static_cast<float>(rect.y),
                       static_cast<float>(rect.width), static_cast<float>(rect.height));
}

bool Source::isOnline() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_online;
}

std::string Source::description() const
{
    std::ostringstream text;
    text << "Source at " << static_cast<void const*>(this) << "\n";
    toXML(text);
    text << "\n";
    if (MediaFileStats const* const stats = mediaFileStats())
        text << stats->description() << "\n";
    return text.str();
}

}  // namespace tarn
