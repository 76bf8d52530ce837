#pragma once

#include "clipbin/ClipBinFwd.h"
#include "datatypes/XMLable.h"

#include <boost/shared_ptr.hpp>

#include <string>

namespace tarn {

/// The body of a command that moves a source into or out of the bin: the file, and where in memory
/// the source lies.
void xmlOfSourceFile(XMLable::Options& options, int indent, std::string const& path,
                     boost::shared_ptr<Source const> const& source);

}  // namespace tarn
