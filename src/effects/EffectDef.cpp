#include "effects/EffectDef.h"

namespace tarn {

EffectDef::EffectDef() = default;

EffectDef::EffectDef(std::string const& name) : m_name(name) {}

std::string EffectDef::description() const
{
    return std::string();
}

void EffectDef::addParamDef(std::string const& name, std::string const& type,
                            boost::any const& defaultValue, boost::any const& maximum,
                            boost::any const& minimum)
{
    m_paramDefs.push_back(ParamDef{name, type, defaultValue, maximum, minimum});
}

}  // namespace tarn
