#pragma once

#include "parameters/ParameterImpl.h"
#include "parameters/Parametric.h"

namespace tarn {

/// A parameter that is blended between its key frames. How, is a parameter of its own, on the same
/// clock: one of interpolaters, which starts with the linear one at time 0 and so for all times.
template <class T>
class TARN_API InterpolatingParam : public ParameterImpl<T>, public Parametric
{
public:
    InterpolatingParam(boost::weak_ptr<ThreadSafe const> const& project, std::string const& name);
    /// With one key frame, at time 0, and under 4 idents that were held back for it, in the order
    /// in which it would have drawn them. Notifies nobody.
    InterpolatingParam(boost::weak_ptr<ThreadSafe const> const& project, std::string const& name,
                       T const& initial, ReservedIdent* idents);
    /// The copied parameter's read lock is held by the caller; clone() takes it.
    InterpolatingParam(InterpolatingParam const& other);

    /// One line a key frame: its time and its address.
    std::string description() const override;
    void receiveDispatcher(ParameterDispatcher* dispatcher) override;
    void receiveDispatcher(ConstParameterDispatcher* dispatcher) const override;
    boost::shared_ptr<Interpolater<T>> interpolaterAtTime(double time) const override;
    /// Never null. Moving this parameter's key frames leaves the interpolaters' where they are.
    boost::shared_ptr<Parameter<boost::shared_ptr<Interpolater<T>>>> interpolaterParam()
        const override;
    InterpolatingParam* clone() const override;

    /// A parameter is its own time base.
    double toParameterTime(double time) const override;
    double fromParameterTime(double time) const override;
    long long fromGlobalToParametricTime(long long time) const override;
    /// One: the interpolater.
    int numParameters() const override;
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override;

    std::string ident() const override;
    /// The one value there is, where neither time nor `owner` can change it; otherwise false.
    bool isShownAtAllTimes(Parametric const& owner, T& value) const;
    /// Whether nothing tells it from one just made with that value. The caller holds the read lock.
    bool isUntouched(T const& initial) const;
    /// The element of one that was not made yet, with what its constructor would be given.
    static void xmlBeforeFirstUse(XMLable::Options& options, int indent, std::string const& label,
                                  T const& initial, unsigned int const* idents);
    void xmlBody(XMLable::Options& options, int indent) const override;
    void xmlName(XMLable::Options& options) const override;
    void xmlAttributes(XMLable::Options& options) const override;

protected:
    Interpolater<T> const* interpolaterNow(
        double time, boost::shared_ptr<Interpolater<T>>& owner) const override;

private:
    using InterpolaterParam = LeftParameter<boost::shared_ptr<Interpolater<T>>>;

    boost::shared_ptr<InterpolaterParam> const& interpolaters() const;
    static void xmlOfLinear(XMLable::Options& options, int indent, unsigned int ident);

    // Until someone asks for it, it is known to say linear at all times.
    LateObject<InterpolaterParam, 2> m_interpolater;
};

#define TARN_DECLARE(T) extern template class TARN_API InterpolatingParam<T>;
TARN_INTERPOLATING_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
