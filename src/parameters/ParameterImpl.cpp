#include "parameters/ParameterImpl.h"

#include "datatypes/ClampedCast.h"
#include "datatypes/SaturatedArithmetic.h"
#include "datatypes/XmlText.h"
#include "exceptions/KeyFrameException.h"
#include "parameters/Interpolater.h"
#include "parameters/XmlValue.h"
#include "project/ReadWriteMutex.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <limits>
#include <typeinfo>
#include <utility>

namespace tarn {

namespace {

/// How many of the ascending times lie before `time`. Without a jump that depends on them, as at
/// random times the processor would guess every second one wrong; and three at a time, as it can
/// fetch them together.
std::size_t countBefore(long long const* times, std::size_t count, long long time)
{
    std::size_t const few = 8;
    auto const isBefore = [time](long long other) { return std::size_t(other < time); };
    long long const* base = times;
    while (count > few) {
        std::size_t const quarter = count / 4;
        std::size_t const passed = isBefore(base[quarter - 1]) + isBefore(base[2 * quarter - 1]) +
                                   isBefore(base[3 * quarter - 1]);
        base += passed * quarter;
        count -= 3 * quarter;
    }
    std::size_t before = static_cast<std::size_t>(base - times);
    for (std::size_t i = 0; i < count; ++i)
        before += isBefore(base[i]);
    return before;
}

/// A copy of what a frame's class makes of itself; in one piece where that is the plain one.
template <class T>
boost::shared_ptr<KeyFrame<T>> copyOf(KeyFrame<T> const& frame)
{
    if (typeid(frame) == typeid(KeyFrame<T>))
        return boost::make_shared<KeyFrame<T>>(frame);
    return boost::shared_ptr<KeyFrame<T>>(frame.clone());
}

}  // namespace

template <class T>
ParameterImpl<T>::ParameterImpl(boost::weak_ptr<ThreadSafe const> const& project,
                                std::string const& name, ReservedIdent attributeIdent)
    : Parameter<T>(project, name, std::move(attributeIdent))
{}

template <class T>
ParameterImpl<T>::ParameterImpl(ParameterImpl const& other)
    : XMLIdentified(other), Parameter<T>(other)
{
    std::size_t const count = other.m_frames.size();
    m_frames.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        m_frames.insert(i, other.m_frames.time(i), copyOf(*other.m_frames.frame(i)));
}

// Edits. Each checks, makes room, changes and only then notifies, so that a throw changes nothing.

template <class T>
void ParameterImpl<T>::addKeyFrame(long long time, T const& value)
{
    requireFree(time);
    insertFrame(time, boost::make_shared<KeyFrame<T>>(time, value));
    this->notify();
}

template <class T>
void ParameterImpl<T>::addKeyFrame(boost::shared_ptr<KeyFrame<T>> const& frame)
{
    if (!frame)
        throw KeyFrameException(0);
    requireFree(frame->time());
    insertFrame(frame->time(), frame);
    this->notify();
}

template <class T>
T ParameterImpl<T>::changeKeyFrame(long long time, T const& value)
{
    KeyFrame<T>& frame = *m_frames.frame(indexOf(time));
    T const old = frame.value();
    frame.setValue(value);
    this->notify();
    return old;
}

template <class T>
boost::shared_ptr<KeyFrame<T>> ParameterImpl<T>::changeKeyFrame(
    long long time, boost::shared_ptr<KeyFrame<T>> const& frame)
{
    std::size_t const index = indexOf(time);
    if (!frame)
        throw KeyFrameException(time);
    FramePointer const old = m_frames.frame(index);
    m_frames.replace(index, frame);
    frame->setTime(time);
    this->notify();
    return old;
}

template <class T>
T ParameterImpl<T>::removeKeyFrame(long long time)
{
    std::size_t const index = indexOf(time);
    T const old = m_frames.frame(index)->value();
    m_frames.erase(index);
    this->notify();
    return old;
}

template <class T>
void ParameterImpl<T>::moveKeyFrame(long long from, long long to)
{
    std::size_t const index = indexOf(from);
    requireFree(to);
    FramePointer const frame = m_frames.frame(index);
    m_frames.erase(index);
    frame->setTime(to);
    insertFrame(to, frame);
    this->notify();
}

template <class T>
void ParameterImpl<T>::moveKeyframes(long long delta)
{
    // All of them at once, so that old and new times may overlap.
    std::size_t const count = m_frames.size();
    KeyFrames<T> moved;
    moved.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        long long time = 0;
        if (__builtin_add_overflow(m_frames.time(i), delta, &time))
            throw KeyFrameException(m_frames.time(i));
        T const& value = m_frames.frame(i)->value();
        moved.insert(i, time, boost::make_shared<KeyFrame<T>>(time, value));
    }
    m_frames.swap(moved);
    this->notify();
}

// Values.

template <class T>
T ParameterImpl<T>::valueAtTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    if (T const* const only = onlyValue())
        return *only;
    std::size_t const count = m_frames.size();
    if (count == 0)
        throw KeyFrameException(0);
    long long const* const times = m_frames.times();
    if (time < static_cast<double>(times[0]))
        return m_frames.frame(0)->value();
    if (time > static_cast<double>(times[count - 1]))
        return m_frames.frame(count - 1)->value();
    if (time != time)  // not-a-number
        return m_frames.frame(0)->value();

    // From here on the time lies between two key frames, and so within 64 bits.
    long long const whole = clampedTruncate(time);
    bool const isPastWhole = time > static_cast<double>(whole);
    if (isPastWhole)
        return valueBetween(countBefore(times, count, whole + 1), time);
    std::size_t const right = countBefore(times, count, whole);
    if (right < count && time == static_cast<double>(times[right]))
        return m_frames.frame(right)->value();
    return valueBetween(right, time);
}

