#pragma once

#include "datatypes/Cloneable.h"
#include "datatypes/TarnObject.h"
#include "parameters/ParameterTypes.h"

#include <string>

namespace tarn {

/// A value that a parameter has at a time of the parameter's own clock.
///
/// Always held by a shared pointer, and may outlive its place in the parameter. No lock: the one
/// that guards the parameter guards the frames in it.
template <class T>
class TARN_API KeyFrame : public TarnObject, public Cloneable
{
public:
    KeyFrame(long long time, T const& value) : m_time(time), m_value(value) {}
    KeyFrame(KeyFrame const& other)
        : TarnObject(other), Cloneable(other), m_time(other.m_time), m_value(other.m_value)
    {}
    KeyFrame& operator=(KeyFrame const& other) = delete;

    KeyFrame* clone() const override { return new KeyFrame(*this); }
    std::string description() const override { return std::string(); }

    /// On the parameter's clock.
    long long time() const { return m_time; }
    T const& value() const { return m_value; }
    /// Without a notification; Parameter::changeKeyFrame sends one.
    void setValue(T const& value) { m_value = value; }

private:
    /// A parameter finds its frames by time, so nothing else may move one.
    template <class U>
    friend class ParameterImpl;
    void setTime(long long time) { m_time = time; }

    long long m_time;
    T m_value;
};

#define TARN_DECLARE(T) extern template class TARN_API KeyFrame<T>;
TARN_PARAMETER_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
