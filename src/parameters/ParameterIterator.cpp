#include "parameters/ParameterIterator.h"

#include "parameters/Parameter.h"
#include "project/SharedReadLock.h"

namespace tarn {

template <class T>
ParameterIterator<T>::ParameterIterator(long long time, Parameter<T> const* parameter,
                                        boost::shared_ptr<SharedReadLock const> const& lock)
    : m_time(time), m_parameter(parameter), m_lock(lock)
{}

template <class T>
ParameterIterator<T>::ParameterIterator(ParameterIterator const& other)
    : m_time(other.m_time), m_parameter(other.m_parameter), m_lock(other.m_lock)
{}

template <class T>
ParameterIterator<T>& ParameterIterator<T>::operator=(ParameterIterator const& other)
{
    m_time = other.m_time;
    m_parameter = other.m_parameter;
    m_lock = other.m_lock;
    return *this;
}

template <class T>
ParameterIterator<T>::~ParameterIterator()
{}

template <class T>
typename ParameterIterator<T>::Entry ParameterIterator<T>::operator*() const
{
    return Entry{m_time, m_parameter->valueAtTime(static_cast<double>(m_time))};
}

template <class T>
typename ParameterIterator<T>::Entry const* ParameterIterator<T>::operator->() const
{
    m_proxies.push_back(**this);
    return &m_proxies.back();
}

template <class T>
ParameterIterator<T>& ParameterIterator<T>::operator++()
{
    m_time = m_parameter->nextKeyFrameTime(m_time);
    return *this;
}

template <class T>
ParameterIterator<T> ParameterIterator<T>::operator++(int)
{
    ParameterIterator const before(*this);
    ++*this;
    return before;
}

#define TARN_INSTANTIATE(T) template class ParameterIterator<T>;
TARN_PARAMETER_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
