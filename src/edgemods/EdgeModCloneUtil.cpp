#include "edgemods/EdgeModCloneUtil.h"

#include "edgemods/EdgeModification.h"
#include "parameters/MTVector.h"
#include "parameters/Parameter.h"
#include "timeline/Media.h"

#include <boost/pointer_cast.hpp>

namespace tarn {

boost::shared_ptr<Parameter<double> const> EdgeModCloneUtil::findDoubleParamWithName(
    Parametric const* owner, std::string const& name)
{
    auto const parameters = owner->parameterVector();
    for (boost::shared_ptr<ParameterInterface const> const& parameter : *parameters) {
        if (parameter && parameter->ident() == name)
            return boost::dynamic_pointer_cast<Parameter<double> const>(parameter);
    }
    return boost::shared_ptr<Parameter<double> const>();
}

EdgeModification EdgeModCloneUtil::createEdgeMod(Media* target,
                                                 EdgeModification const& modification)
{
    boost::shared_ptr<Parameter<double> const> parameter = modification.parameter();
    if (parameter)
        parameter = findDoubleParamWithName(target, parameter->ident());
    return EdgeModification(parameter, modification.func());
}

void EdgeModCloneUtil::setupLeftMods(Media* target, Media const& source)
{
    for (EdgeModification const& modification : source.leftEdgeModifications()) {
        EdgeModification const own = createEdgeMod(target, modification);
        if (own.parameter())
            target->addLeftEdgeModification(own);
    }
}

void EdgeModCloneUtil::setupRightMods(Media* target, Media const& source)
{
    for (EdgeModification const& modification : source.rightEdgeModifications()) {
        EdgeModification const own = createEdgeMod(target, modification);
        if (own.parameter())
            target->addRightEdgeModification(own);
    }
}

}  // namespace tarn
