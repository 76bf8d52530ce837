#pragma once

#include <TarnMediaLib/parameters/Parametric.h>

#include <iosfwd>
#include <string>

namespace tarn::tool {

/// The parameters that say something, one a line: `opacity 0=1 30=0.4 hold 60=1`. Times lie on the
/// clock of the key frames. What has one key frame, and in it the value that changes nothing, is
/// left out, unless it is an effect's.
void writeParameters(std::ostream& out, Parametric const& owner, std::string const& indent);

}  // namespace tarn::tool
