#pragma once

#include "datatypes/Export.h"
#include "effects/EffectsFwd.h"
#include "parameters/ParametersFwd.h"
#include "project/ProjectFwd.h"

#include <boost/shared_ptr.hpp>
#include <boost/weak_ptr.hpp>

#include <map>
#include <string>

namespace tarn {

/// Makes the parameters that an effect's definition tells of.
namespace ParamGenerator {

/// Enters one parameter a definition under its name, in place of an entry of that name; each has
/// its default as key frame at time 0. A type that makes no parameter enters a null pointer.
/// @throws boost::bad_any_cast for a default that is not of its type; what came before stays
TARN_API void genParameters(EffectDef const& def, boost::weak_ptr<ThreadSafe const> const& project,
                            std::map<std::string, boost::shared_ptr<ParameterInterface>>& out);

}  // namespace ParamGenerator

}  // namespace tarn
