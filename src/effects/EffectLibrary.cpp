#include "effects/EffectLibrary.h"

#include "datatypes/Point.h"
#include "effects/Frei0rCatalogue.h"
#include "exceptions/TarnMediaLibException.h"

#include <algorithm>
#include <ostream>
#include <sstream>

namespace tarn {

namespace {

/// What a host has set; never destroyed, as a static of the host's may be the last to use it.
boost::shared_ptr<FilterCatalogue>& hostsCatalogue()
{
    static auto* const s_catalogue = new boost::shared_ptr<FilterCatalogue>;
    return *s_catalogue;
}

bool contains(std::vector<std::string> const& names, std::string const& name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

void describe(std::ostream& out, EffectDef::ParamDef const& paramDef)
{
    out << "\t\tParameter: " << paramDef.name << " " << paramDef.type;
    if (paramDef.type == "double") {
        out << " default: " << boost::any_cast<double>(paramDef.defaultValue)
            << " max: " << boost::any_cast<double>(paramDef.maximum)
            << " min: " << boost::any_cast<double>(paramDef.minimum);
    } else if (paramDef.type == "point") {
        out << " default: " << boost::any_cast<Point>(paramDef.defaultValue);
    }
    out << "\n";
}

}  // namespace

EffectLibrary* EffectLibrary::s_instance = nullptr;

EffectLibrary* EffectLibrary::instance()
{
    if (!s_instance) {
        boost::shared_ptr<FilterCatalogue> catalogue;
        catalogue.swap(hostsCatalogue());
        if (!catalogue)
            catalogue.reset(new Frei0rCatalogue);
        s_instance = new EffectLibrary(*catalogue);
    }
    return s_instance;
}

void EffectLibrary::setCatalogue(boost::shared_ptr<FilterCatalogue> const& catalogue)
{
    hostsCatalogue() = catalogue;
}

EffectLibrary::EffectLibrary(FilterCatalogue& catalogue)
{
    loadEffects(catalogue);
}

bool EffectLibrary::hasEffect(std::string const& name) const
{
    return m_effects.count(name) != 0;
}

EffectDef const& EffectLibrary::effectDef(std::string const& name) const
{
    EffectMap::const_iterator const found = m_effects.find(name);
    if (found == m_effects.end())
        throw TarnMediaLibException("unrecognized name effect");
    return found->second;
}

bool EffectLibrary::isVisualTransitionName(std::string const& name) const
{
    return contains(m_visualTransitions, name);
}

bool EffectLibrary::isSourceOverlayName(std::string const& name) const
{
    return contains(m_sourceOverlays, name);
}

bool EffectLibrary::isVisualEffectName(std::string const& name) const
{
    return contains(m_visualEffects, name);
}

bool EffectLibrary::isVisualGeneratorName(std::string const& name) const
{
    return contains(m_visualGenerators, name);
}

bool EffectLibrary::isScreenRecordingEffect(std::string const& name) const
{
    return contains(m_screenRecordingEffects, name);
}

std::string EffectLibrary::description() const
{
    std::ostringstream out;
    out << "EffectsLibrary\n";
    for (EffectMap::value_type const& entry : m_effects) {
        out << "\tEffect: " << entry.second.name() << "\n";
        for (EffectDef::ParamDef const& paramDef : entry.second)
            describe(out, paramDef);
    }
    return out.str();
}

}  // namespace tarn
