#pragma once

#include "parameters/ParameterTypes.h"
#include "project/ProjectFwd.h"

#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <iterator>
#include <list>

namespace tarn {

/// Reads a parameter's key frames by ascending time, asking it for the next time after each.
///
/// Keeps the project read-locked while it is alive, and so must be gone before a thread that is not
/// yet the writer wants the write lock. Must not outlive its parameter.
template <class T>
class TARN_API ParameterIterator
{
public:
    /// A key frame's time and the parameter's value there.
    struct Entry
    {
        long long time;
        T value;
    };

    using iterator_category = std::input_iterator_tag;
    using value_type = Entry;
    using difference_type = std::ptrdiff_t;
    using pointer = Entry const*;
    using reference = Entry;

    ParameterIterator(ParameterIterator const& other);
    ParameterIterator& operator=(ParameterIterator const& other);
    ~ParameterIterator();

    /// @throws KeyFrameException when the parameter is empty
    Entry operator*() const;
    /// What it points to lives as long as this iterator.
    Entry const* operator->() const;

    ParameterIterator& operator++();
    ParameterIterator operator++(int);

    bool operator==(ParameterIterator const& other) const
    {
        return m_parameter == other.m_parameter && m_time == other.m_time;
    }
    bool operator!=(ParameterIterator const& other) const { return !(*this == other); }

private:
    friend class Parameter<T>;
    ParameterIterator(long long time, Parameter<T> const* parameter,
                      boost::shared_ptr<SharedReadLock const> const& lock);

    long long m_time;  // the largest 64-bit value: past the end
    Parameter<T> const* m_parameter;
    boost::shared_ptr<SharedReadLock const> m_lock;
    mutable std::list<Entry> m_proxies;  // handed out by operator->
};

#define TARN_DECLARE(T) extern template class TARN_API ParameterIterator<T>;
TARN_PARAMETER_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
