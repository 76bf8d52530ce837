#include "parameters/XmlValue.h"

#include "datatypes/XmlText.h"

#include <locale>
#include <sstream>
#include <type_traits>

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

template <class T>
void writeValue(XmlText& out, KeyFrame<T> const& frame)
{
    if constexpr (std::is_arithmetic_v<T>) {
        // The text above is made in the locale of the process, whatever the stream's.
        if (out.isShort() && std::locale() == std::locale::classic()) {
            out << frame.value();
            return;
        }
    }
    out << xml_representation(frame);
}

#define TARN_INSTANTIATE(T)                                                                        \
    template std::string xml_representation(KeyFrame<T> const&);                                   \
    template void writeValue(XmlText&, KeyFrame<T> const&);
TARN_PARAMETER_TYPES(TARN_INSTANTIATE)
#undef TARN_INSTANTIATE

}  // namespace tarn
