#include "parameters/XmlValue.h"

#include <sstream>

namespace tarn {

namespace {

template <class T>
std::string textOf(T const& value)
{
    std::ostringstream out;
    out << value;
    return out.str();
}

std::string textOf(std::string const& value)
{
    return xml_representation(value);
}

template <class T>
std::string textOf(boost::shared_ptr<Interpolater<T>> const& value)
{
    return value ? xml_representation(*value) : std::string();
}

}  // namespace

template <class T>
std::string xml_representation(KeyFrame<T> const& frame)
{
    return textOf(frame.value());
}

#define TARN_INSTANTIATE(T) template std::string xml_representation(KeyFrame<T> const&);
TARN_PARAMETER_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
