#pragma once

#include "datatypes/Export.h"
#include "datatypes/TarnObject.h"
#include "effects/EffectDef.h"
#include "effects/EffectsFwd.h"

#include <boost/shared_ptr.hpp>

#include <map>
#include <string>
#include <vector>

namespace tarn {

/// The definitions of all effects: six of the library's own, then every filter of the machine.
///
/// Filled once and read-only from then on, for any thread. A filter with the name of an own effect
/// takes the place of its definition. Names vary from one machine to the next; nothing here is
/// applied, and a filter that misbehaves when it is applied is still listed.
class TARN_API EffectLibrary : public TarnObject
{
public:
    /// The process's own, which lives to its end. The first call reads the machine's catalogue and
    /// takes no lock: make it early, on one thread.
    static EffectLibrary* instance();
    /// Takes the place of the machine's catalogue. The last call before the first instance()
    /// counts; null brings the machine's back.
    static void setCatalogue(boost::shared_ptr<FilterCatalogue> const& catalogue);

    /// A library apart from the process's own.
    explicit EffectLibrary(FilterCatalogue& catalogue);
    EffectLibrary(EffectLibrary const&) = delete;
    EffectLibrary& operator=(EffectLibrary const&) = delete;

    /// Whether there is a definition of that name, of any kind.
    bool hasEffect(std::string const& name) const;
    /// @throws TarnMediaLibException "unrecognized name effect"
    EffectDef const& effectDef(std::string const& name) const;

    /// Whether the list of that kind has the name, here and below; none throws.
    bool isVisualTransitionName(std::string const& name) const;
    /// False: no catalogue tells of such.
    bool isSourceOverlayName(std::string const& name) const;
    /// Whether visualEffects() has it.
    bool isVisualEffectName(std::string const& name) const;
    /// False: generators are in no list.
    bool isVisualGeneratorName(std::string const& name) const;
    /// Whether screenRecordingEffects() has it.
    bool isScreenRecordingEffect(std::string const& name) const;

    std::vector<std::string> const& visualTransitions() const { return m_visualTransitions; }
    /// Empty: no catalogue tells of such.
    std::vector<std::string> const& sourceOverlays() const { return m_sourceOverlays; }
    /// The library's own first. The name of a filter that is called like one of them stands twice.
    std::vector<std::string> const& visualEffects() const { return m_visualEffects; }
    /// Empty: generators have a definition but are in no list.
    std::vector<std::string> const& visualGenerators() const { return m_visualGenerators; }
    std::vector<std::string> const& screenRecordingEffects() const
    {
        return m_screenRecordingEffects;
    }

    /// The definitions by name, with their parameters; one a line.
    std::string description() const override;

private:
    using EffectMap = std::map<std::string, EffectDef>;

    void loadEffects(FilterCatalogue& catalogue);

    static EffectLibrary* s_instance;

    EffectMap m_effects;
    std::vector<std::string> m_visualTransitions;
    std::vector<std::string> m_sourceOverlays;
    std::vector<std::string> m_visualEffects;
    std::vector<std::string> m_visualGenerators;
    std::vector<std::string> m_screenRecordingEffects;
};

}  // namespace tarn
