#include "Effects.h"

#include "Json.h"
#include "Similar.h"
#include "Table.h"

#include <TarnMediaLib/datatypes/Point.h>
#include <TarnMediaLib/effects/EffectDef.h>
#include <TarnMediaLib/effects/EffectLibrary.h>

#include <iostream>
#include <optional>
#include <set>
#include <sstream>

namespace tarn::tool {

namespace {

using ParamDef = EffectDef::ParamDef;

/// The library lists effects by use, and some in several lists.
std::vector<std::string> allNames(EffectLibrary const& library)
{
    std::set<std::string> names;
    for (auto const* list :
         {&library.visualEffects(), &library.visualTransitions(), &library.screenRecordingEffects(),
          &library.sourceOverlays(), &library.visualGenerators()})
        for (std::string const& name : *list)
            if (library.hasEffect(name))
                names.insert(name);
    return std::vector<std::string>(names.begin(), names.end());
}

std::string useOf(EffectLibrary const& library, std::string const& name)
{
    if (library.isScreenRecordingEffect(name))
        return "screen recording";
    if (library.isVisualTransitionName(name))
        return "transition";
    return library.isVisualGeneratorName(name) ? "generator" : "picture";
}

std::optional<double> numberOf(boost::any const& value)
{
    double const* const number = boost::any_cast<double>(&value);
    return number ? std::optional<double>(*number) : std::nullopt;
}

std::string numberText(double number)
{
    std::ostringstream text;
    text << number;
    return text.str();
}

std::string defaultText(ParamDef const& parameter)
{
    if (Point const* const point = boost::any_cast<Point>(&parameter.defaultValue))
        return numberText(point->x) + "," + numberText(point->y);
    auto const number = numberOf(parameter.defaultValue);
    return parameter.type == "double" && number ? numberText(*number) : "-";
}

std::string rangeText(ParamDef const& parameter)
{
    auto const least = numberOf(parameter.minimum);
    auto const most = numberOf(parameter.maximum);
    if (parameter.type != "double" || !least || !most)
        return "-";
    return numberText(*least) + " to " + numberText(*most);
}

void writeTable(EffectLibrary const& library, std::vector<std::string> const& names, Colors colors)
{
    Table table({"EFFECT", "USE", "PARAMETER", "TYPE", "DEFAULT", "RANGE"});
    for (std::string const& name : names) {
        EffectDef const& effect = library.effectDef(name);
        if (effect.numParameters() == 0)
            table.add({printable(name), useOf(library, name)});
        bool isFirst = true;
        for (ParamDef const& parameter : effect) {
            table.add({isFirst ? printable(name) : "", isFirst ? useOf(library, name) : "",
                       printable(parameter.name), printable(parameter.type), defaultText(parameter),
                       rangeText(parameter)});
            isFirst = false;
        }
    }
    table.write(std::cout, Terminal(1, colors));
}

void writeParameter(Json& json, ParamDef const& parameter)
{
    json.beginObject().key("name").text(parameter.name).key("type").text(parameter.type);
    if (Point const* const point = boost::any_cast<Point>(&parameter.defaultValue)) {
        json.key("default").beginArray().number(point->x).number(point->y).number(point->z);
        json.endArray();
    } else if (parameter.type == "double") {
        if (auto const number = numberOf(parameter.defaultValue))
            json.key("default").number(*number);
        if (auto const least = numberOf(parameter.minimum))
            json.key("minimum").number(*least);
        if (auto const most = numberOf(parameter.maximum))
            json.key("maximum").number(*most);
    }
    json.endObject();
}

void writeJson(EffectLibrary const& library, std::vector<std::string> const& names)
{
    Json json(std::cout);
    json.beginArray();
    for (std::string const& name : names) {
        json.beginObject().key("name").text(name).key("use").text(useOf(library, name));
        json.key("parameters").beginArray();
        for (ParamDef const& parameter : library.effectDef(name))
            writeParameter(json, parameter);
        json.endArray().endObject();
    }
    json.endArray();
}

}  // namespace

int showEffects(std::string const& name, EffectsForm form, Colors colors)
{
    EffectLibrary const& library = *EffectLibrary::instance();
    std::vector<std::string> names = allNames(library);
    if (!name.empty()) {
        if (!library.hasEffect(name)) {
            std::cerr << "tarn: "
                      << Terminal(2, colors).bad("this machine has no effect '" + printable(name) +
                                                 "'")
                      << didYouMean(name, names) << '\n';
            return 1;
        }
        names = {name};
    }
    if (form == EffectsForm::Json)
        writeJson(library, names);
    else if (form == EffectsForm::Names)
        for (std::string const& each : names)
            std::cout << each << '\n';
    else
        writeTable(library, names, colors);
    return 0;
}

}  // namespace tarn::tool
