#include "script/Target.h"

#include "Similar.h"
#include "script/ScriptError.h"
#include "script/Values.h"

#include <TarnMediaLib/effects/Effect.h>
#include <TarnMediaLib/parameters/MTVector.h>
#include <TarnMediaLib/timeline/Media.h>
#include <TarnMediaLib/timeline/Mixer.h>

#include <algorithm>
#include <cmath>

namespace tarn::tool {

namespace {

template <class T>
Target targetOn(boost::shared_ptr<T const> const& object)
{
    return {object, object};
}

/// The name in the model of what a script calls `scale.x`.
std::string modelName(std::string const& written)
{
    std::string const k_axes = "xyz";
    std::size_t const last = written.size() - 1;
    if (written.size() < 3 || written[last - 1] != '.')
        return written;
    std::size_t const axis = k_axes.find(written[last]);
    return axis == std::string::npos ? written : written.substr(0, last - 1) + std::to_string(axis);
}

std::vector<std::string> parameterNames(Parametric const& owner)
{
    std::vector<std::string> names;
    auto const parameters = owner.parameterVector();
    for (auto const& parameter : *parameters)
        if (parameter)
            names.push_back(parameter->ident());
    return names;
}

boost::shared_ptr<ParameterInterface const> named(Parametric const& owner, Word const& word,
                                                  std::string const& name)
{
    if (!name.empty())
        if (auto const parameter = owner.paramWithName(modelName(name)))
            return parameter;
    throw ScriptError(word.place, "there is no parameter '" + name + "'" +
                                      didYouMean(name, parameterNames(owner)));
}

}  // namespace

Target targetOf(Stage const& stage, Word const& word)
{
    if (word.text == "video")
        return targetOn<Mixer>(stage.mixer(word, 'V'));
    if (word.text == "audio")
        return targetOn<Mixer>(stage.mixer(word, 'A'));
    if (readTrack(word.text))
        return targetOn<Track>(stage.track(word));
    return targetOn<Media>(stage.media(word));
}

boost::shared_ptr<Effect const> effectOf(Target const& target, Word const& word,
                                         std::string const& name)
{
    for (int i = 0; i < target.effectable->numEffects(); ++i) {
        boost::shared_ptr<Effect const> const effect = target.effectable->effectAtIndex(i);
        if (effect && effect->name() == name)
            return effect;
    }
    throw ScriptError(word.place, "there is no effect '" + name + "' on it");
}

OwnedParameter parameterOf(Target const& target, Word const& word)
{
    std::size_t const colon = word.text.find(':');
    if (colon == std::string::npos)
        return {target.parametric, named(*target.parametric, word, word.text)};
    boost::shared_ptr<Effect const> const effect =
        effectOf(target, word, word.text.substr(0, colon));
    return {effect, named(*effect, word, word.text.substr(colon + 1))};
}

long long OwnedParameter::keyTime(long long time) const
{
    double const local = static_cast<double>(owner->fromGlobalToParametricTime(time));
    double const k_most = 9e18;
    return std::llround(std::clamp(owner->toParameterTime(local), -k_most, k_most));
}

}  // namespace tarn::tool
