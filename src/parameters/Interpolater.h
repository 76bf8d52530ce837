#pragma once

#include "datatypes/TarnObject.h"
#include "parameters/ParameterTypes.h"

#include <string>

namespace tarn {

/// How a value is made between two key frames. Immutable, so all threads may share one.
///
/// A host may derive its own, with an id of its own for the XML. It is called with a read lock held
/// (or the write lock, by a command or an observer that asks for a value). What it throws passes to
/// whoever asked for the value; the lock is given back, and nothing has changed. It may read. It
/// must not edit: its thread, which only reads, would wait for ever.
template <class T>
class TARN_API Interpolater : public TarnObject
{
public:
    virtual ~Interpolater() {}
    Interpolater(Interpolater const&) = delete;
    Interpolater& operator=(Interpolater const&) = delete;

    /// `left` itself when both are equal, else what the policy makes of them. `position` goes from
    /// 0 at the left to 1 at the right, up to rounding, and is not clamped.
    virtual T interpolate(T left, T right, double position) const
    {
        return left == right ? left : doInterpolate(left, right, position);
    }

    std::string description() const override { return std::string(); }

    /// Names the policy in XML.
    std::string const& id() const { return m_id; }

protected:
    explicit Interpolater(std::string const& id) : m_id(id) {}

    virtual T doInterpolate(T left, T right, double position) const = 0;

private:
    std::string m_id;
};

#define TARN_DECLARE(T) extern template class TARN_API Interpolater<T>;
TARN_PARAMETER_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
