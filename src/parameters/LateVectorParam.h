#pragma once

#include "datatypes/LateObject.h"
#include "datatypes/XMLable.h"
#include "parameters/ParametersFwd.h"
#include "project/SubProject.h"

#include <cstddef>

namespace tarn {

/// A vector parameter whose dimensions have one key frame each, at time 0, that is made on first
/// use. Until then its values are known and its XML is the same.
template <int Count>
class TARN_API LateVectorParam
{
public:
    /// How many idents it draws.
    static std::size_t constexpr k_numIdents = 2 + 4 * Count;

    /// The name is a literal. Takes k_numIdents over, or draws them if there are none.
    LateVectorParam(char const* name, double initial, unsigned int const* idents = nullptr);
    /// A copy of one that is as it was made is not made, and takes or draws its idents as above;
    /// any other makes its own. Idents are given for one that isUntouched(). The caller holds the
    /// read lock.
    LateVectorParam(LateVectorParam const& other, unsigned int const* idents = nullptr);
    LateVectorParam& operator=(LateVectorParam const& other) = delete;

    /// Whether nobody has given it anything of its own, so that a copy need not be made. The caller
    /// holds the read lock.
    bool isUntouched() const;

    /// The parameter, made now if nobody has asked before. `owner` is what it belongs to.
    boost::shared_ptr<VectorParam> const& get(SubProject const& owner) const;

    /// @name What `owner` shows at a local time
    /// Among `values` the dimensions stand from `first` on; `wanted` has a bit for each value.
    /// @{

    /// Stores what no time changes, and takes its bits out of `wanted`. Makes nothing. The caller
    /// holds the read lock.
    void storeConstants(Parametric const& owner, unsigned int& wanted, int first,
                        double* values) const;
    /// Stores the wanted rest. Takes locks of its own and may call host code.
    void storeOthers(Parametric const& owner, SubProject const& project, double time,
                     unsigned int wanted, int first, double* values) const;
    /// @}

    /// Labelled with its name.
    void toXML(XMLable::Options& options, int indent) const;

private:
    using Late = LateObject<VectorParam, k_numIdents>;

    char const* m_name;
    double m_initial;
    Late m_param;
};

extern template class TARN_API LateVectorParam<2>;
extern template class TARN_API LateVectorParam<3>;
extern template class TARN_API LateVectorParam<4>;

}  // namespace tarn
