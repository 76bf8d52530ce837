#pragma once

#include "Terminal.h"

#include <string>

namespace tarn::tool {

/// Reads a script whole ("-": from the standard input) and, when nothing is wrong with it, runs it.
/// What is wrong goes to the standard error as file:line:column: reason.
/// @return the exit status: 1 when the script is wrong or has stopped
int runScript(std::string const& file, Colors colors);

/// Runs a script as runScript() does, and draws the timeline that it leaves into `picture` ("-": to
/// the standard output, and then what the script prints goes to the standard error). The picture
/// appears whole or not at all.
int drawScript(std::string const& file, std::string const& picture, Colors colors);

}  // namespace tarn::tool
