#pragma once

#include <exception>
#include <string>

namespace tarn::tool {

/// What an exception tells, without the name of its class in front.
std::string reasonOf(std::exception const& failure);

}  // namespace tarn::tool
