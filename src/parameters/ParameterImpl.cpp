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
#include <utility>

namespace tarn {

namespace {

/// How many of the ascending times lie before `time`. Without a jump that depends on them, as at
/// random times the processor would guess every second one wrong.
std::size_t countBefore(std::vector<long long> const& times, long long time)
{
    long long const* base = times.data();
    std::size_t length = times.size();
    while (length > 1) {
        std::size_t const half = length / 2;
        base += base[half - 1] < time ? half : 0;
        length -= half;
    }
    std::size_t const before = static_cast<std::size_t>(base - times.data());
    return length == 1 && *base < time ? before + 1 : before;
}

}  // namespace

template <class T>
ParameterImpl<T>::ParameterImpl(boost::weak_ptr<ThreadSafe const> const& project,
                                std::string const& name, ReservedIdent attributeIdent)
    : Parameter<T>(project, name, std::move(attributeIdent))
{}

template <class T>
ParameterImpl<T>::ParameterImpl(ParameterImpl const& other)
    : XMLIdentified(other), Parameter<T>(other), m_times(other.m_times)
{
    m_frames.reserve(other.m_frames.size());
    for (FramePointer const& frame : other.m_frames)
        m_frames.push_back(FramePointer(frame->clone()));
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
    KeyFrame<T>& frame = *m_frames[indexOf(time)];
    T const old = frame.value();
    frame.setValue(value);
    this->notify();
    return old;
}

template <class T>
boost::shared_ptr<KeyFrame<T>> ParameterImpl<T>::changeKeyFrame(
    long long time, boost::shared_ptr<KeyFrame<T>> const& frame)
{
    FramePointer& place = m_frames[indexOf(time)];
    if (!frame)
        throw KeyFrameException(time);
    FramePointer const old = place;
    place = frame;
    place->setTime(time);
    this->notify();
    return old;
}

template <class T>
T ParameterImpl<T>::removeKeyFrame(long long time)
{
    std::ptrdiff_t const index = static_cast<std::ptrdiff_t>(indexOf(time));
    T const old = m_frames[static_cast<std::size_t>(index)]->value();
    m_times.erase(m_times.begin() + index);
    m_frames.erase(m_frames.begin() + index);
    this->notify();
    return old;
}

template <class T>
void ParameterImpl<T>::moveKeyFrame(long long from, long long to)
{
    std::size_t const index = indexOf(from);
    requireFree(to);
    FramePointer const frame = m_frames[index];
    m_times.erase(m_times.begin() + static_cast<std::ptrdiff_t>(index));
    m_frames.erase(m_frames.begin() + static_cast<std::ptrdiff_t>(index));
    frame->setTime(to);
    insertFrame(to, frame);
    this->notify();
}

template <class T>
void ParameterImpl<T>::moveKeyframes(long long delta)
{
    // All of them at once, so that old and new times may overlap.
    std::vector<long long> movedTimes;
    std::vector<FramePointer> movedFrames;
    movedTimes.reserve(m_times.size());
    movedFrames.reserve(m_times.size());
    for (std::size_t i = 0; i < m_times.size(); ++i) {
        long long moved = 0;
        if (__builtin_add_overflow(m_times[i], delta, &moved))
            throw KeyFrameException(m_times[i]);
        movedTimes.push_back(moved);
        movedFrames.push_back(FramePointer(new KeyFrame<T>(moved, m_frames[i]->value())));
    }
    m_times.swap(movedTimes);
    m_frames.swap(movedFrames);
    this->notify();
}

// Values.

template <class T>
T ParameterImpl<T>::valueAtTime(double time) const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    if (m_times.empty())
        throw KeyFrameException(0);
    if (m_times.size() == 1 || time < static_cast<double>(m_times.front()))
        return m_frames.front()->value();
    if (time > static_cast<double>(m_times.back()))
        return m_frames.back()->value();
    if (time != time)  // not-a-number
        return m_frames.front()->value();

    // From here on the time lies between two key frames, and so within 64 bits.
    long long const whole = clampedTruncate(time);
    bool const isPastWhole = time > static_cast<double>(whole);
    if (isPastWhole)
        return valueBetween(firstIndexAfter(whole), time);
    std::size_t const right = firstIndexNotBefore(whole);
    if (right < m_times.size() && time == static_cast<double>(m_times[right]))
        return m_frames[right]->value();
    return valueBetween(right, time);
}

