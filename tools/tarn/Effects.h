#pragma once

#include "Terminal.h"

#include <string>

namespace tarn::tool {

enum class EffectsForm
{
    Table,
    Json,
    Names
};

/// Shows the catalogue of this machine's effects, or the one of that name.
/// @return the exit status: 1 when there is none of that name
int showEffects(std::string const& name, EffectsForm form, Colors colors);

}  // namespace tarn::tool
