#pragma once

#include "datatypes/Export.h"
#include "edgemods/EdgeModsFwd.h"
#include "parameters/ParametersFwd.h"
#include "timeline/TimelineFwd.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace tarn {

/// Edge modifications for a clone: those of the original name the original's parameters, and the
/// clone's must name its own. For edits, under the write lock.
namespace EdgeModCloneUtil {

/// The first parameter of that name; null if there is none, or it is not one of doubles.
TARN_API boost::shared_ptr<Parameter<double> const> findDoubleParamWithName(
    Parametric const* owner, std::string const& name);

/// The same function on the parameter of `target` that has the same name. The parameter is null
/// when there is none.
TARN_API EdgeModification createEdgeMod(Media* target, EdgeModification const& modification);

/// Adds those of `source` for which `target` has a parameter, in order. Lengths are the caller's
/// business.
/// @throws TarnMediaLibException when such a parameter of `target` has a modification already
TARN_API void setupLeftMods(Media* target, Media const& source);
/// The same for the edge at the end.
TARN_API void setupRightMods(Media* target, Media const& source);

}  // namespace EdgeModCloneUtil

}  // namespace tarn
