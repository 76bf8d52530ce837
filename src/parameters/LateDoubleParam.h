#pragma once

#include "datatypes/LateObject.h"
#include "datatypes/XMLable.h"
#include "parameters/ParametersFwd.h"
#include "project/SubProject.h"

namespace tarn {

/// A double parameter with one key frame, at time 0, that is made on first use. Until then its
/// value is known and its XML is the same.
class TARN_API LateDoubleParam
{
public:
    /// The name is a literal.
    LateDoubleParam(char const* name, double initial);
    /// A copy of one that is as it was made is not made. The caller holds the read lock.
    LateDoubleParam(LateDoubleParam const& other);
    LateDoubleParam& operator=(LateDoubleParam const& other) = delete;

    /// The parameter, made now if nobody has asked before. `owner` is what it belongs to.
    boost::shared_ptr<InterpolatingParam<double>> const& get(SubProject const& owner) const;

    /// @name What `owner` shows at a local time; see LateVectorParam
    /// @{
    void storeConstants(Parametric const& owner, unsigned int& wanted, int index,
                        double* values) const;
    void storeOthers(Parametric const& owner, SubProject const& project, double time,
                     unsigned int wanted, int index, double* values) const;
    /// @}

    /// Labelled with its name.
    void toXML(XMLable::Options& options, int indent) const;

private:
    using Late = LateObject<InterpolatingParam<double>, 4>;

    char const* m_name;
    double m_initial;
    Late m_param;
};

}  // namespace tarn
