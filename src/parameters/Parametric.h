#pragma once

#include "datatypes/Export.h"
#include "datatypes/XMLIdentified.h"
#include "parameters/ParametersFwd.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace tarn {

/// What owns parameters.
///
/// Three clocks meet here: the timeline's (global), the owner's own (local), and that of the key
/// frames (parameter time). What is read at a local time goes through the owner's transform.
class TARN_API Parametric : public virtual XMLIdentified
{
public:
    Parametric() = default;
    Parametric(Parametric const& other);
    Parametric& operator=(Parametric const& other) = delete;
    ~Parametric() override;

    /// What the owner makes of a stored value at a local time; here nothing.
    virtual double doubleParametricTransform(
        boost::shared_ptr<ParameterInterface const> const& parameter, double value,
        double time) const;
    /// From local time to parameter time.
    virtual double toParameterTime(double time) const = 0;
    /// From parameter time to local time.
    virtual double fromParameterTime(double time) const = 0;
    /// From global time to local time; edit units.
    virtual long long fromGlobalToParametricTime(long long time) const = 0;
    /// How many parameters parameterVector() has, unless a class says otherwise.
    virtual int numParameters() const = 0;
    /// The direct parameters in a fixed order; entries may be null. Bind it to a local: it keeps
    /// the project read-locked.
    virtual boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>>
    parameterVector() const = 0;
    /// The first of that name, or null.
    virtual boost::shared_ptr<ParameterInterface const> paramWithName(
        std::string const& name) const;

    /// Whether doubleParametricTransform() gives back at all times what that parameter stores; null
    /// stands for one that nobody has asked for yet. The caller holds the read lock. Here false;
    /// what overrides doubleParametricTransform() below a class that says otherwise overrides this
    /// as well.
    virtual bool showsAsStored(ParameterInterface const* parameter) const;

    /// The value of one of the owner's parameters as it is shown at a local time.
    /// @throws KeyFrameException(0) when the parameter has no key frame
    double transformedDoubleParameterValueAtTime(
        boost::shared_ptr<InterpolatingParam<double> const> const& parameter, double time) const;

protected:
    /// Appends each dimension, from index 0 up.
    static void addVectorParamToParameters(
        boost::shared_ptr<VectorParam const> const& vector,
        MTVector<boost::shared_ptr<ParameterInterface const>>* parameters);
};

}  // namespace tarn
