#include "effects/EffectLibrary.h"

#include "datatypes/Point.h"
#include "effects/FilterCatalogue.h"

#include <algorithm>
#include <iterator>

// How the library is filled: its own effects, then what the machine's catalogue tells.

namespace tarn {

namespace {

using Category = FilterCatalogue::Category;
using EffectMap = std::map<std::string, EffectDef>;
using Names = std::vector<std::string>;

struct CustomParam
{
    char const* name;
    double minimum;
    double maximum;
    double defaultValue;
};

struct CustomEffect
{
    char const* name;
    std::vector<CustomParam> params;
};

double const k_twoPi = 6.283185307179586;
double const k_sevenQuarterPi = 5.497787143782138;

std::vector<CustomEffect> customVisualEffects()
{
    return {{"Reflection", {{"distance", 0, 50, 0}, {"opacity", 0, 1, 0.5}}},
            {"DropShadow",
             {{"angle", 0, k_twoPi, k_sevenQuarterPi},  // radians
              {"offset", 0, 50, 10},
              {"blur", 0, 50, 10},
              {"opacity", 0, 1, 0.75},
              {"color-red", 0, 1, 0.2196},
              {"color-green", 0, 1, 0.2196},
              {"color-blue", 0, 1, 0.2196},
              {"color-alpha", 0, 1, 1}}},
            {"Colorize",
             {{"color-red", 0, 1, 1},
              {"color-green", 0, 1, 0},
              {"color-blue", 0, 1, 1},
              {"color-alpha", 0, 1, 1},
              {"amount", 0, 1, 0.5}}},
            {"ColorAdjustment", {{"brightness", -1, 1, 0}, {"contrast", 0.25, 4, 1}}},
            {"Glow", {{"radius", 0, 100, 10}, {"intensity", 0, 1, 1}}}};
}

std::vector<CustomEffect> customScreenRecordingEffects()
{
    return {{"FrontMostWindowHighlight",
             {{"zoomUp", 1, 5, 1},
              {"blur", 0, 50, 10},
              {"feather", 0, 20, 0},
              {"opacity", 0, 1, 0.35}}}};
}

void addCustomEffect(CustomEffect const& effect, EffectMap& effects, Names& names)
{
    EffectDef def(effect.name);
    for (CustomParam const& param : effect.params)
        def.addParamDef(param.name, "double", param.defaultValue, param.maximum, param.minimum);
    effects[def.name()] = def;
    names.push_back(def.name());
}

void addCustomEffects(EffectMap& effects, Names& visualEffects, Names& screenRecordingEffects)
{
    for (CustomEffect const& effect : customVisualEffects())
        addCustomEffect(effect, effects, visualEffects);
    for (CustomEffect const& effect : customScreenRecordingEffects())
        addCustomEffect(effect, effects, screenRecordingEffects);
}

void addWithoutValues(std::string const& key, char const* type, EffectDef* def)
{
    def->addParamDef(key, type, 0.0, 0.0, 0.0);
}

/// A colour is animated by channel, as those of the library's own effects are.
void addColorParamDefs(std::string const& key, EffectDef* def)
{
    for (char const* const channel : {"-red", "-green", "-blue", "-alpha"})
        def->addParamDef(key + channel, "double", 1.0, 1.0, 0.0);
}

void addParamDefs(FilterCatalogue const& catalogue, std::string const& filter,
                  std::string const& key, EffectDef* def)
{
    std::string const className = catalogue.className(filter, key);
    if (className == "NSNumber") {
        def->addParamDef(key, "double", catalogue.defaultNumber(filter, key),
                         catalogue.sliderMaximum(filter, key),
                         catalogue.sliderMinimum(filter, key));
    } else if (className == "CIImage") {
        addWithoutValues(key, "image", def);
    } else if (className == "CIVector") {
        def->addParamDef(key, "point", catalogue.defaultVector(filter, key), 0.0, 0.0);
    } else if (className == "CIColor") {
        addColorParamDefs(key, def);
    } else if (className == "NSAffineTransform") {
        addWithoutValues(key, "matrix", def);
    } else if (className == "NSData") {
        addWithoutValues(key, "data", def);
    } else {
        addWithoutValues(key, "unknown", def);
    }
}

void addInputKeysToEffectDef(FilterCatalogue const& catalogue, std::string const& filter,
                             EffectDef* def)
{
    for (std::string const& key : catalogue.inputKeys(filter))
        addParamDefs(catalogue, filter, key, def);
}

void addFilter(FilterCatalogue const& catalogue, std::string const& filter, EffectMap& effects)
{
    EffectDef def(filter);
    addInputKeysToEffectDef(catalogue, filter, &def);
    effects[def.name()] = def;
}

void propagateVisualTransitions(FilterCatalogue const& catalogue, Names& visualTransitions)
{
    Names const names = catalogue.filterNamesInCategory(Category::Transition);
    visualTransitions.insert(visualTransitions.end(), names.begin(), names.end());
}

void propagateVisualEffects(FilterCatalogue const& catalogue, Names& visualEffects)
{
    Names const videos = catalogue.filterNamesInCategory(Category::Video);
    Names const transitions = catalogue.filterNamesInCategory(Category::Transition);
    Names const generators = catalogue.filterNamesInCategory(Category::Generator);
    auto const isIn = [](Names const& names, std::string const& name) {
        return std::find(names.begin(), names.end(), name) != names.end();
    };
    std::copy_if(videos.begin(), videos.end(), std::back_inserter(visualEffects),
                 [&](std::string const& name) {
                     return !isIn(transitions, name) && !isIn(generators, name);
                 });
}

}  // namespace

void EffectLibrary::loadEffects(FilterCatalogue& catalogue)
{
    addCustomEffects(m_effects, m_visualEffects, m_screenRecordingEffects);
    catalogue.loadAllPlugIns();
    for (std::string const& name : catalogue.filterNamesInCategory(Category::StillImage))
        addFilter(catalogue, name, m_effects);
    propagateVisualTransitions(catalogue, m_visualTransitions);
    propagateVisualEffects(catalogue, m_visualEffects);
}

}  // namespace tarn
