#pragma once

#include "project/SharedReadLock.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <iterator>

namespace tarn {

/// A position in a live container of a project, C, which cannot change meanwhile: the iterator and
/// its copies share a read lock.
///
/// Keep it in a local, never across an edit on the same thread.
template <class C>
class TARN_API ConstIterator
{
public:
    using Base = typename C::const_iterator;
    using iterator_category = std::bidirectional_iterator_tag;
    using value_type = typename std::iterator_traits<Base>::value_type;
    using difference_type = typename std::iterator_traits<Base>::difference_type;
    using pointer = typename std::iterator_traits<Base>::pointer;
    using reference = typename std::iterator_traits<Base>::reference;

    /// Nowhere, without a lock.
    ConstIterator() = default;
    /// @throws boost::bad_weak_ptr when the project is gone
    ConstIterator(Base const& base, boost::weak_ptr<ThreadSafe const> const& project)
        : m_lock(SharedReadLock::acquire(project)), m_base(base)
    {}
    /// `base` was taken under `lock`.
    ConstIterator(Base const& base, boost::shared_ptr<SharedReadLock const> const& lock)
        : m_lock(lock), m_base(base)
    {}

    reference operator*() const { return *m_base; }
    pointer operator->() const { return &*m_base; }

    ConstIterator& operator++()
    {
        ++m_base;
        return *this;
    }
    ConstIterator operator++(int)
    {
        ConstIterator const before(*this);
        ++m_base;
        return before;
    }
    ConstIterator& operator--()
    {
        --m_base;
        return *this;
    }
    ConstIterator operator--(int)
    {
        ConstIterator const before(*this);
        --m_base;
        return before;
    }

    Base const& base() const { return m_base; }

    friend bool operator==(ConstIterator const& a, ConstIterator const& b)
    {
        return a.m_base == b.m_base;
    }
    friend bool operator!=(ConstIterator const& a, ConstIterator const& b) { return !(a == b); }

private:
    boost::shared_ptr<SharedReadLock const> m_lock;
    Base m_base{};
};

}  // namespace tarn