/// Of the frame at that index and the one before it.
template <class T>
T ParameterImpl<T>::valueBetween(std::size_t right, double time) const
{
    // Times that a double cannot tell apart may lead to either end.
    if (right == m_times.size())
        return m_frames.back()->value();
    if (right == 0)
        return m_frames.front()->value();

    std::size_t const left = right - 1;
    T const& leftValue = m_frames[left]->value();
    boost::shared_ptr<Interpolater<T>> const interpolater = this->interpolaterAtTime(time);
    if (!interpolater)
        return leftValue;
    unsigned long long const distance = static_cast<unsigned long long>(m_times[right]) -
                                        static_cast<unsigned long long>(m_times[left]);
    // Kept so: the span goes through float, which sets the last digits of every blended value.
    float const span = static_cast<float>(distance);
    double const position = (time - static_cast<double>(m_times[left])) / span;
    return interpolater->interpolate(leftValue, m_frames[right]->value(), position);
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
    return m_frames[indexOf(time)];
}

template <class T>
bool ParameterImpl<T>::hasKeyFrameAtTime(long long time) const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    return std::binary_search(m_times.begin(), m_times.end(), time);
}

template <class T>
bool ParameterImpl<T>::hasKeyFrameInRange(Range<long long> const& range) const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    std::size_t const index = firstIndexNotBefore(range.start);
    // The end may lie beyond 64 bits; saturated, it still has every key frame before it.
    return index < m_times.size() && m_times[index] <= range.end();
}

template <class T>
int ParameterImpl<T>::numKeyFrames() const
{
    return static_cast<int>(m_times.size());
}

template <class T>
long long ParameterImpl<T>::firstKeyFrameTime() const
{
    return m_times.empty() ? std::numeric_limits<long long>::max() : m_times.front();
}

template <class T>
long long ParameterImpl<T>::previousKeyFrameTime(long long time) const
{
    std::size_t const index = firstIndexNotBefore(time);
    return index == 0 ? std::numeric_limits<long long>::min() : m_times[index - 1];
}

template <class T>
long long ParameterImpl<T>::nextKeyFrameTime(long long time) const
{
    std::size_t const index = firstIndexAfter(time);
    return index == m_times.size() ? std::numeric_limits<long long>::max() : m_times[index];
}

template <class T>
Range<long long> ParameterImpl<T>::keyframeRange() const
{
    ReadWriteMutex::ScopedReadLock lock(this->mutex());
    if (m_times.empty())
        throw KeyFrameException(0);
    return Range<long long>(m_times.front(), saturatedDifference(m_times.back(), m_times.front()));
}

template <class T>
boost::shared_ptr<std::vector<long long>> ParameterImpl<T>::keyframeTimes() const
{
    return boost::shared_ptr<std::vector<long long>>(new std::vector<long long>(m_times));
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
        out.indent(indent + 1) << "<Keyframe time=\"" << m_times[i] << "\" value=\"";
        writeValue(out, *m_frames[i]);
        out << "\"/>\n";
    }
    out.indent(indent) << "</Keyframes>\n";
}

// The sorted vectors.

template <class T>
std::size_t ParameterImpl<T>::firstIndexNotBefore(long long time) const
{
    return countBefore(m_times, time);
}

template <class T>
std::size_t ParameterImpl<T>::firstIndexAfter(long long time) const
{
    bool const isLastOfAll = time == std::numeric_limits<long long>::max();
    return isLastOfAll ? m_times.size() : countBefore(m_times, time + 1);
}

template <class T>
std::size_t ParameterImpl<T>::indexOf(long long time) const
{
    std::size_t const index = firstIndexNotBefore(time);
    if (index == m_times.size() || m_times[index] != time)
        throw KeyFrameException(time);
    return index;
}

template <class T>
void ParameterImpl<T>::requireFree(long long time) const
{
    if (std::binary_search(m_times.begin(), m_times.end(), time))
        throw KeyFrameException(time);
}

template <class T>
void ParameterImpl<T>::insertFrame(long long time, FramePointer const& frame)
{
    std::ptrdiff_t const index = static_cast<std::ptrdiff_t>(firstIndexNotBefore(time));
    // Room first: with it, neither insertion can fail, and the vectors stay side by side.
    if (m_times.size() == m_times.capacity())
        m_times.reserve(2 * m_times.size() + 1);
    if (m_frames.size() == m_frames.capacity())
        m_frames.reserve(2 * m_frames.size() + 1);
    m_times.insert(m_times.begin() + index, time);
    m_frames.insert(m_frames.begin() + index, frame);
}

#define TARN_INSTANTIATE(T) template class ParameterImpl<T>;
TARN_PARAMETER_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
