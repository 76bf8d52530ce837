#pragma once

#include "parameters/KeyFrame.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

namespace tarn {

/// Key frames by ascending time, each beside the time at which it stands.
///
/// One alone, as most parameters have, lies in place. Several have their times in a plain array: a
/// value costs one search through adjacent numbers, and a walk touches no tree.
template <class T>
class KeyFrames
{
public:
    using Frame = boost::shared_ptr<KeyFrame<T>>;

    std::size_t size() const { return m_several ? m_several->times.size() : m_single ? 1 : 0; }
    bool empty() const { return size() == 0; }
    long long const* times() const { return m_several ? m_several->times.data() : &m_singleTime; }
    Frame const* frames() const { return m_several ? m_several->frames.data() : &m_single; }
    /// At an index below size().
    long long time(std::size_t index) const { return times()[index]; }
    /// At an index below size().
    Frame const& frame(std::size_t index) const { return frames()[index]; }

    /// The only one there is, or null.
    Frame const* only() const { return size() == 1 ? frames() : nullptr; }

    /// Makes room for that many, so that no insertion up to there can fail.
    void reserve(std::size_t count);
    /// Changes nothing when it throws.
    void insert(std::size_t index, long long time, Frame const& frame);
    /// Takes out the frame at an index below size().
    void erase(std::size_t index);
    /// Puts a frame in the place of another.
    void replace(std::size_t index, Frame const& frame);

    /// Exchanges everything; cannot fail.
    void swap(KeyFrames& other);

private:
    struct Several
    {
        std::vector<long long> times;
        std::vector<Frame> frames;
    };

    long long m_singleTime = 0;
    Frame m_single;                      // of no meaning once there are several
    std::unique_ptr<Several> m_several;  // kept from then on
};

template <class T>
void KeyFrames<T>::reserve(std::size_t count)
{
    if (count <= 1 && !m_several)
        return;
    if (!m_several) {
        std::unique_ptr<Several> several(new Several);
        several->times.reserve(count);
        several->frames.reserve(count);
        if (m_single) {
            several->times.push_back(m_singleTime);
            several->frames.push_back(m_single);
        }
        m_single.reset();
        m_several.swap(several);
        return;
    }
    m_several->times.reserve(count);
    m_several->frames.reserve(count);
}

template <class T>
void KeyFrames<T>::insert(std::size_t index, long long time, Frame const& frame)
{
    if (!m_several && !m_single) {
        m_singleTime = time;
        m_single = frame;
        return;
    }
    // Room first: with it, neither insertion can fail, and the arrays stay side by side.
    std::size_t const count = size();
    if (!m_several || count == m_several->times.capacity() || count == m_several->frames.capacity())
        reserve(2 * count + 1);
    std::ptrdiff_t const place = static_cast<std::ptrdiff_t>(index);
    m_several->times.insert(m_several->times.begin() + place, time);
    m_several->frames.insert(m_several->frames.begin() + place, frame);
}

template <class T>
void KeyFrames<T>::erase(std::size_t index)
{
    if (!m_several) {
        m_single.reset();
        return;
    }
    std::ptrdiff_t const place = static_cast<std::ptrdiff_t>(index);
    m_several->times.erase(m_several->times.begin() + place);
    m_several->frames.erase(m_several->frames.begin() + place);
}

template <class T>
void KeyFrames<T>::replace(std::size_t index, Frame const& frame)
{
    (m_several ? m_several->frames[index] : m_single) = frame;
}

template <class T>
void KeyFrames<T>::swap(KeyFrames& other)
{
    std::swap(m_singleTime, other.m_singleTime);
    m_single.swap(other.m_single);
    m_several.swap(other.m_several);
}

}  // namespace tarn
