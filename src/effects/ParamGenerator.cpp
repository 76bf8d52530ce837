#include "effects/ParamGenerator.h"

#include "datatypes/Color.h"
#include "datatypes/Point.h"
#include "datatypes/TransformMatrix.h"
#include "effects/EffectDef.h"
#include "parameters/InterpolatingParam.h"
#include "parameters/LeftParameter.h"

#include <boost/any.hpp>

namespace tarn {

namespace {

using ProjectPointer = boost::weak_ptr<ThreadSafe const>;

template <class P, class T>
boost::shared_ptr<ParameterInterface> parameterWith(ProjectPointer const& project,
                                                    std::string const& name, T const& value)
{
    boost::shared_ptr<P> const parameter(new P(project, name));
    parameter->addKeyFrame(0, value);
    return parameter;
}

/// For the types whose definition gives the default.
template <class T>
boost::shared_ptr<ParameterInterface> genParamTemplate(ProjectPointer const& project,
                                                       EffectDef::ParamDef const& paramDef)
{
    return parameterWith<InterpolatingParam<T>>(project, paramDef.name,
                                                boost::any_cast<T>(paramDef.defaultValue));
}

template <>
boost::shared_ptr<ParameterInterface> genParamTemplate<boost::shared_ptr<IMFile>>(
    ProjectPointer const& project, EffectDef::ParamDef const& paramDef)
{
    return parameterWith<LeftParameter<boost::shared_ptr<IMFile>>>(project, paramDef.name,
                                                                   boost::shared_ptr<IMFile>());
}

template <>
boost::shared_ptr<ParameterInterface> genParamTemplate<Color>(ProjectPointer const& project,
                                                              EffectDef::ParamDef const& paramDef)
{
    return parameterWith<LeftParameter<Color>>(project, paramDef.name, Color::white());
}

template <>
boost::shared_ptr<ParameterInterface> genParamTemplate<TransformMatrix>(
    ProjectPointer const& project, EffectDef::ParamDef const& paramDef)
{
    return parameterWith<InterpolatingParam<TransformMatrix>>(project, paramDef.name,
                                                              TransformMatrix());
}

boost::shared_ptr<ParameterInterface> genParam(ProjectPointer const& project,
                                               EffectDef::ParamDef const& paramDef)
{
    if (paramDef.type == "double")
        return genParamTemplate<double>(project, paramDef);
    if (paramDef.type == "image")
        return genParamTemplate<boost::shared_ptr<IMFile>>(project, paramDef);
    if (paramDef.type == "point")
        return genParamTemplate<Point>(project, paramDef);
    if (paramDef.type == "color")
        return genParamTemplate<Color>(project, paramDef);
    if (paramDef.type == "matrix")
        return genParamTemplate<TransformMatrix>(project, paramDef);
    return boost::shared_ptr<ParameterInterface>();
}

}  // namespace

void ParamGenerator::genParameters(
    EffectDef const& def, ProjectPointer const& project,
    std::map<std::string, boost::shared_ptr<ParameterInterface>>& out)
{
    for (EffectDef::ParamDef const& paramDef : def)
        out[paramDef.name] = genParam(project, paramDef);
}

}  // namespace tarn
