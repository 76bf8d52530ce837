#include "timeline/MediaImpl.h"

#include "datatypes/ClampedCast.h"
#include "datatypes/SaturatedArithmetic.h"
#include "datatypes/UpdateCollector.h"
#include "effects/Effect.h"
#include "effects/VectorEffectable.h"
#include "parameters/MTVector.h"
#include "timeline/MediaEditor.h"
#include "timeline/WholeDuration.h"

#include <algorithm>

namespace tarn {

MediaImpl::MediaImpl(Range<long long> const& sourceRange, double mediaStartLimit,
                     double mediaEndLimit, boost::weak_ptr<ThreadSafe const> const& project)
    : Media(project)
    , m_mediaStartLimit(mediaStartLimit)
    , m_mediaEndLimit(mediaEndLimit)
    , m_mediaRange(static_cast<double>(sourceRange.start),
                   static_cast<double>(sourceRange.duration))
    , m_scalar(1.0)
    , m_leftEdgeLength(0)
    , m_rightEdgeLength(0)
{
    keepPlace(Range<long long>(0, sourceRange.duration));
}

MediaImpl::MediaImpl(MediaImpl const& other)
    : XMLIdentified(other)
    , Media(other)
    , EffectTimeConverter(other)
    , m_mediaStartLimit(other.m_mediaStartLimit)
    , m_mediaEndLimit(other.m_mediaEndLimit)
    , m_mediaRange(other.m_mediaRange)
    , m_scalar(other.m_scalar)
    , m_effects(other.m_effects ? boost::shared_ptr<VectorEffectable>(other.m_effects->clone())
                                : boost::shared_ptr<VectorEffectable>())
    , m_leftEdgeLength(other.m_leftEdgeLength)
    , m_rightEdgeLength(other.m_rightEdgeLength)
{
    keepPlace(other.m_place.range);
    for (int i = 0; m_effects && i < m_effects->numEffects(); ++i) {
        if (boost::shared_ptr<Effect> const effect = m_effects->effectAtIndex(i))
            effect->setEffectTimeConverter(this);
    }
}

MediaImpl::~MediaImpl()
{
    // Effects live on in the records of undo, and must not ask a media that is gone.
    for (int i = 0; m_effects && i < m_effects->numEffects(); ++i) {
        boost::shared_ptr<Effect> const effect = m_effects->effectAtIndex(i);
        if (effect && effect->effectTimeConverter() == this)
            effect->setEffectTimeConverter(nullptr);
    }
}

std::string MediaImpl::description() const
{
    return "MediaImpl";
}

void MediaImpl::notify() const
{
    UpdateCollector* const collector = UpdateCollector::instance();
    if (collector->isCollecting())
        collector->addObservable(shared_from_this());
    else
        Subject::notify();
}

void MediaImpl::setParentTrack(boost::weak_ptr<Track> const& track)
{
    m_place.parent = track;
}

boost::weak_ptr<Track> MediaImpl::parentTrack()
{
    return m_place.parent;
}

boost::weak_ptr<Track const> MediaImpl::parentTrack() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_place.parent;
}

Range<double> const& MediaImpl::mediaRange() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_mediaRange;
}

Range<long long> const& MediaImpl::trackRange() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_place.range;
}

double MediaImpl::scalar() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_scalar;
}

double MediaImpl::mediaStartLimit() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_mediaStartLimit;
}

double MediaImpl::mediaEndLimit() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_mediaEndLimit;
}

MediaTiming MediaImpl::timing() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return MediaTiming{m_place.range, m_mediaRange, m_scalar, m_mediaStartLimit, m_mediaEndLimit};
}

double MediaImpl::findScalar(double requested) const
{
    MediaTiming const now = timing();
    double const trackDuration = static_cast<double>(now.trackRange.duration);
    double const base = trackDuration / now.scalar;
    if (requested == 1.0) {
        // A return to natural speed cannot run past the source's end.
        double const limit = std::floor(now.mediaEndLimit - now.mediaRange.start);
        return std::min(roundToWhole(base), limit) * now.scalar / trackDuration;
    }
    return roundToWhole(base * requested) * now.scalar / trackDuration;
}

Range<long long> MediaImpl::trackRangeWithStretch(double scalar) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    // Kept so: this scales the present length where the stretch scales the natural one; the two
    // differ for a media that is stretched already.
    double const duration =
        roundToWhole(findScalar(scalar) * static_cast<double>(m_place.range.duration));
    return Range<long long>(m_place.range.start,
                            isWholeDuration(duration) ? static_cast<long long>(duration) : 0);
}

long long MediaImpl::trimEndLimit() const
{
    MediaTiming const now = timing();
    return mediaEditor().trimEndLimit(now.trackRange, now.mediaRange, now.scalar,
                                      now.mediaEndLimit);
}

long long MediaImpl::trimStartLimit() const
{
    MediaTiming const now = timing();
    return mediaEditor().trimStartLimit(now.trackRange, now.mediaRange, now.scalar,
                                        now.mediaEndLimit);
}

void MediaImpl::move(long long offset)
{
    mediaEditor().move(offset, m_place.range, m_mediaRange);
    notify();
}

void MediaImpl::trimStart(long long offset)
{
    mediaEditor().trimStart(offset, m_place.range, m_mediaRange);
    notify();
}

bool MediaImpl::validTrimStart(long long offset)
{
    return mediaEditor().validTrimStart(offset, m_place.range, m_mediaRange);
}

void MediaImpl::trimEnd(long long offset)
{
    mediaEditor().trimEnd(offset, m_place.range, m_mediaRange);
    notify();
}

bool MediaImpl::validTrimEnd(long long offset)
{
    return mediaEditor().validTrimEnd(offset, m_place.range, m_mediaRange);
}

void MediaImpl::setTrackStart(long long time)
{
    m_place.range.start = time;
    notify();
}

double MediaImpl::stretch(double scalar)
{
    mediaEditor().stretch(scalar, m_place.range, m_mediaRange, m_scalar);
    notify();
    return m_scalar;
}

long long MediaImpl::startTime() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_place.range.start;
}

long long MediaImpl::endTime() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return saturatedSum(m_place.range.start, m_place.range.duration);
}

long long MediaImpl::duration() const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return m_place.range.duration;
}

double MediaImpl::toParameterTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return time / m_scalar + m_mediaRange.start;
}

double MediaImpl::fromParameterTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return (time - m_mediaRange.start) * m_scalar;
}

long long MediaImpl::fromGlobalToParametricTime(long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    return saturatedDifference(time, m_place.range.start);
}

long long MediaImpl::globalTimeToEffectTime(long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(mutex());
    // Kept so: the track start is taken off after the conversion, at natural speed.
    return clampedTruncate(toParameterTime(static_cast<double>(time)) -
                           static_cast<double>(m_place.range.start));
}

int MediaImpl::numParameters() const
{
    return 0;
}

boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>>
MediaImpl::parameterVector() const
{
    return boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>>(
        new MTVector<boost::shared_ptr<ParameterInterface const>>(projectMutex()));
}

}  // namespace tarn
