#pragma once

#include <string>

namespace tarn::tool {

/// Where something stands in a script. Lines and columns count from 1, columns in characters.
struct Place
{
    int line = 1;
    int column = 1;
};

/// What is wrong with a script, and where.
struct Complaint
{
    Place place;
    std::string reason;
};

}  // namespace tarn::tool