/// Of the frame at that index and the one before it.
template <class T>
T ParameterImpl<T>::valueBetween(std::size_t right, double time) const
{
    long long const* const times = m_frames.times();
    FramePointer const* const frames = m_frames.frames();
    std::size_t const count = m_frames.size();
    // A time that a double cannot tell from the last may lead past the end; not before the first,
    // as rounding keeps the order.
    if (right == count)
        return frames[count - 1]->value();

    std::size_t const left = right - 1;
    T const& leftValue = frames[left]->value();
    boost::shared_ptr<Interpolater<T>> owner;
    Interpolater<T> const* const interpolater = interpolaterNow(time, owner);
    if (!interpolater)
        return leftValue;
    unsigned long long const distance = static_cast<unsigned long long>(times[right]) -
                                        static_cast<unsigned long long>(times[left]);
    // Kept so: the span goes through float, which sets the last digits of every blended value.
    float const span = static_cast<float>(distance);
    double const position = (time - static_cast<double>(times[left])) / span;
    return interpolater->interpolate(leftValue, frames[right]->value(), position);
}

template <class T>
Interpolater<T> const* ParameterImpl<T>::interpolaterNow(
    double time, boost::shared_ptr<Interpolater<T>>& owner) const
{
    owner = this->interpolaterAtTime(time);
    return owner.get();
}

template <class T>
bool ParameterImpl<T>::valuesDifferAtTimes(long long time1, long long time2) const
{
    // Written so that not-a-number differs from everything.
    return !(valueAtTime(static_cast<double>(time1)) == valueAtTime(static_cast<double>(time2)));
}

// Key frames and their times.

template <class T>
boost::shared_ptr<KeyFrame<T>> ParameterImpl<T>::keyframeAtTime(long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    return m_frames.frame(indexOf(time));
}

template <class T>
bool ParameterImpl<T>::hasKeyFrameAtTime(long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    return isTaken(time);
}

template <class T>
bool ParameterImpl<T>::hasKeyFrameInRange(Range<long long> const& range) const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    std::size_t const index = firstIndexNotBefore(range.start);
    // The end may lie beyond 64 bits; saturated, it still has every key frame before it.
    return index < m_frames.size() && m_frames.time(index) <= range.end();
}

template <class T>
int ParameterImpl<T>::numKeyFrames() const
{
    return static_cast<int>(m_frames.size());
}

template <class T>
long long ParameterImpl<T>::firstKeyFrameTime() const
{
    return m_frames.empty() ? std::numeric_limits<long long>::max() : m_frames.time(0);
}

template <class T>
long long ParameterImpl<T>::previousKeyFrameTime(long long time) const
{
    std::size_t const index = firstIndexNotBefore(time);
    return index == 0 ? std::numeric_limits<long long>::min() : m_frames.time(index - 1);
}

template <class T>
long long ParameterImpl<T>::nextKeyFrameTime(long long time) const
{
    std::size_t const index = firstIndexAfter(time);
    return index == m_frames.size() ? std::numeric_limits<long long>::max() : m_frames.time(index);
}

template <class T>
Range<long long> ParameterImpl<T>::keyframeRange() const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    if (m_frames.empty())
        throw KeyFrameException(0);
    long long const first = m_frames.time(0);
    long long const last = m_frames.time(m_frames.size() - 1);
    return Range<long long>(first, saturatedDifference(last, first));
}

template <class T>
boost::shared_ptr<std::vector<long long>> ParameterImpl<T>::keyframeTimes() const
{
    return boost::shared_ptr<std::vector<long long>>(
        new std::vector<long long>(m_frames.times(), m_frames.times() + m_frames.size()));
}

template <class T>
void ParameterImpl<T>::setupSharedClone(boost::shared_ptr<ParameterInterface> const&) const
{}

template <class T>
void ParameterImpl<T>::xmlOfKeyframes(XMLable::Options& options, int indent) const
{
    if (m_frames.empty())
        return;
    XmlText out(options);
    out.indent(indent) << "<Keyframes>\n";
    for (std::size_t i = 0; i < m_frames.size(); ++i) {
        out.indent(indent + 1) << "<Keyframe time=\"" << m_frames.time(i) << "\" value=\"";
        writeValue(out, *m_frames.frame(i));
        out << "\"/>\n";
    }
    out.indent(indent) << "</Keyframes>\n";
}

// The sorted times.

template <class T>
std::size_t ParameterImpl<T>::firstIndexNotBefore(long long time) const
{
    return countBefore(m_frames.times(), m_frames.size(), time);
}

template <class T>
std::size_t ParameterImpl<T>::firstIndexAfter(long long time) const
{
    bool const isLastOfAll = time == std::numeric_limits<long long>::max();
    return isLastOfAll ? m_frames.size() : firstIndexNotBefore(time + 1);
}

template <class T>
std::size_t ParameterImpl<T>::indexOf(long long time) const
{
    std::size_t const index = firstIndexNotBefore(time);
    if (index == m_frames.size() || m_frames.time(index) != time)
        throw KeyFrameException(time);
    return index;
}

template <class T>
bool ParameterImpl<T>::isTaken(long long time) const
{
    std::size_t const index = firstIndexNotBefore(time);
    return index < m_frames.size() && m_frames.time(index) == time;
}

template <class T>
void ParameterImpl<T>::requireFree(long long time) const
{
    if (isTaken(time))
        throw KeyFrameException(time);
}

template <class T>
void ParameterImpl<T>::insertFrame(long long time, FramePointer const& frame)
{
    m_frames.insert(firstIndexNotBefore(time), time, frame);
}

#define TARN_INSTANTIATE(T) template class ParameterImpl<T>;
TARN_PARAMETER_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
