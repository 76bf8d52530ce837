#pragma once

#include "datatypes/Export.h"

#include <string>
#include <type_traits>

namespace tarn {

/// A text as it stands in XML: the five special characters and line ends become entities, so that
/// a value never breaks a line. Entities already there are not recognised.
TARN_API std::string xml_representation(std::string const& text);

template <class T, class = std::enable_if_t<std::is_same_v<std::remove_const_t<T>, std::string>>>
std::string xml_representation(T& text)
{
    return xml_representation(static_cast<std::string const&>(text));
}

}  // namespace tarn
