#pragma once

#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <iterator>
#include <utility>

namespace tarn {

/// Walks a container of base-class pointers and shows each entry as the concrete class that its
/// owner admits. An entry put past the owner's type check shows as an empty pointer.
///
/// It holds whatever lock its base iterator holds. Entries are made on access, so they are values.
template <class Base, class Cast>
class CastingIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = typename Cast::Entry;
    using difference_type = std::ptrdiff_t;
    using reference = value_type;

    /// Keeps the entry alive for the expression that looks into it.
    class pointer
    {
    public:
        explicit pointer(value_type const& entry) : m_entry(entry) {}
        value_type const* operator->() const { return &m_entry; }

    private:
        value_type m_entry;
    };

    explicit CastingIterator(Base const& base) : m_base(base) {}

    reference operator*() const { return Cast::entry(*m_base); }
    pointer operator->() const { return pointer(Cast::entry(*m_base)); }

    CastingIterator& operator++()
    {
        ++m_base;
        return *this;
    }
    CastingIterator operator++(int)
    {
        CastingIterator before(*this);
        ++m_base;
        return before;
    }
    CastingIterator& operator--()
    {
        --m_base;
        return *this;
    }
    CastingIterator operator--(int)
    {
        CastingIterator before(*this);
        --m_base;
        return before;
    }

    Base const& base() const { return m_base; }

    friend bool operator==(CastingIterator const& a, CastingIterator const& b)
    {
        return a.m_base == b.m_base;
    }
    friend bool operator!=(CastingIterator const& a, CastingIterator const& b) { return !(a == b); }

private:
    Base m_base;
};

/// Entries of a mixer's track list, seen as T.
template <class T>
struct CastTrack
{
    using Entry = boost::shared_ptr<T>;
    /// Empty for a track of another class.
    static Entry entry(boost::shared_ptr<Track> const& track)
    {
        return boost::dynamic_pointer_cast<T>(track);
    }
};

/// Entries of a track's media map, seen as (track start, M).
template <class M>
struct CastMedia
{
    using Entry = std::pair<long long const, boost::shared_ptr<M>>;
    /// The second is empty for a media of another class.
    static Entry entry(std::pair<long long const, boost::shared_ptr<Media>> const& entry)
    {
        return Entry(entry.first, boost::dynamic_pointer_cast<M>(entry.second));
    }
};

}  // namespace tarn
