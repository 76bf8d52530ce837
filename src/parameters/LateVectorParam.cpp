#include "parameters/LateVectorParam.h"

#include "parameters/InterpolatingParam.h"
#include "parameters/VectorParam.h"

#include <boost/make_shared.hpp>

#include <algorithm>
#include <string>

namespace tarn {

namespace {

unsigned int bitsOf(int first, int count)
{
    return ((1u << count) - 1) << first;
}

}  // namespace

template <int Count>
LateVectorParam<Count>::LateVectorParam(char const* name, double initial,
                                        unsigned int const* idents)
    : m_name(name), m_initial(initial), m_param(idents)
{}

template <int Count>
LateVectorParam<Count>::LateVectorParam(LateVectorParam const& other, unsigned int const* idents)
    : m_name(other.m_name)
    , m_initial(other.m_initial)
    , m_param(idents || other.isUntouched()
                  ? Late(idents)
                  : Late(boost::shared_ptr<VectorParam>(other.m_param.ifMade()->clone())))
{}

template <int Count>
bool LateVectorParam<Count>::isUntouched() const
{
    VectorParam const* const made = m_param.ifMade();
    return !made || made->isUntouched(m_initial);
}

template <int Count>
boost::shared_ptr<VectorParam> const& LateVectorParam<Count>::get(SubProject const& owner) const
{
    return m_param.get([&](ReservedIdent* idents) {
        return boost::make_shared<VectorParam>(owner.projectMutex(), Count, m_name, m_initial,
                                               idents);
    });
}

template <int Count>
void LateVectorParam<Count>::storeConstants(Parametric const& owner, unsigned int& wanted,
                                            int first, double* values) const
{
    VectorParam const* const vector = m_param.ifMade();
    if (!vector) {
        if (owner.showsAsStored(nullptr)) {
            std::fill_n(values + first, Count, m_initial);
            wanted &= ~bitsOf(first, Count);
        }
        return;
    }
    for (int i = 0; i < Count; ++i) {
        InterpolatingParam<double> const& parameter = vector->dimension(i);
        double const* const only = parameter.onlyValue();
        if (only && owner.showsAsStored(&parameter)) {
            values[first + i] = *only;
            wanted &= ~bitsOf(first + i, 1);
        }
    }
}

template <int Count>
void LateVectorParam<Count>::storeOthers(Parametric const& owner, SubProject const& project,
                                         double time, unsigned int wanted, int first,
                                         double* values) const
{
    if ((wanted & bitsOf(first, Count)) == 0)
        return;
    VectorParam const& vector = *get(project);
    for (int i = 0; i < Count; ++i) {
        if ((wanted & bitsOf(first + i, 1)) != 0)
            values[first + i] = owner.transformedDoubleParameterValueAtTime(vector.at(i), time);
    }
}

template <int Count>
void LateVectorParam<Count>::toXML(XMLable::Options& options, int indent) const
{
    std::string const label = std::string("name=\"") + m_name + '"';
    typename Late::Idents idents;
    if (m_param.waitingIdents(idents))
        VectorParam::xmlBeforeFirstUse(options, indent, label, Count, m_initial, idents.data());
    else
        m_param.ifMade()->toXML(options, indent, label);
}

template class LateVectorParam<2>;
template class LateVectorParam<3>;
template class LateVectorParam<4>;

}  // namespace tarn
