#pragma once

#include "datatypes/XmlRepresentation.h"
#include "parameters/Interpolater.h"
#include "parameters/KeyFrame.h"

#include <string>

namespace tarn {

class XmlText;

/// The id of the policy.
template <class T>
std::string xml_representation(Interpolater<T> const& interpolater)
{
    return xml_representation(interpolater.id());
}

/// The value of a key frame as it stands in XML: numbers and shapes in a stream's default form,
/// text escaped, an interpolater by its id, any other pointer as its address.
template <class T>
TARN_API std::string xml_representation(KeyFrame<T> const& frame);

/// Writes the same.
template <class T>
TARN_API void writeValue(XmlText& out, KeyFrame<T> const& frame);

#define TARN_DECLARE(T)                                                                            \
    extern template TARN_API std::string xml_representation(KeyFrame<T> const&);                   \
    extern template TARN_API void writeValue(XmlText&, KeyFrame<T> const&);
TARN_PARAMETER_TYPES(TARN_DECLARE)
#undef TARN_DECLARE

}  // namespace tarn
