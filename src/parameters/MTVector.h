#pragma once

#include "datatypes/Export.h"
#include "project/ProjectFwd.h"
#include "project/SharedReadLock.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <cstddef>
#include <vector>

namespace tarn {

/// A vector that keeps its project read-locked for as long as it lives, so that what it lists
/// cannot go away.
///
/// Keep it in a local, and never across Project::execute, undo or redo: asking for the write lock
/// while holding only this read lock waits for ever, or throws if the lock is strict.
template <class T>
class TARN_API MTVector
{
public:
    using value_type = T;
    using iterator = typename std::vector<T>::iterator;
    using const_iterator = typename std::vector<T>::const_iterator;

    /// @throws boost::bad_weak_ptr for a dead project
    explicit MTVector(boost::weak_ptr<ThreadSafe const> const& project)
        : m_lock(SharedReadLock::acquire(project))
    {}

    iterator begin() { return m_elements.begin(); }
    iterator end() { return m_elements.end(); }
    const_iterator begin() const { return m_elements.begin(); }
    const_iterator end() const { return m_elements.end(); }

    std::size_t size() const { return m_elements.size(); }
    bool empty() const { return m_elements.empty(); }

    T& operator[](std::size_t index) { return m_elements[index]; }
    T const& operator[](std::size_t index) const { return m_elements[index]; }
    /// @throws std::out_of_range
    T& at(std::size_t index) { return m_elements.at(index); }
    T const& at(std::size_t index) const { return m_elements.at(index); }

    /// Appends, as std::vector does.
    void push_back(T const& element) { m_elements.push_back(element); }
    /// Makes room, as std::vector does.
    void reserve(std::size_t capacity) { m_elements.reserve(capacity); }

private:
    boost::shared_ptr<SharedReadLock const> m_lock;  // taken first and released last
    std::vector<T> m_elements;
};

}  // namespace tarn
