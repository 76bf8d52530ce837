#pragma once

#include "datatypes/Export.h"
#include "datatypes/TarnObject.h"

#include <boost/any.hpp>

#include <string>
#include <vector>

namespace tarn {

/// What an effect of some name is made of: its parameters, in order. A value, without a lock.
class TARN_API EffectDef : public TarnObject
{
public:
    /// One parameter. The type is a word: "double", "image", "point", "color", "matrix", "data";
    /// any other makes no parameter. The values hold a `double` each, but the default of a "point"
    /// holds a Point. Minimum and maximum are for a host's slider; no key frame is held to them.
    struct ParamDef
    {
        std::string name;
        std::string type;
        boost::any defaultValue;
        boost::any maximum;
        boost::any minimum;
    };

    using iterator = std::vector<ParamDef>::iterator;
    using const_iterator = std::vector<ParamDef>::const_iterator;

    EffectDef();
    explicit EffectDef(std::string const& name);

    std::string description() const override;

    std::string const& name() const { return m_name; }
    int numParameters() const { return static_cast<int>(m_paramDefs.size()); }

    iterator begin() { return m_paramDefs.begin(); }
    iterator end() { return m_paramDefs.end(); }
    const_iterator begin() const { return m_paramDefs.begin(); }
    const_iterator end() const { return m_paramDefs.end(); }

    /// Appends it, also when there is one of that name.
    void addParamDef(std::string const& name, std::string const& type,
                     boost::any const& defaultValue, boost::any const& maximum,
                     boost::any const& minimum);

private:
    std::string m_name;
    std::vector<ParamDef> m_paramDefs;
};

}  // namespace tarn
