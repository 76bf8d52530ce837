#pragma once

#include "script/Statement.h"

#include <iosfwd>
#include <vector>

namespace tarn::tool {

/// A script as it was read: what it says, or all that is wrong with it.
struct Script
{
    std::vector<Statement> statements;
    std::vector<Complaint> complaints;
};

/// Reads a script to its end and checks every line, whatever was wrong with those before. Nothing
/// is executed. Names must be given on an earlier line than they are used.
Script parseScript(std::istream& text);

}  // namespace tarn::tool
