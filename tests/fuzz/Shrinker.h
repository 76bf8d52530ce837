#pragma once

#include "fuzz/Generator.h"

#include <string>

namespace tarn {
namespace test {

/// Takes steps out of a session for as long as it fails in the same way.
Script shrunk(Script script, std::string const& fault);

}  // namespace test
}  // namespace tarn
