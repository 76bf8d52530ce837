#pragma once

#include <TarnMediaLib/project/Project.h>

#include <iosfwd>

/// Prints what the project's bin holds: a row a track of a file.
void printBin(std::ostream& out, tarn::Project const& project);
