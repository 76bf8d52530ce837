#pragma once

#include "datatypes/XMLable.h"

#include <regex>
#include <sstream>
#include <string>

namespace tarn {
namespace test {

/// The XML with every identity number as `#`, as they differ from run to run.
inline std::string withoutIds(std::string const& xml)
{
    static std::regex const k_id("id=\"[0-9]+\"");
    return std::regex_replace(xml, k_id, "id=\"#\"");
}

inline std::string xmlOf(XMLable const& object)
{
    std::ostringstream out;
    object.toXML(out);
    return withoutIds(out.str());
}

}  // namespace test
}  // namespace tarn
