#pragma once

#include "clipbin/ClipBinFwd.h"

#include <boost/shared_ptr.hpp>

namespace tarn {
namespace test {

/// What a project does with statistics: makes a source of them and prints its XML. That they have
/// no length in common is a failure it knows.
/// @throws nothing of the library's own; anything else is a fault
void makeSource(boost::shared_ptr<MediaFileStats> const& stats);

}  // namespace test
}  // namespace tarn
