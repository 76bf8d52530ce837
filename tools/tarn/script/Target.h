#pragma once

#include "script/Stage.h"

#include <TarnMediaLib/effects/Effectable.h>
#include <TarnMediaLib/parameters/ParameterInterface.h>
#include <TarnMediaLib/parameters/Parametric.h>

namespace tarn::tool {

/// What effects and key frames go to: a media, a track or a mixer.
struct Target
{
    boost::shared_ptr<Effectable const> effectable;
    boost::shared_ptr<Parametric const> parametric;
};

Target targetOf(Stage const& stage, Word const& word);

/// The first effect of that name. @throws ScriptError when there is none
boost::shared_ptr<Effect const> effectOf(Target const& target, Word const& word,
                                         std::string const& name);

/// A parameter and what owns it, whose clock its key frames are on.
struct OwnedParameter
{
    boost::shared_ptr<Parametric const> owner;
    boost::shared_ptr<ParameterInterface const> parameter;

    /// From the timeline's clock to that of the key frames.
    long long keyTime(long long time) const;
};

/// `opacity`, `scale.x` for what the model calls scale0, or `EFFECT:PARAM`.
/// @throws ScriptError when there is none
OwnedParameter parameterOf(Target const& target, Word const& word);

}  // namespace tarn::tool
