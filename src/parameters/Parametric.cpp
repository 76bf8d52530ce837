#include "parameters/Parametric.h"

#include "parameters/InterpolatingParam.h"
#include "parameters/MTVector.h"
#include "parameters/VectorParam.h"

namespace tarn {

Parametric::Parametric(Parametric const& other) : XMLIdentified(other) {}

Parametric::~Parametric() {}

double Parametric::doubleParametricTransform(boost::shared_ptr<ParameterInterface const> const&,
                                             double value, double) const
{
    return value;
}

bool Parametric::showsAsStored(ParameterInterface const*) const
{
    return false;
}

boost::shared_ptr<ParameterInterface const> Parametric::paramWithName(std::string const& name) const
{
    boost::shared_ptr<MTVector<boost::shared_ptr<ParameterInterface const>>> const parameters =
        parameterVector();
    for (boost::shared_ptr<ParameterInterface const> const& parameter : *parameters) {
        if (parameter && parameter->ident() == name)
            return parameter;
    }
    return boost::shared_ptr<ParameterInterface const>();
}

double Parametric::transformedDoubleParameterValueAtTime(
    boost::shared_ptr<InterpolatingParam<double> const> const& parameter, double time) const
{
    double value = 0;
    if (parameter->isShownAtAllTimes(*this, value))
        return value;
    value = parameter->valueAtTime(toParameterTime(time));
    return doubleParametricTransform(parameter, value, time);
}

void Parametric::addVectorParamToParameters(
    boost::shared_ptr<VectorParam const> const& vector,
    MTVector<boost::shared_ptr<ParameterInterface const>>* parameters)
{
    for (int i = 0; i < vector->numDimensions(); ++i)
        parameters->push_back(vector->at(i));
}

}  // namespace tarn
