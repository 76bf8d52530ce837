#include "edgemods/EdgeModification.h"

#include "edgemods/FadeInFunc.h"
#include "exceptions/TarnMediaLibException.h"
#include "parameters/Parameter.h"

namespace tarn {

EdgeModification::EdgeModification() : m_func(new FadeInFunc) {}

EdgeModification::EdgeModification(boost::shared_ptr<Parameter<double> const> const& parameter,
                                   EdgeModFunc const& func)
    : m_parameter(parameter), m_func(func.clone())
{}

EdgeModification::EdgeModification(EdgeModification const& other)
    : m_parameter(other.m_parameter), m_func(other.m_func->clone())
{}

EdgeModification& EdgeModification::operator=(EdgeModification const& other)
{
    // The clone first: nothing has changed when it fails, and `other` may be this.
    boost::shared_ptr<EdgeModFunc> func(other.m_func->clone());
    m_parameter = other.m_parameter;
    m_func.swap(func);
    return *this;
}

// What a list gives up must reach its taker: a copy may fail where there is no way back.
EdgeModification::EdgeModification(EdgeModification&& other) noexcept = default;

EdgeModification& EdgeModification::operator=(EdgeModification&& other) noexcept = default;

EdgeModification::~EdgeModification() = default;

bool EdgeModification::isFor(ParameterInterface const* parameter) const
{
    return m_parameter.get() == parameter;
}

double EdgeModification::execute(double position, long long time) const
{
    if (!m_parameter)
        throw TarnMediaLibException("trying to execute an edge mod without a parameter");
    return m_func->execute(position, m_parameter->valueAtTime(static_cast<double>(time)));
}

}  // namespace tarn
