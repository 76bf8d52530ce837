#pragma once

#include "datatypes/LateObject.h"
#include "datatypes/XMLable.h"
#include "parameters/ParametersFwd.h"
#include "project/SubProject.h"

#include <cstddef>

namespace tarn {

/// A double parameter with one key frame, at time 0, that is made on first use. Until then its
/// value is known and its XML is the same.
class TARN_API LateDoubleParam
{
public:
    /// How many idents it draws.
    static std::size_t constexpr k_numIdents = 4;

    /// The name is a literal. Takes k_numIdents over, or draws them if there are none.
    LateDoubleParam(char const* name, double initial, unsigned int const* idents = nullptr);
    /// A copy of one that is as it was made is not made, and takes or draws its idents as above;
    /// any other makes its own. Idents are given for one that isUntouched(). The caller holds the
    /// read lock.
    LateDoubleParam(LateDoubleParam const& other, unsigned int const* idents = nullptr);
    LateDoubleParam& operator=(LateDoubleParam const& other) = delete;

    /// Whether nobody has given it anything of its own, so that a copy need not be made. The caller
    /// holds the read lock.
    bool isUntouched() const;

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
    using Late = LateObject<InterpolatingParam<double>, k_numIdents>;

    char const* m_name;
    double m_initial;
    Late m_param;
};

}  // namespace tarn
