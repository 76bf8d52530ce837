#include "parameters/LateDoubleParam.h"

#include "parameters/InterpolatingParam.h"

#include <boost/make_shared.hpp>

#include <string>

namespace tarn {

LateDoubleParam::LateDoubleParam(char const* name, double initial, unsigned int const* idents)
    : m_name(name), m_initial(initial), m_param(idents)
{}

LateDoubleParam::LateDoubleParam(LateDoubleParam const& other, unsigned int const* idents)
    : m_name(other.m_name)
    , m_initial(other.m_initial)
    , m_param(idents || other.isUntouched() ? Late(idents)
                                            : Late(boost::shared_ptr<InterpolatingParam<double>>(
                                                  other.m_param.ifMade()->clone())))
{}

bool LateDoubleParam::isUntouched() const
{
    InterpolatingParam<double> const* const made = m_param.ifMade();
    return !made || made->isUntouched(m_initial);
}

boost::shared_ptr<InterpolatingParam<double>> const& LateDoubleParam::get(
    SubProject const& owner) const
{
    return m_param.get([&](ReservedIdent* idents) {
        return boost::make_shared<InterpolatingParam<double>>(owner.projectMutex(), m_name,
                                                              m_initial, idents);
    });
}

void LateDoubleParam::storeConstants(Parametric const& owner, unsigned int& wanted, int index,
                                     double* values) const
{
    InterpolatingParam<double> const* const parameter = m_param.ifMade();
    double const* const only = parameter ? parameter->onlyValue() : &m_initial;
    if (only && owner.showsAsStored(parameter)) {
        values[index] = *only;
        wanted &= ~(1u << index);
    }
}

void LateDoubleParam::storeOthers(Parametric const& owner, SubProject const& project, double time,
                                  unsigned int wanted, int index, double* values) const
{
    if ((wanted & (1u << index)) != 0)
        values[index] = owner.transformedDoubleParameterValueAtTime(get(project), time);
}

void LateDoubleParam::toXML(XMLable::Options& options, int indent) const
{
    std::string const label = std::string("name=\"") + m_name + '"';
    Late::Idents idents;
    if (m_param.waitingIdents(idents)) {
        InterpolatingParam<double>::xmlBeforeFirstUse(options, indent, label, m_initial,
                                                      idents.data());
    } else {
        m_param.ifMade()->toXML(options, indent, label);
    }
}

}  // namespace tarn
