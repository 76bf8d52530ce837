#pragma once

#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "parameters/Parametric.h"
#include "support/FakeProject.h"

#include <string>
#include <vector>

namespace tarn {
namespace test {

/// An owner of whatever parameters a test gives it. Local time t is parameter time t / scalar +
/// start, as in a media that shows its source from `start`.
class FakeParametric : public Parametric
{
public:
    explicit FakeParametric(boost::shared_ptr<FakeProject> const& project, double start = 0,
                            double scalar = 1)
        : m_project(project), m_start(start), m_scalar(scalar)
    {}

    /// Makes a parameter, adds it and returns it.
    boost::shared_ptr<InterpolatingParam<double>> add(std::string const& name)
    {
        boost::shared_ptr<InterpolatingParam<double>> const parameter(
            new InterpolatingParam<double>(m_project->weak(), name));
        m_parameters.push_back(parameter);
        return parameter;
    }
    void addEmpty() { m_parameters.push_back(boost::shared_ptr<ParameterInterface const>()); }

    double toParameterTime(double time) const override { return time / m_scalar + m_start; }
    double fromParameterTime(double time) const override { return (time - m_start) * m_scalar; }
    long long fromGlobalToParametricTime(long long time) const override { return time; }
    int numParameters() const override { return static_cast<int>(m_parameters.size()); }

    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> parameterVector()
        const override
    {
        using Parameters = MTVector<boost::shared_ptr<ParameterInterface const>>;
        boost::shared_ptr<Parameters> const result(new Parameters(m_project->weak()));
        for (boost::shared_ptr<ParameterInterface const> const& parameter : m_parameters)
            result->push_back(parameter);
        return result;
    }

private:
    boost::shared_ptr<FakeProject> m_project;
    double m_start;
    double m_scalar;
    std::vector<boost::shared_ptr<ParameterInterface const>> m_parameters;
};

}  // namespace test
}  // namespace tarn
